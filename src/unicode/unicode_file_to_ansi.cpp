// A UTF-16 file written out as ANSI code-page text, after the system's
// "is this UTF-16 text" test. POSIX has no such test; the stand-in here
// accepts a UTF-16LE mark, refuses a big-endian mark and odd sizes, and
// otherwise asks the detector's two UTF-16 heuristics whether the bytes are
// UTF-16 little-endian.
#include "unicode/code_page_text.h"
#include "platform/file_system.h"
#include "unicode/encoding_detect.h"
#include "platform/file_bytes.h"

#include <kilnutil/unicode.h>

#include <cstring>

namespace kiln::unicode {

using platform::FileBytes;
using platform::read_whole_file;
using platform::ReadStatus;

bool looks_like_utf16_text(const unsigned char* bytes, size_t size) {
  if (size < 2) return false;
  if (bytes[0] == 0xFF && bytes[1] == 0xFE) return true;
  if (bytes[0] == 0xFE && bytes[1] == 0xFF) return false;
  if (size % 2 != 0) return false;
  if (utf16_by_line_ends(bytes, size, kGuessZeroPairRulesOutUtf16) == kEncodingUtf16Le) return true;
  return utf16_by_zero_ratio(bytes, size, 70, 10) == kEncodingUtf16Le;
}

namespace {

// Writes the units after the first two bytes, up to the first zero unit, as
// ANSI code-page text without NUL. False when the conversion fails.
bool write_as_ansi(const FileBytes& file, FILE* destination) {
  const size_t unit_count = (file.size - 2) / sizeof(KILN_WCHAR);
  WideScratch units;
  if (!units.reserve(unit_count + 1)) return false;
  std::memcpy(units.data(), file.data.get() + 2, unit_count * sizeof(KILN_WCHAR));
  units.data()[unit_count] = 0;
  size_t length = 0;
  while (units.data()[length] != 0) ++length;
  if (length == 0) return true;
  const unsigned page = resolve_code_page(0);
  const int count = static_cast<int>(length);
  const int bytes = multibyte_size(page, units.data(), count);
  Scratch<char> text;
  if (bytes <= 0 || !text.reserve(static_cast<size_t>(bytes))) return false;
  if (platform::wide_to_multibyte(page, units.data(), count, text.data(), bytes) != bytes) return false;
  return std::fwrite(text.data(), 1, static_cast<size_t>(bytes), destination) == static_cast<size_t>(bytes);
}

}  // namespace

}  // namespace kiln::unicode

int KILNUTIL_ConvertUNICODEtoMBCS(const char* src_path, const char* dst_path) {
  using namespace kiln::unicode;
  if (src_path == nullptr || dst_path == nullptr) return 0;
  FILE* probe = kiln::platform::open_stream(src_path, "rb");
  if (probe == nullptr) return 0;
  std::fclose(probe);
  FILE* destination = kiln::platform::open_stream(dst_path, "wb");
  if (destination == nullptr) return 0;
  FileBytes file;
  int result = 0;
  if (read_whole_file(src_path, file, 1) == ReadStatus::kOk && looks_like_utf16_text(file.data.get(), file.size)) {
    write_as_ansi(file, destination);
    result = 1;
  }
  std::fclose(destination);
  return result;
}
