// Splitting a path into folder, file name and extension at the last ":" or
// backslash (forward slashes are not separators).
#include "files/paths.h"

#include "text/chars.h"
#include "text/strchr.h"

#include <cstring>

namespace kiln::files {

namespace {

bool is_separator(char c) { return c == ':' || c == '\\'; }

// The last separator, walking back one UTF-8 character at a time; null when
// there is none.
const char* last_separator(const char* path) {
  for (const char* p = path + std::strlen(path); p > path;) {
    p = text::char_before(path, p);
    if (is_separator(*p)) return p;
  }
  return nullptr;
}

}  // namespace

char* separate_path(const char* path, char* folder, char* name, char* extension) {
  const char* separator = last_separator(path);
  if (extension != nullptr) {
    const char* from = separator != nullptr ? separator : path;
    if (const char* dot = text::search_char(from, '.', text::kStrCharPlain | text::kStrCharBackward))
      std::strcpy(extension, dot);
  }
  if (separator == nullptr) {
    std::strcpy(name, path);
    folder[0] = '\0';
    return name;
  }
  std::strcpy(name, separator + 1);
  const auto folder_length = static_cast<size_t>(separator - path) + 1;
  std::memcpy(folder, path, folder_length);
  folder[folder_length] = '\0';
  return folder;
}

}  // namespace kiln::files
