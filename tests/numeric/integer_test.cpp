// Decimal integers: the integer rule with its "-0" asymmetry, the trimmed
// parser, trailing arguments and the digit tests.
#include <kilnutil/numeric.h>

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(IntegerRule, ZerosSignsAndDigits) {
  unsigned value = 99;
  EXPECT_EQ(is_str_numeric_integer("0", &value), 1);
  EXPECT_EQ(value, 0u);
  EXPECT_EQ(is_str_numeric_integer("00", &value), 1);
  EXPECT_EQ(is_str_numeric_integer("+0", &value), 1);
  EXPECT_EQ(is_str_numeric_integer("+", &value), 1);
  value = 99;
  EXPECT_EQ(is_str_numeric_integer("-0", &value), 0);
  EXPECT_EQ(is_str_numeric_integer("-00", &value), 0);
  EXPECT_EQ(value, 99u);
  EXPECT_EQ(is_str_numeric_integer("", &value), 0);
  EXPECT_EQ(is_str_numeric_integer(" 5", &value), 0);  // not trimmed
  EXPECT_EQ(is_str_numeric_integer("5a", &value), 0);
  EXPECT_EQ(is_str_numeric_integer("-5", &value), 1);
  EXPECT_EQ(value, 4294967291u);
  EXPECT_EQ(is_str_numeric_integer("99999999999", &value), 1);
  EXPECT_EQ(value, 4294967295u);  // saturated
  EXPECT_EQ(is_str_numeric_integer("++5", &value), 0);
}

TEST(IntegerParser, TrimsAndWraps) {
  int value = 7;
  EXPECT_EQ(KILNUTIL_cvtstr2int("+", &value), 1);
  EXPECT_EQ(value, 0);
  value = 7;
  EXPECT_EQ(KILNUTIL_cvtstr2int("-0", &value), 0);
  EXPECT_EQ(value, 7);
  EXPECT_EQ(KILNUTIL_cvtstr2int("99999999999", &value), 1);
  EXPECT_EQ(value, -1);
  EXPECT_EQ(KILNUTIL_cvtstr2int("3000000000", &value), 1);
  EXPECT_EQ(value, -1294967296);
  EXPECT_EQ(KILNUTIL_cvtstr2int("  42\t", &value), 1);
  EXPECT_EQ(value, 42);
  EXPECT_EQ(KILNUTIL_cvtstr2int("   ", &value), 1);
  EXPECT_EQ(value, 0);
  EXPECT_EQ(KILNUTIL_cvtstr2int(std::string(39, ' ').append("").c_str(), &value), 1);
  EXPECT_EQ(KILNUTIL_cvtstr2int((std::string(38, ' ') + "12").c_str(), &value), 0);  // 40 bytes
  EXPECT_EQ(KILNUTIL_cvtstr2int("4 2", &value), 0);
  EXPECT_EQ(KILNUTIL_str2int("-12"), -12);
  EXPECT_EQ(KILNUTIL_str2int("x"), 0);
}

TEST(IntegerWithArguments, SeparatorSplitsAndTrims) {
  char text[] = " 12 : a, b ";
  unsigned value = 0;
  char* args = is_str_numeric_integer_with_args(text, &value, ':');
  ASSERT_NE(args, nullptr);
  EXPECT_EQ(value, 12u);
  EXPECT_STREQ(args, "a, b");

  char bare[] = "12";
  args = is_str_numeric_integer_with_args(bare, &value, ':');
  ASSERT_NE(args, nullptr);
  EXPECT_EQ(args, bare + 2);

  char untrimmed[] = "12 ";
  EXPECT_EQ(is_str_numeric_integer_with_args(untrimmed, &value, ':'), nullptr);
  char bad[] = "x:1";
  EXPECT_EQ(is_str_numeric_integer_with_args(bad, &value, ':'), nullptr);
}

TEST(DigitTests, DigitsOnlyAndLeadingZeros) {
  EXPECT_TRUE(is_str_digits_only("0123"));
  EXPECT_FALSE(is_str_digits_only(""));
  EXPECT_FALSE(is_str_digits_only(nullptr));
  EXPECT_FALSE(is_str_digits_only("12.5"));
  EXPECT_EQ(KILNUTIL_is_str_lead_zero_numbers("007"), 1);
  EXPECT_EQ(KILNUTIL_is_str_lead_zero_numbers("0"), 0);
  EXPECT_EQ(KILNUTIL_is_str_lead_zero_numbers("0.5"), 0);
  EXPECT_EQ(KILNUTIL_is_str_lead_zero_numbers("70"), 0);
}

}  // namespace
