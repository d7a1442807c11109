// UTF-16 test inputs: UTF-8 text as UTF-16 bytes in either byte order,
// written from the two encodings' rules (no converter of the system's).
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace kiln_test {

enum class ByteOrder { kLittleEndian, kBigEndian };

// Well-formed UTF-8 (the tests' own literals) as UTF-16 without a mark;
// characters above U+FFFF become surrogate pairs.
inline std::string utf16_bytes(std::string_view utf8, ByteOrder order) {
  std::string bytes;
  auto put = [&bytes, order](unsigned unit) {
    const char high = static_cast<char>(unit >> 8), low = static_cast<char>(unit & 0xFF);
    bytes += order == ByteOrder::kLittleEndian ? low : high;
    bytes += order == ByteOrder::kLittleEndian ? high : low;
  };
  for (size_t i = 0; i < utf8.size();) {
    const auto lead = static_cast<unsigned char>(utf8[i]);
    const size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    if (i + length > utf8.size()) throw std::invalid_argument("UTF-8 text cut inside a character");
    unsigned code = length == 1 ? lead : lead & (0x7Fu >> length);
    for (size_t k = 1; k < length; ++k) code = code << 6 | (static_cast<unsigned char>(utf8[i + k]) & 0x3Fu);
    i += length;
    if (code >= 0x10000) {
      put(0xD800 + ((code - 0x10000) >> 10));
      put(0xDC00 + (code & 0x3FF));
    } else {
      put(code);
    }
  }
  return bytes;
}

inline std::string utf16le(std::string_view utf8) { return utf16_bytes(utf8, ByteOrder::kLittleEndian); }
inline std::string utf16be(std::string_view utf8) { return utf16_bytes(utf8, ByteOrder::kBigEndian); }

}  // namespace kiln_test
