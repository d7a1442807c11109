// The Base64 encoder: full groups through a 12-bit pair table, 2 groups per
// 8-byte load, the last (padded) group on its own.
#include "platform/bits.h"
#include "unicode/base64.h"
#include "unicode/base64_tables.h"

#include <kilnutil/unicode.h>

#include <bit>
#include <cstdint>
#include <cstring>

namespace kiln::unicode {

namespace {

using base64_tables::kAlphabet;
using base64_tables::kCharPairs;

uint64_t load_big_endian_64(const unsigned char* p) {
  uint64_t word;
  std::memcpy(&word, p, sizeof word);
  return platform::big_endian64(word);
}

void store_little_endian_64(char* p, uint64_t word) {
  word = platform::little_endian64(word);
  std::memcpy(p, &word, sizeof word);
}

// Four characters of one 24-bit group, the first in the low byte.
uint64_t group_characters(uint32_t group) {
  return kCharPairs[group >> 12] | (static_cast<uint64_t>(kCharPairs[group & 0xFFF]) << 16);
}

void encode_one_group(const unsigned char* src, char* dst) {
  const uint32_t group = (uint32_t{src[0]} << 16) | (uint32_t{src[1]} << 8) | src[2];
  dst[0] = kAlphabet[group >> 18];
  dst[1] = kAlphabet[(group >> 12) & 0x3F];
  dst[2] = kAlphabet[(group >> 6) & 0x3F];
  dst[3] = kAlphabet[group & 0x3F];
}

// The last group: 1 to 3 bytes, zero-filled, "=" for the characters that
// carry no source bits.
void encode_last_group(const unsigned char* src, int remaining, char* dst) {
  unsigned char group[3] = {0, 0, 0};
  if (src != nullptr) std::memcpy(group, src, static_cast<size_t>(remaining));
  encode_one_group(group, dst);
  if (remaining < 3) dst[3] = '=';
  if (remaining < 2) dst[2] = '=';
}

}  // namespace

void encode_base64_groups(const unsigned char* src, size_t groups, char* dst) {
  size_t g = encode_base64_groups_fast(src, groups, dst);
  // Each 8-byte load covers two groups and two bytes of the next one, which
  // must exist: stop while a whole group follows the pair.
  for (; g + 3 <= groups; g += 2) {
    const uint64_t word = load_big_endian_64(src + 3 * g);
    const auto first = static_cast<uint32_t>(word >> 40);
    const auto second = static_cast<uint32_t>(word >> 16) & 0xFFFFFF;
    store_little_endian_64(dst + 4 * g, group_characters(first) | (group_characters(second) << 32));
  }
  for (; g < groups; ++g) encode_one_group(src + 3 * g, dst + 4 * g);
}

int encode_base64(const unsigned char* src, int length, char* dst) {
  const auto groups = static_cast<int>((int64_t{length} + 2) / 3);
  const auto result = static_cast<int>(static_cast<uint32_t>(4 * int64_t{groups}));
  if (dst == nullptr || length < 0) return result;
  const size_t full_groups = groups > 0 ? static_cast<size_t>(groups - 1) : 0;
  if (full_groups > 0) {
    const unsigned workers = length > kBase64ParallelThreshold ? base64_worker_count() : 1;
    if (workers >= 3) {
      encode_base64_groups_parallel(src, full_groups, dst, workers);
    } else {
      encode_base64_groups(src, full_groups, dst);
    }
  }
  // An empty input still encodes one group of three source bytes.
  const int remaining = groups > 0 ? length - 3 * (groups - 1) : 3;
  encode_last_group(src == nullptr ? nullptr : src + 3 * full_groups, remaining, dst + 4 * full_groups);
  return result;
}

}  // namespace kiln::unicode
