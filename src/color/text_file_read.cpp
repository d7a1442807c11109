// Whole text files read as UTF-8.
#include "color/text_file_read.h"

#include "frame/settings.h"
#include "platform/codepage.h"
#include "unicode/encoding_detect.h"
#include "platform/file_bytes.h"
#include "unicode/utf8.h"

#include <vector>

namespace kiln::color {

namespace {

constexpr unsigned kUtf8CodePage = 65001;

std::size_t mark_size_of(unsigned code) {
  if ((code & unicode::kEncodingMarkBit) == 0) return 0;
  switch (unicode::encoding_family(code)) {
    case unicode::kEncodingUtf8: return 3;
    case unicode::kEncodingUtf16Le:
    case unicode::kEncodingUtf16Be: return 2;
    case unicode::kEncodingUtf32Le:
    case unicode::kEncodingUtf32Be: return 4;
    default: return 0;
  }
}

// Little-endian (or big-endian) units of `width` bytes.
std::uint32_t unit_at(const unsigned char* p, std::size_t width, bool big_endian) {
  std::uint32_t unit = 0;
  for (std::size_t i = 0; i < width; ++i) {
    const std::size_t byte = big_endian ? i : width - 1 - i;
    unit = unit << 8 | p[byte];
  }
  return unit;
}

bool wide_to_utf8(const std::vector<KILN_WCHAR>& units, std::string& utf8) {
  if (units.empty()) return true;
  const int count = static_cast<int>(units.size());
  const int size = platform::wide_to_multibyte(kUtf8CodePage, units.data(), count, nullptr, 0);
  if (size <= 0) return false;
  utf8.resize(static_cast<std::size_t>(size));
  return platform::wide_to_multibyte(kUtf8CodePage, units.data(), count, utf8.data(), size) == size;
}

bool utf16_to_utf8(const unsigned char* p, std::size_t size, bool big_endian, std::string& utf8) {
  std::vector<KILN_WCHAR> units;
  for (std::size_t i = 0; i + 1 < size; i += 2) units.push_back(static_cast<KILN_WCHAR>(unit_at(p + i, 2, big_endian)));
  return wide_to_utf8(units, utf8);
}

bool utf32_to_utf8(const unsigned char* p, std::size_t size, bool big_endian, std::string& utf8) {
  for (std::size_t i = 0; i + 3 < size; i += 4) {
    std::uint32_t cp = unit_at(p + i, 4, big_endian);
    if (cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF)) cp = 0xFFFD;
    char bytes[4];
    utf8.append(bytes, static_cast<std::size_t>(unicode::utf8_encode(cp, bytes)));
  }
  return true;
}

bool code_page_to_utf8(const unsigned char* p, std::size_t size, std::string& utf8) {
  if (size == 0) return true;
  const unsigned code_page = frame::effective_code_page(-1);
  const char* text = reinterpret_cast<const char*>(p);
  const int length = static_cast<int>(size);
  const int count = platform::multibyte_to_wide(code_page, text, length, nullptr, 0);
  if (count <= 0) return false;
  std::vector<KILN_WCHAR> units(static_cast<std::size_t>(count));
  if (platform::multibyte_to_wide(code_page, text, length, units.data(), count) != count) return false;
  return wide_to_utf8(units, utf8);
}

}  // namespace

TextFileStatus read_text_file_as_utf8(const char* path, std::string& utf8) {
  platform::FileBytes bytes;
  const platform::ReadStatus read = platform::read_whole_file(path, bytes);
  utf8.clear();
  if (read == platform::ReadStatus::kEmpty) return TextFileStatus::kOk;
  if (read != platform::ReadStatus::kOk) return TextFileStatus::kCantRead;
  const unsigned code = unicode::detect_encoding(bytes.data.get(), bytes.size, 0);
  const std::size_t mark = mark_size_of(code);
  const unsigned char* body = bytes.data.get() + mark;
  const std::size_t size = bytes.size - mark;
  bool converted = false;
  switch (unicode::encoding_family(code)) {
    case unicode::kEncodingUtf8:
      utf8.assign(reinterpret_cast<const char*>(body), size);
      converted = true;
      break;
    case unicode::kEncodingUtf16Le: converted = utf16_to_utf8(body, size, false, utf8); break;
    case unicode::kEncodingUtf16Be: converted = utf16_to_utf8(body, size, true, utf8); break;
    case unicode::kEncodingUtf32Le: converted = utf32_to_utf8(body, size, false, utf8); break;
    case unicode::kEncodingUtf32Be: converted = utf32_to_utf8(body, size, true, utf8); break;
    default: converted = code_page_to_utf8(body, size, utf8); break;
  }
  return converted ? TextFileStatus::kOk : TextFileStatus::kCantConvert;
}

}  // namespace kiln::color
