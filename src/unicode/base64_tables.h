// Lookup tables of the Base64 coder, built at compile time: the encoder maps
// 12 bits to two characters at once, the decoder maps each of the four
// characters of a group to its 6 bits already shifted into place.
#pragma once

#include <array>
#include <cstdint>

namespace kiln::unicode::base64_tables {

inline constexpr char kAlphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

// Set in a decoded group when one of its characters is outside the alphabet.
inline constexpr uint32_t kInvalid = 0x80000000u;

// Two characters per 12-bit value, the first in the low byte.
inline constexpr std::array<uint16_t, 4096> kCharPairs = [] {
  std::array<uint16_t, 4096> table{};
  for (unsigned v = 0; v < 4096; ++v) {
    const auto first = static_cast<unsigned char>(kAlphabet[v >> 6]);
    const auto second = static_cast<unsigned char>(kAlphabet[v & 0x3F]);
    table[v] = static_cast<uint16_t>(first | (second << 8));
  }
  return table;
}();

// The character's 6-bit value shifted left by `shift`, kInvalid outside the alphabet.
constexpr std::array<uint32_t, 256> make_decode_table(unsigned shift) {
  std::array<uint32_t, 256> table{};
  for (auto& entry : table) entry = kInvalid;
  for (unsigned v = 0; v < 64; ++v) table[static_cast<unsigned char>(kAlphabet[v])] = v << shift;
  return table;
}

inline constexpr std::array<uint32_t, 256> kDecode0 = make_decode_table(18);
inline constexpr std::array<uint32_t, 256> kDecode1 = make_decode_table(12);
inline constexpr std::array<uint32_t, 256> kDecode2 = make_decode_table(6);
inline constexpr std::array<uint32_t, 256> kDecode3 = make_decode_table(0);

}  // namespace kiln::unicode::base64_tables
