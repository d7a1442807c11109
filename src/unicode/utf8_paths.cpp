// File opening with UTF-8 paths. The platform's paths are UTF-8 already, so
// these open and test the path as given; what the wide Windows calls would refuse
// (a path or mode longer than their fixed buffers) is refused the same way.
#include "platform/file_system.h"
#include "unicode/code_page_text.h"
#include "unicode/utf8_paths.h"

#include <kilnutil/unicode.h>

#include <cerrno>
#include <cstdint>
#include <string>

namespace {

constexpr int kPathUnits = 1040;
constexpr int kModeUnits = 120;

// Whether the text fits a UTF-16 buffer of `units` units with its zero.
bool fits_wide_buffer(const char* text, int units) {
  if (text == nullptr) return false;
  const int needed = kiln::platform::multibyte_to_wide(kiln::platform::kCodePageUtf8, text, -1, nullptr, 0);
  return needed >= 1 && needed <= units;
}

// The stdio mode of a runtime-library mode: "t" and the ", ccs=..." encoding
// clause are dropped (text is bytes here), "N" (not inherited) becomes "e",
// and the Windows-only hints (S, R, T, D, c, n) go.
std::string stdio_mode(const char* mode) {
  std::string result;
  for (const char* p = mode; *p != '\0' && *p != ','; ++p) {
    switch (*p) {
      case 'r':
      case 'w':
      case 'a':
      case '+':
      case 'b':
      case 'x': result += *p; break;
      case 'N': result += 'e'; break;
      default: break;
    }
  }
  return result;
}

// CreateFileW constants.
constexpr unsigned kGenericRead = 0x80000000u;
constexpr unsigned kGenericWrite = 0x40000000u;
constexpr unsigned kGenericAll = 0x10000000u;
constexpr unsigned kCreateNew = 1, kCreateAlways = 2, kOpenExisting = 3, kOpenAlways = 4, kTruncateExisting = 5;
constexpr unsigned kAttributeReadOnly = 0x1u;

using kiln::platform::OpenRule;

// The creation rule of a CreateFileW disposition; false for an unknown one.
bool open_rule(unsigned disposition, OpenRule& rule) {
  switch (disposition) {
    case kCreateNew: rule = OpenRule::kCreateNew; return true;
    case kCreateAlways: rule = OpenRule::kCreateAlways; return true;
    case kOpenExisting: rule = OpenRule::kOpenExisting; return true;
    case kOpenAlways: rule = OpenRule::kOpenAlways; return true;
    case kTruncateExisting: rule = OpenRule::kTruncateExisting; return true;
    default: return false;
  }
}

}  // namespace

namespace kiln::unicode {

FILE* open_utf8_path(const char* path, const char* mode) {
  if (!fits_wide_buffer(path, kPathUnits) || !fits_wide_buffer(mode, kModeUnits)) {
    errno = ENOENT;
    return nullptr;
  }
  return kiln::platform::open_stream(path, stdio_mode(mode).c_str());
}

HANDLE create_utf8_path(const char* path, unsigned access, unsigned disposition, unsigned flags_and_attributes) {
  OpenRule rule = OpenRule::kOpenExisting;
  const bool known_rule = open_rule(disposition, rule);
  if (!fits_wide_buffer(path, kPathUnits) || !known_rule) {
    errno = !known_rule ? EINVAL : ENOENT;
    return INVALID_HANDLE_VALUE;
  }
  const bool reads = (access & (kGenericRead | kGenericAll)) != 0;
  const bool writes = (access & (kGenericWrite | kGenericAll)) != 0;
  const bool read_only = (flags_and_attributes & kAttributeReadOnly) != 0;
  return kiln::platform::open_file_handle(path, reads, writes, rule, read_only);
}

int test_utf8_path_access(const char* path, int mode) {
  if (!fits_wide_buffer(path, kPathUnits)) {
    errno = ENOENT;
    return -1;
  }
  // The runtime's modes are 0 (exists), 2 (write), 4 (read) and 6; other
  // bits are refused as the runtime refuses them.
  if ((mode & ~6) != 0) {
    errno = EINVAL;
    return -1;
  }
  return platform::test_file_access(path, mode);
}

}  // namespace kiln::unicode
