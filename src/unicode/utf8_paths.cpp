// File opening with UTF-8 paths. POSIX paths are UTF-8 already, so these call
// fopen, open and access directly; what the wide Windows calls would refuse
// (a path or mode longer than their fixed buffers) is refused the same way.
#include "unicode/code_page_text.h"

#include <kilnutil/unicode.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

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
      case 'r': case 'w': case 'a': case '+': case 'b': case 'x': result += *p; break;
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

int open_flags(unsigned access, unsigned disposition) {
  const bool reads = (access & (kGenericRead | kGenericAll)) != 0;
  const bool writes = (access & (kGenericWrite | kGenericAll)) != 0;
  int flags = O_CLOEXEC | (reads && writes ? O_RDWR : writes ? O_WRONLY : O_RDONLY);
  switch (disposition) {
    case kCreateNew: return flags | O_CREAT | O_EXCL;
    case kCreateAlways: return flags | O_CREAT | O_TRUNC;
    case kOpenExisting: return flags;
    case kOpenAlways: return flags | O_CREAT;
    case kTruncateExisting: return flags | O_TRUNC;
    default: return -1;
  }
}

}  // namespace

FILE* KILNUTIL_UTF8_fopen(const char* path, const char* mode) {
  if (!fits_wide_buffer(path, kPathUnits) || !fits_wide_buffer(mode, kModeUnits)) {
    errno = ENOENT;
    return nullptr;
  }
  return std::fopen(path, stdio_mode(mode).c_str());
}

HANDLE KILNUTIL_UTF8_CreateFile(const char* path, unsigned int access, unsigned int /*share_mode*/,
                                void* /*security*/, unsigned int disposition, unsigned int flags_and_attributes,
                                HANDLE /*template_file*/) {
  const int flags = open_flags(access, disposition);
  if (!fits_wide_buffer(path, kPathUnits) || flags < 0) {
    errno = flags < 0 ? EINVAL : ENOENT;
    return INVALID_HANDLE_VALUE;
  }
  const mode_t permissions = (flags_and_attributes & kAttributeReadOnly) ? 0444 : 0666;
  const int descriptor = open(path, flags, permissions);
  if (descriptor < 0) return INVALID_HANDLE_VALUE;
  return reinterpret_cast<HANDLE>(static_cast<intptr_t>(descriptor));
}

int KILNUTIL_UTF8__access(const char* path, int mode) {
  if (!fits_wide_buffer(path, kPathUnits)) {
    errno = ENOENT;
    return -1;
  }
  // The runtime's modes 0 (exists), 2 (write), 4 (read) and 6 are access()'s
  // F_OK, W_OK and R_OK; other bits are refused as the runtime refuses them.
  if ((mode & ~6) != 0) {
    errno = EINVAL;
    return -1;
  }
  return access(path, mode);
}
