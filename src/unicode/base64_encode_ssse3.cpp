// Base64 encoding of full groups with SSSE3 byte shuffles: 12 source bytes
// become 16 characters per step. The scalar encoder handles processors
// without SSSE3 and the groups at the end.
#include "platform/cpu_features.h"
#include "unicode/base64.h"

#ifdef KILN_HAVE_X86_SIMD
#  include <immintrin.h>
#endif

namespace kiln::unicode {

#ifdef KILN_HAVE_X86_SIMD

namespace {

// The four 6-bit values of each group in the four bytes of a 32-bit lane,
// in output order.
KILN_TARGET_SSSE3 __m128i group_values(__m128i bytes) {
  const __m128i spread = _mm_shuffle_epi8(bytes, _mm_set_epi8(10, 11, 9, 10, 7, 8, 6, 7, 4, 5, 3, 4, 1, 2, 0, 1));
  const __m128i high = _mm_mulhi_epu16(_mm_and_si128(spread, _mm_set1_epi32(0x0FC0FC00)), _mm_set1_epi32(0x04000040));
  const __m128i low = _mm_mullo_epi16(_mm_and_si128(spread, _mm_set1_epi32(0x003F03F0)), _mm_set1_epi32(0x01000010));
  return _mm_or_si128(high, low);
}

// 6-bit values to alphabet characters: each range of the alphabet (A-Z,
// a-z, 0-9, +, /) is the value plus a fixed offset, picked by a shuffle.
KILN_TARGET_SSSE3 __m128i alphabet_characters(__m128i values) {
  const __m128i offsets = _mm_setr_epi8('a' - 26, '0' - 52, '0' - 52, '0' - 52, '0' - 52, '0' - 52, '0' - 52, '0' - 52,
                                        '0' - 52, '0' - 52, '0' - 52, '+' - 62, '/' - 63, 'A', 0, 0);
  __m128i range = _mm_subs_epu8(values, _mm_set1_epi8(51));
  const __m128i upper = _mm_cmpgt_epi8(_mm_set1_epi8(26), values);
  range = _mm_or_si128(range, _mm_and_si128(upper, _mm_set1_epi8(13)));
  return _mm_add_epi8(_mm_shuffle_epi8(offsets, range), values);
}

KILN_TARGET_SSSE3 size_t encode_groups_ssse3(const unsigned char* src, size_t groups, char* dst) {
  size_t g = 0;
  // Each step loads 16 bytes for 4 groups: stop while 6 whole groups remain.
  for (; g + 6 <= groups; g += 4) {
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(src + 3 * g));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(dst + 4 * g), alphabet_characters(group_values(bytes)));
  }
  return g;
}

}  // namespace

size_t encode_base64_groups_fast(const unsigned char* src, size_t groups, char* dst) {
  return platform::cpu_has_ssse3() ? encode_groups_ssse3(src, groups, dst) : 0;
}

#else

size_t encode_base64_groups_fast(const unsigned char*, size_t, char*) { return 0; }

#endif

}  // namespace kiln::unicode
