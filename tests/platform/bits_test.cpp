// Byte swaps and the 128-bit product, checked against values worked out by
// hand (the product's halves also against the identity (2^64 - 1)^2).
#include "platform/bits.h"

#include <gtest/gtest.h>

#include <cstdint>

using kiln::platform::multiply64;

TEST(PlatformBits, SwapsScansAndProducts) {
  EXPECT_EQ(kiln::platform::byteswap64(0x0102030405060708ull), 0x0807060504030201ull);
  EXPECT_EQ(kiln::platform::lowest_set_bit(0), 64u);
  EXPECT_EQ(kiln::platform::lowest_set_bit(0x8000000000000000ull), 63u);
  EXPECT_EQ(kiln::platform::lowest_set_bit(0x0000000000008080ull), 7u);
  struct Case {
    std::uint64_t a, b, high, low;
  } cases[] = {
      {0, ~0ull, 0, 0},
      {~0ull, ~0ull, 0xFFFFFFFFFFFFFFFEull, 1},
      {0x100000000ull, 0x100000000ull, 1, 0},
      {0xFFFFFFFFull, 0xFFFFFFFFull, 0, 0xFFFFFFFE00000001ull},
      {0x123456789ABCDEF0ull, 10, 0, 0xB60B60B60B60B560ull},
      {0x123456789ABCDEF0ull, 0x10, 1, 0x23456789ABCDEF00ull},
  };
  for (const Case& c : cases) {
    const auto product = multiply64(c.a, c.b);
    EXPECT_EQ(product.high, c.high) << c.a << " x " << c.b;
    EXPECT_EQ(product.low, c.low) << c.a << " x " << c.b;
  }
}

// The eight-at-a-time byte tests against a byte-by-byte look at the same text.
TEST(PlatformBits, WordByteTestsAgreeWithBytes) {
  const char* texts[] = {"abcdefgh",
                         "abc\0defg",
                         "\x80"
                         "bcdefgh",
                         "abcdefg\xff",
                         "\x01\x01\x01\x01\x01\x01\x01\x01",
                         "a,b,c,d,",
                         "\0\0\0\0\0\0\0\0",
                         "abcdefg,"};
  for (const char* text : texts) {
    const std::uint64_t word = kiln::platform::load_word(text);
    bool zero_or_high = false, high = false;
    unsigned first_comma = 8;
    for (unsigned i = 0; i < 8; ++i) {
      const auto byte = static_cast<unsigned char>(text[i]);
      zero_or_high = zero_or_high || byte == 0 || byte >= 0x80;
      high = high || byte >= 0x80;
      if (byte == ',' && first_comma == 8) first_comma = i;
    }
    EXPECT_EQ(kiln::platform::zero_or_high_byte(word) != 0, zero_or_high) << text;
    EXPECT_EQ(kiln::platform::has_high_byte(word), high) << text;
    EXPECT_EQ(kiln::platform::first_byte_equal(word, ','), first_comma) << text;
  }
}
