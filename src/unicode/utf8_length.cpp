// Character count of a UTF-8 string, with a fast path for runs of ASCII.
//
// The string's length is found first (the C library's strlen never reads
// past the terminator in a way that matters), then the walk goes 32 bytes at
// a time while they are all ASCII and by the lenient rule otherwise. Inside
// the known length there is no NUL, so the rule's NUL tests reduce to the
// distance to the end.
#include "unicode/utf8.h"

#include <kilnutil/unicode.h>

#include <cstdint>
#include <cstring>

namespace {

constexpr std::uint64_t kHighBits = 0x8080808080808080ull;

std::uint64_t load_word(const unsigned char* p) {
  std::uint64_t word;
  std::memcpy(&word, p, sizeof word);
  return word;
}

bool all_ascii_32(const unsigned char* p) {
  return ((load_word(p) | load_word(p + 8) | load_word(p + 16) | load_word(p + 24)) & kHighBits) == 0;
}

// The lenient advance for a character at p with `left` bytes to the end.
std::size_t bounded_advance_length(const unsigned char* p, std::size_t left) {
  const unsigned lead = p[0];
  if (lead < 0x80 || left < 2) return 1;
  if (!(lead & 0x20) || left < 3) return 2;
  if (!(lead & 0x10)) return 3;
  return left >= 4 ? 4 : 3;
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
    const std::size_t stop = n - i >= 32 ? i + 32 : n;
    while (i < stop) {
      i += bounded_advance_length(p + i, n - i);
      ++count;
    }
  }
  return static_cast<int>(count);
}
