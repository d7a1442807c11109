// Bit-level primitives on 64-bit words: byte order swaps, bit scans and the
// full 128-bit product. Compiler intrinsics are used where they exist; the
// portable forms give the same results everywhere else.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

namespace kiln::platform {

inline std::uint64_t byteswap64(std::uint64_t word) {
#if defined(__GNUC__)
  return __builtin_bswap64(word);
#else
  word = ((word & 0x00FF00FF00FF00FFull) << 8) | ((word >> 8) & 0x00FF00FF00FF00FFull);
  word = ((word & 0x0000FFFF0000FFFFull) << 16) | ((word >> 16) & 0x0000FFFF0000FFFFull);
  return (word << 32) | (word >> 32);
#endif
}

// The word as it is stored big-endian (first byte most significant), and
// back: a swap on little-endian machines, nothing on big-endian ones.
inline std::uint64_t big_endian64(std::uint64_t word) {
  if constexpr (std::endian::native == std::endian::little) return byteswap64(word);
  return word;
}
inline std::uint64_t little_endian64(std::uint64_t word) {
  if constexpr (std::endian::native == std::endian::big) return byteswap64(word);
  return word;
}

// Index of the lowest set bit; 64 for zero.
inline unsigned lowest_set_bit(std::uint64_t word) { return static_cast<unsigned>(std::countr_zero(word)); }

// ---- Eight bytes at a time. A word holds eight bytes of text in memory
// order; the tests look at all eight at once.
inline constexpr std::uint64_t kEachByte = 0x0101010101010101ull;
inline constexpr std::uint64_t kHighBits = 0x8080808080808080ull;

// The eight bytes at p (no alignment needed).
inline std::uint64_t load_word(const void* p) {
  std::uint64_t word;
  std::memcpy(&word, p, sizeof word);
  return word;
}

// Whether one of the bytes is 0x80 or above.
inline bool has_high_byte(std::uint64_t word) { return (word & kHighBits) != 0; }

// Non-zero when one of the bytes is 0 or 0x80 and above. The subtraction
// borrows into a byte's top bit only for a zero byte (or after a lower zero
// byte), so the test is exact for the word as a whole.
inline std::uint64_t zero_or_high_byte(std::uint64_t word) { return ((word - kEachByte) | word) & kHighBits; }

// Index (in memory order, on a little-endian machine) of the first byte equal
// to `byte`; 8 when there is none.
inline unsigned first_byte_equal(std::uint64_t word, unsigned char byte) {
  const std::uint64_t x = word ^ (kEachByte * byte);
  return lowest_set_bit((x - kEachByte) & ~x & kHighBits) / 8;
}

struct Product128 {
  std::uint64_t high;
  std::uint64_t low;
};

// a x b as two 64-bit halves.
inline Product128 multiply64(std::uint64_t a, std::uint64_t b) {
#if defined(__SIZEOF_INT128__)
  __extension__ typedef unsigned __int128 Wide;
  const Wide product = Wide{a} * b;
  return {static_cast<std::uint64_t>(product >> 64), static_cast<std::uint64_t>(product)};
#else
  const std::uint64_t a_low = a & 0xFFFFFFFFu, a_high = a >> 32;
  const std::uint64_t b_low = b & 0xFFFFFFFFu, b_high = b >> 32;
  const std::uint64_t low_low = a_low * b_low;
  const std::uint64_t high_low = a_high * b_low;
  const std::uint64_t low_high = a_low * b_high;
  const std::uint64_t middle = (low_low >> 32) + (high_low & 0xFFFFFFFFu) + low_high;
  return {a_high * b_high + (high_low >> 32) + (middle >> 32), (middle << 32) | (low_low & 0xFFFFFFFFu)};
#endif
}

}  // namespace kiln::platform
