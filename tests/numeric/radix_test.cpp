// Hexadecimal and binary conversions with the 32-bit runtime rules, and the
// number/hexadecimal text conversion.
#include <kilnutil/frame.h>
#include <kilnutil/numeric.h>

#include <gtest/gtest.h>

#include <tuple>
#include <utility>

namespace {

// Leading blanks and "0x" skipped, saturation at 2^32 - 1, a minus sign
// negating in 32 bits, parsing up to the first non-digit.
TEST(Radix, ThirtyTwoBitRuntimeRules) {
  const std::pair<const char*, unsigned> hex_cases[] = {{"ff", 255u},
                                                        {"  0x1Fzz", 31u},
                                                        {"123456789", 4294967295u},
                                                        {"-1", 4294967295u},
                                                        {"-10", 4294967280u},
                                                        {"-123456789", 4294967295u},
                                                        {"0x", 0u},
                                                        {"g", 0u}};
  for (const auto& [text, value] : hex_cases) EXPECT_EQ(KILNUTIL_hexstr2int(text), value) << text;
  EXPECT_EQ(Hex2Dec("7fffffff"), 2147483647u);
  EXPECT_EQ(KILNUTIL_binstr2int("1012"), 5u);
  EXPECT_EQ(KILNUTIL_binstr2int("-1"), 4294967295u);
}

TEST(Radix, SixtyFourBitWholeText) {
  unsigned long long value = 0;
  EXPECT_EQ(KILNUTIL_hexstr2int64("1G", &value), -1);
  EXPECT_EQ(KILNUTIL_hexstr2int64("ff", &value), 0);
  EXPECT_EQ(value, 255u);
  EXPECT_EQ(KILNUTIL_hexstr2int64("0xFFFFFFFFFFFFFFFF", &value), 0);
  EXPECT_EQ(value, 0xFFFFFFFFFFFFFFFFull);
  EXPECT_EQ(KILNUTIL_hexstr2int64("ff", nullptr), -1);
  EXPECT_EQ(std::tuple(is_hex_string(""), is_hex_string("09afAF"), is_hex_string("0x1")), std::tuple(1, 1, 0));
}

TEST(HexDecConvert, HexToNumber) {
  double number = 0;
  char hex[65] = "FFFFFFFFFFFFFFFF";
  EXPECT_EQ(hex_dec_convert(&number, hex, -1), 0);
  EXPECT_EQ(number, -1.0);
  char prefixed[65] = "0xfFFFFFFFFFFFFFFE";
  EXPECT_EQ(hex_dec_convert(&number, prefixed, -1), 0);
  EXPECT_EQ(number, -2.0);
  char fifteen[65] = "FFFFFFFFFFFFFFF";
  hex_dec_convert(&number, fifteen, -1);
  EXPECT_EQ(number, 1152921504606846975.0);
  char bad[65] = "xyz";
  EXPECT_EQ(hex_dec_convert(&number, bad, -1), 0);
  EXPECT_EQ(number, KILNUTIL_NANUM);
  EXPECT_EQ(hex_dec_convert(nullptr, hex, -1), -1);
  EXPECT_EQ(hex_dec_convert(&number, nullptr, 4), -1);
}

TEST(HexDecConvert, NumberToHex) {
  const struct {
    double number;
    int digits, code;
    const char* hex;
  } cases[] = {
      {-1, 8, 2, "FFFFFFFFFFFFFFFF"},
      {255, 4, 0, "00FF"},
      {-16, 20, 0, "FFFFFFFFFFFFFFFFFFF0"},
      {255.9, 0, 0, "FF"},
      {9223372036854775808.0, 65, 0, "8000000000000000"},
      {KILNUTIL_NANUM, 4, 1, ""},
  };
  for (const auto& c : cases) {
    char hex[65];
    double number = c.number;
    EXPECT_EQ(hex_dec_convert(&number, hex, c.digits), c.code) << c.number;
    EXPECT_STREQ(hex, c.hex) << c.number;
  }
}

}  // namespace
