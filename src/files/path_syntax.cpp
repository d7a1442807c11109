// The syntax check of absolute paths: drive paths ("X:...") and UNC paths
// ("\\server\..."). The searches for forbidden characters skip bracketed and
// double-quoted parts, as the exposed search does.
#include "files/paths.h"

#include "text/char_set.h"
#include "text/chars.h"
#include "text/exposed_search.h"
#include "text/strchr.h"

#include <kilnutil/files.h>

#include <algorithm>
#include <cstring>
#include <string>

namespace kiln::files {

namespace {

constexpr char kForbiddenInPath[] = ":/*?\"<>|";
constexpr char kForbiddenInPathAfterSlash[] = ":*?\"<>|";
constexpr char kForbiddenInServer[] = " `~!@#$%^&*()=+[]{}\\|;:'\",<>/?";
constexpr size_t kLongestServerName = 519;

// The character at p; p moves past it, but never past the terminating NUL.
unsigned next_char(const char*& p) {
  if (*p == '\0') return 0;
  return text::read_char(p);
}

bool has_exposed_member(const char* text, const char* members) {
  return text::exposed_match(text, text::CharSet(members), 0, false) != nullptr;
}

bool is_ascii_letter(unsigned c) { return (c | 0x20u) - 'a' < 26u; }

bool is_valid_server_name(const std::string& name) {
  if (name.empty() || has_exposed_member(name.c_str(), kForbiddenInServer)) return false;
  return name.find_first_not_of("0123456789") != std::string::npos;
}

// The server name: up to the first exposed backslash, or at most 519 bytes.
std::string server_name_of(const char* rest) {
  if (const char* backslash = text::search_char(rest, '\\', 0)) {
    return std::string(rest, static_cast<size_t>(backslash - rest));
  }
  return std::string(rest, std::min(std::strlen(rest), kLongestServerName));
}

int check_rest(const char* rest, int code) {
  const bool slash_allowed = code == KILNUTIL_PATH_DRIVE && rest[0] == '/';
  if (has_exposed_member(rest, slash_allowed ? kForbiddenInPathAfterSlash : kForbiddenInPath))
    return KILNUTIL_PATH_BAD_CHARACTER;
  if (std::strstr(rest, "\\\\") != nullptr) return KILNUTIL_PATH_DOUBLE_BACKSLASH;
  if (code == KILNUTIL_PATH_DRIVE && rest[0] != '\\' && std::strchr(rest, '\\') != nullptr)
    return KILNUTIL_PATH_DRIVE_RELATIVE;
  return code;
}

}  // namespace

int path_syntax_code(const char* path) {
  const char* rest = path;
  const unsigned c0 = next_char(rest);
  const unsigned c1 = next_char(rest);
  if (c0 >= 1 && c0 <= 127 && is_ascii_letter(c0) && c1 == ':') return check_rest(rest, KILNUTIL_PATH_DRIVE);
  if (c0 == '\\' && c1 == '\\') {
    if (!is_valid_server_name(server_name_of(rest))) return KILNUTIL_PATH_BAD_SERVER;
    return check_rest(rest, KILNUTIL_PATH_UNC);
  }
  return KILNUTIL_PATH_NOT_ABSOLUTE;
}

}  // namespace kiln::files
