// Decimal integers: the integer rule with its "-0" asymmetry, the trimmed
// parser, trailing arguments and the digit tests.
#include <kilnutil/numeric.h>

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr long long kUnchanged = 99;  // the value a refused text leaves

struct IntegerCase {
  const char* text;
  int code;
  long long value;
};

TEST(IntegerRule, ZerosSignsAndDigits) {
  const IntegerCase cases[] = {
      {"0", 1, 0},           {"00", 1, 0},
      {"+0", 1, 0},          {"+", 1, 0},
      {"-0", 0, kUnchanged}, {"-00", 0, kUnchanged},
      {"", 0, kUnchanged},   {" 5", 0, kUnchanged},  // not trimmed
      {"5a", 0, kUnchanged}, {"++5", 0, kUnchanged},
      {"-5", 1, 4294967291}, {"99999999999", 1, 4294967295},  // saturated
  };
  for (const auto& c : cases) {
    unsigned value = kUnchanged;
    EXPECT_EQ(is_str_numeric_integer(c.text, &value), c.code) << '"' << c.text << '"';
    EXPECT_EQ(value, c.value) << '"' << c.text << '"';
  }
}

// The trimmed parser wraps to 32 bits and refuses texts of 40 bytes or more.
TEST(IntegerParser, TrimsAndWraps) {
  const std::string blanks_39(39, ' ');
  const std::string number_40 = std::string(38, ' ') + "12";
  const IntegerCase cases[] = {
      {"+", 1, 0},
      {"-0", 0, kUnchanged},
      {"99999999999", 1, -1},
      {"3000000000", 1, -1294967296},
      {"  42\t", 1, 42},
      {"   ", 1, 0},
      {blanks_39.c_str(), 1, 0},
      {number_40.c_str(), 0, kUnchanged},
      {"4 2", 0, kUnchanged},
  };
  for (const auto& c : cases) {
    int value = kUnchanged;
    EXPECT_EQ(KILNUTIL_cvtstr2int(c.text, &value), c.code) << '"' << c.text << '"';
    EXPECT_EQ(value, c.value) << '"' << c.text << '"';
  }
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
  for (const char* text : {"", static_cast<const char*>(nullptr), "12.5"}) EXPECT_FALSE(is_str_digits_only(text));
  EXPECT_EQ(KILNUTIL_is_str_lead_zero_numbers("007"), 1);
  for (const char* text : {"0", "0.5", "70"}) EXPECT_EQ(KILNUTIL_is_str_lead_zero_numbers(text), 0) << text;
}

}  // namespace
