// The Base64 decoder. Runs of well-formed groups go through the pre-shifted
// tables two groups at a time; any character outside the alphabet ("=", line
// breaks, anything else) sends the decoder to a one-character step that skips
// it, after which the fast path resumes at the next group boundary.
#include "unicode/base64.h"
#include "unicode/base64_tables.h"

#include <kilnutil/unicode.h>

#include <cstdint>

namespace kiln::unicode {

namespace {

using namespace base64_tables;

uint32_t decode_group(const unsigned char* s) {
  return kDecode0[s[0]] | kDecode1[s[1]] | kDecode2[s[2]] | kDecode3[s[3]];
}

// Stores a group's 3 bytes at out[at] (only when writing: the counting pass
// has no destination at all).
template <bool kWrite>
void put_group(unsigned char* out, size_t at, uint32_t bits) {
  if constexpr (kWrite) {
    out[at] = static_cast<unsigned char>(bits >> 16);
    out[at + 1] = static_cast<unsigned char>(bits >> 8);
    out[at + 2] = static_cast<unsigned char>(bits);
  }
}

template <bool kWrite>
size_t decode(const unsigned char* s, size_t n, unsigned char* out) {
  size_t i = 0;
  size_t written = 0;
  uint32_t pending_bits = 0;
  int pending = 0;
  while (i < n) {
    if (pending == 0) {
      for (; i + 8 <= n; i += 8, written += 6) {
        const uint32_t first = decode_group(s + i);
        const uint32_t second = decode_group(s + i + 4);
        if ((first | second) & kInvalid) break;
        put_group<kWrite>(out, written, first);
        put_group<kWrite>(out, written + 3, second);
      }
      if (i + 4 <= n) {
        if (const uint32_t group = decode_group(s + i); (group & kInvalid) == 0) {
          put_group<kWrite>(out, written, group);
          i += 4;
          written += 3;
          continue;
        }
      }
      if (i == n) break;
    }
    const uint32_t value = kDecode3[s[i++]];
    if (value & kInvalid) continue;
    pending_bits = (pending_bits << 6) | value;
    if (++pending == 4) {
      put_group<kWrite>(out, written, pending_bits);
      written += 3;
      pending = 0;
      pending_bits = 0;
    }
  }
  // Two leftover values make one byte, three make two; one is dropped.
  if (pending >= 2) {
    const uint32_t bits = pending_bits << (6 * (4 - pending));
    if constexpr (kWrite) {
      out[written] = static_cast<unsigned char>(bits >> 16);
      if (pending == 3) out[written + 1] = static_cast<unsigned char>(bits >> 8);
    }
    written += static_cast<size_t>(pending - 1);
  }
  return written;
}

}  // namespace

int decode_base64(const char* src, int length, unsigned char* dst) {
  if (src == nullptr) return static_cast<int>(static_cast<unsigned>(length) + 3u);
  if (length < 1) return 0;
  const auto* s = reinterpret_cast<const unsigned char*>(src);
  const auto n = static_cast<size_t>(length);
  return static_cast<int>(dst != nullptr ? decode<true>(s, n, dst) : decode<false>(s, n, nullptr));
}

}  // namespace kiln::unicode
