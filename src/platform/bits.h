// Bit-level primitives on 64-bit words: byte order swaps, bit scans and the
// full 128-bit product. Compiler intrinsics are used where they exist; the
// portable forms give the same results everywhere else.
#pragma once

#include <bit>
#include <cstdint>

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
