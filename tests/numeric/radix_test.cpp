// Hexadecimal and binary conversions with the 32-bit runtime rules, and the
// number/hexadecimal text conversion.
#include <kilnutil/frame.h>
#include <kilnutil/numeric.h>

#include <gtest/gtest.h>

namespace {

TEST(Radix, ThirtyTwoBitRuntimeRules) {
  EXPECT_EQ(KILNUTIL_hexstr2int("ff"), 255u);
  EXPECT_EQ(KILNUTIL_hexstr2int("  0x1Fzz"), 31u);
  EXPECT_EQ(KILNUTIL_hexstr2int("123456789"), 4294967295u);  // saturates
  EXPECT_EQ(KILNUTIL_hexstr2int("-1"), 4294967295u);         // negates in 32 bits
  EXPECT_EQ(KILNUTIL_hexstr2int("-10"), 4294967280u);
  EXPECT_EQ(KILNUTIL_hexstr2int("-123456789"), 4294967295u);
  EXPECT_EQ(KILNUTIL_hexstr2int("0x"), 0u);
  EXPECT_EQ(KILNUTIL_hexstr2int("g"), 0u);
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
  EXPECT_EQ(is_hex_string(""), 1);
  EXPECT_EQ(is_hex_string("09afAF"), 1);
  EXPECT_EQ(is_hex_string("0x1"), 0);
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
  char hex[65];
  double number = -1;
  EXPECT_EQ(hex_dec_convert(&number, hex, 8), 2);
  EXPECT_STREQ(hex, "FFFFFFFFFFFFFFFF");
  number = 255;
  EXPECT_EQ(hex_dec_convert(&number, hex, 4), 0);
  EXPECT_STREQ(hex, "00FF");
  number = -16;
  EXPECT_EQ(hex_dec_convert(&number, hex, 20), 0);
  EXPECT_STREQ(hex, "FFFFFFFFFFFFFFFFFFF0");
  number = 255.9;
  EXPECT_EQ(hex_dec_convert(&number, hex, 0), 0);
  EXPECT_STREQ(hex, "FF");
  number = 9223372036854775808.0;
  EXPECT_EQ(hex_dec_convert(&number, hex, 65), 0);
  EXPECT_STREQ(hex, "8000000000000000");
  number = KILNUTIL_NANUM;
  EXPECT_EQ(hex_dec_convert(&number, hex, 4), 1);
  EXPECT_STREQ(hex, "");
}

}  // namespace
