// Character count of a UTF-8 string, with a fast path for runs of ASCII.
//
// The string's length is found first with the C library's strlen, so that the
// walk can test 32 bytes at a time for ASCII without reading past the
// terminator; elsewhere it steps by the lenient rule, whose NUL tests keep it
// inside the string.
#include "platform/bits.h"
#include "unicode/utf8.h"

#include <kilnutil/unicode.h>

#include <cstdint>
#include <cstring>

namespace {

using kiln::platform::load_word;

bool all_ascii_32(const unsigned char* p) {
  return !kiln::platform::has_high_byte(load_word(p) | load_word(p + 8) | load_word(p + 16) | load_word(p + 24));
}

}  // namespace

extern "C" int KILNUTIL_UNICODE_UTF8_StrLength(const char* s) {
  if (s == nullptr) return 0;
  const auto* p = reinterpret_cast<const unsigned char*>(s);
  const std::size_t n = std::strlen(s);
  std::size_t i = 0;
  std::size_t count = 0;
  while (i < n) {
    if (n - i >= 32 && all_ascii_32(p + i)) {
      i += 32;
      count += 32;
      continue;
    }
    // Up to 32 bytes by the rule itself; its NUL tests keep it inside the
    // string. Written as branches, not a computed length: predicted branches
    // let the walk run ahead, where a computed step would wait for each load.
    const unsigned char* q = p + i;
    const unsigned char* stop = p + (n - i >= 32 ? i + 32 : n);
    while (q < stop) {
      if (q[0] < 0x80 || q[1] == 0) {
        q += 1;
      } else if (!(q[0] & 0x20) || q[2] == 0) {
        q += 2;
      } else if (!(q[0] & 0x10) || q[3] == 0) {
        q += 3;
      } else {
        q += 4;
      }
      ++count;
    }
    i = static_cast<std::size_t>(q - p);
  }
  return static_cast<int>(count);
}
