// The real parser: result codes, strict and lenient modes, the separator
// setter, the fraction switch and what the parse leaves in the caller's text
// (every parse() below also checks the text came back intact).
#include <kilnutil/frame.h>
#include <kilnutil/numeric.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <string>
#include <utility>

namespace {

using Parsed = std::pair<unsigned, double>;  // result code, value

// Parses a copy of the text and checks that the parse gave it back intact.
Parsed parse(const std::string& original, unsigned flags = 1) {
  std::string text = original;
  double value = 12345.0;  // kept when the parse fails
  const unsigned code = KILNUTIL_cvtstr2real_ex(text.data(), &value, flags, nullptr);
  EXPECT_EQ(text, original) << "flags " << flags;
  return {code, value};
}

// Sets the decimal separator for one test and puts "." back afterwards.
class SeparatorScope {
public:
  explicit SeparatorScope(const char* separator) {
    KILNUTIL_cvtstr2real_ex(const_cast<char*>(separator), nullptr, 0, nullptr);
  }
  ~SeparatorScope() { KILNUTIL_cvtstr2real_ex(const_cast<char*>("."), nullptr, 0, nullptr); }
};

constexpr unsigned kStrict = 1;
constexpr unsigned kLenient = 0;
constexpr double kUntouched = 12345.0;  // the value a failed parse() leaves

struct Case {
  const char* text;
  unsigned flags, code;
  double value;
};

TEST(RealParser, FormsCodesAndValues) {
  const Case cases[] = {
      {"3", kStrict, 1, 3.0},
      {"3.25", kStrict, 2, 3.25},
      {"-1.5e3", kStrict, 4, -1500.0},
      // The exponent follows the integer rule: "-0" is none, "" is 0.
      {"1e-0", kStrict, 0, kUntouched},
      {"1e0", kStrict, 4, 1.0},
      {"1e+0", kStrict, 4, 1.0},
      {"1e", kStrict, 4, 1.0},
      {"e5", kStrict, 0, kUntouched},
      {"-E5", kStrict, 0, kUntouched},
      {"1e2.5", kStrict, 0, kUntouched},
      {"1e308", kStrict, 0, kUntouched},
      {"1e-308", kStrict, 0, kUntouched},
      {"1e307", kStrict, 4, 1e307},
      {"2.5E-3", kStrict, 4, 2.5 / 1000.0},
      // Signs and blanks.
      {"", kStrict, 0, kUntouched},
      {"   ", kStrict, 0, kUntouched},
      {" \t 7", kStrict, 1, 7.0},
      {"\xE2\x88\x92"
       "5",
       kStrict, 1, -5.0},  // U+2212 MINUS SIGN
      {"\xC3\xA9"
       "5",
       kStrict, 0, kUntouched},
      {"\xC2\xA0"
       "7",
       kStrict, 1, 7.0},  // a no-break space is a blank
      {"+7", kStrict, 1, 7.0},
      {"-.5", kStrict, 2, -0.5},
      // What may follow the number.
      {"12 ", kStrict, 1, 12.0},
      {"12 x", kStrict, 0, kUntouched},
      {"1.5x", kStrict, 0, kUntouched},
      {"1.5 ", kStrict, 2, 1.5},
      {"12 x", kLenient, 1, 12.0},
      {"12x", kLenient, 0, kUntouched},
      {"1.5x", kLenient, 2, 1.5},
      // Integer parts beyond 8 bytes: the 64-bit conversion, then the digit sum.
      {"123456789", kStrict, 1, 123456789.0},
      {"18446744073709551615", kStrict, 1, 18446744073709551615.0},
      {"123456789 ", kStrict, 0, kUntouched},  // the sum refuses the blank
  };
  for (const Case& c : cases) {
    EXPECT_EQ(parse(c.text, c.flags), Parsed(c.code, c.value)) << "\"" << c.text << "\" flags " << c.flags;
  }
  // Beyond the 64-bit range the digits are summed as digit x 10^k, which
  // need not be the nearest double.
  double sum = 0;
  const std::string digits = "123456789012345678901234";
  for (std::size_t i = 0; i < digits.size(); ++i)
    sum += (digits[i] - '0') * std::pow(10.0, static_cast<double>(digits.size() - i - 1));
  EXPECT_EQ(parse(digits).second, sum);

  const Parsed minus = parse("-");
  EXPECT_EQ(minus.first, 1u);
  EXPECT_TRUE(minus.second == 0.0 && std::signbit(minus.second));
}

TEST(RealParser, IntegerPartIsReturnedWithItsSign) {
  std::string text = "-1234567.5e1";
  double value = 0;
  int integer_part = 0;
  EXPECT_EQ(KILNUTIL_cvtstr2real_ex(text.data(), &value, 1, &integer_part), 4u);
  EXPECT_EQ(integer_part, -1234567);
  EXPECT_EQ(value, -12345675.0);
  text = "4294967297";
  EXPECT_EQ(KILNUTIL_cvtstr2real_ex(text.data(), &value, 1, &integer_part), 1u);
  EXPECT_EQ(integer_part, 1);  // the low 32 bits
}

// Setting the separator returns the previous one; a blank text sets nothing.
TEST(RealParser, CommaSeparator) {
  char comma[] = " ,", blank[] = "  ", dot[] = ".";
  EXPECT_EQ(KILNUTIL_cvtstr2real_ex(comma, nullptr, 0, nullptr), static_cast<unsigned>('.'));
  EXPECT_EQ(KILNUTIL_cvtstr2real_ex(blank, nullptr, 0, nullptr), 0u);
  EXPECT_EQ(parse("1,5"), Parsed(2, 1.5));
  EXPECT_EQ(parse("1,5", 0), Parsed(2, 1.5));
  EXPECT_EQ(parse("1.5").first, 0u);
  EXPECT_EQ(parse("-2,25e2"), Parsed(4, -225.0));
  EXPECT_EQ(KILNUTIL_cvtstr2real_ex(dot, nullptr, 0, nullptr), static_cast<unsigned>(','));
}

TEST(RealParser, DigitPathWhenTheFractionSwitchIsOff) {
  const unsigned previous = KILNUTIL_str2real_use_atof(0, 0);
  EXPECT_EQ(parse("3.05"), Parsed(2, 3.0 + 5 / 100.0));
  EXPECT_EQ(parse("0.123456789").second, 0.1 + 0.02 + 0.003 + 4e-4 + 5e-5 + 6e-6 + 7e-7 + 8e-8 + 9e-9);
  EXPECT_EQ(parse("12 .5").second, 12.5);  // the integer part is trimmed on this path
  KILNUTIL_str2real_use_atof(0, previous);
}

TEST(RealParser, RejectedFractionLeavesItsMarks) {
  SeparatorScope comma(",");
  char text[] = "1x,5 ";
  double value = 7;
  EXPECT_EQ(KILNUTIL_cvtstr2real(text, &value), 0u);
  EXPECT_EQ(value, 7.0);
  EXPECT_EQ(std::memcmp(text, "1x.5\0", 6), 0);
}

TEST(RealParser, ValueFormsAndMissingValue) {
  char missing[] = "--";
  EXPECT_EQ(KILNUTIL_str2real(missing), -1.23456789e-300);
  EXPECT_EQ(KILNUTIL_dbStr2Real(missing), 0.0);
  char number[] = " 2.5 ";
  EXPECT_EQ(KILNUTIL_str2real(number), 2.5);
  EXPECT_EQ(KILNUTIL_dbStr2Real(number), 2.5);
}

}  // namespace
