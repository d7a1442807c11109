// The real parser: result codes, strict and lenient modes, the separator
// setter, the fraction switch and what the parse leaves in the caller's text.
#include <kilnutil/frame.h>
#include <kilnutil/numeric.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <string>

namespace {

struct Parsed {
  unsigned code;
  double value;
};

Parsed parse(std::string text, unsigned flags = 1) {
  double value = 12345.0;  // a value no case below produces
  const unsigned code = KILNUTIL_cvtstr2real_ex(text.data(), &value, flags, nullptr);
  return {code, value};
}

// Sets the decimal separator for one test and puts "." back afterwards.
class SeparatorScope {
 public:
  explicit SeparatorScope(const char* separator) { KILNUTIL_cvtstr2real_ex(const_cast<char*>(separator), nullptr, 0, nullptr); }
  ~SeparatorScope() { KILNUTIL_cvtstr2real_ex(const_cast<char*>("."), nullptr, 0, nullptr); }
};

class FractionSwitchScope {
 public:
  explicit FractionSwitchScope(unsigned on) : previous_(KILNUTIL_str2real_use_atof(0, on)) {}
  ~FractionSwitchScope() { KILNUTIL_str2real_use_atof(0, previous_); }

 private:
  unsigned previous_;
};

TEST(RealParser, ResultCodesByForm) {
  EXPECT_EQ(parse("3").code, 1u);
  EXPECT_EQ(parse("3.25").code, 2u);
  const Parsed exponent = parse("-1.5e3");
  EXPECT_EQ(exponent.code, 4u);
  EXPECT_EQ(exponent.value, -1500.0);
  EXPECT_EQ(parse("3.25").value, 3.25);
}

TEST(RealParser, ExponentFollowsTheIntegerRule) {
  EXPECT_EQ(parse("1e-0").code, 0u);  // "-0" is no integer
  EXPECT_EQ(parse("1e0").code, 4u);
  EXPECT_EQ(parse("1e+0").code, 4u);
  const Parsed empty = parse("1e");
  EXPECT_EQ(empty.code, 4u);
  EXPECT_EQ(empty.value, 1.0);
  EXPECT_EQ(parse("e5").code, 0u);
  EXPECT_EQ(parse("-E5").code, 0u);
  EXPECT_EQ(parse("1e308").code, 0u);
  EXPECT_EQ(parse("1e-308").code, 0u);
  EXPECT_EQ(parse("1e307").value, 1e307);
  EXPECT_EQ(parse("2.5E-3").value, 2.5 / 1000.0);
  EXPECT_EQ(parse("1e2.5").code, 0u);
}

TEST(RealParser, SignsAndBlanks) {
  const Parsed minus = parse("-");
  EXPECT_EQ(minus.code, 1u);
  EXPECT_EQ(minus.value, 0.0);
  EXPECT_TRUE(std::signbit(minus.value));
  EXPECT_EQ(parse("").code, 0u);
  EXPECT_EQ(parse("   ").code, 0u);
  EXPECT_EQ(parse("\xE2\x88\x92" "5").value, -5.0);  // U+2212 MINUS SIGN
  EXPECT_EQ(parse("\xC3\xA9" "5").code, 0u);
  EXPECT_EQ(parse(" \t 7").value, 7.0);
  EXPECT_EQ(parse("\xC2\xA0" "7").value, 7.0);  // a no-break space is a blank
  EXPECT_EQ(parse("+7").value, 7.0);
  EXPECT_EQ(parse("-.5").value, -0.5);
}

TEST(RealParser, StrictAndLenientTails) {
  EXPECT_EQ(parse("12 ").code, 1u);
  EXPECT_EQ(parse("12 x").code, 0u);
  EXPECT_EQ(parse("1.5x").code, 0u);
  EXPECT_EQ(parse("1.5 ").code, 2u);
  const Parsed lenient = parse("12 x", 0);
  EXPECT_EQ(lenient.code, 1u);
  EXPECT_EQ(lenient.value, 12.0);
  EXPECT_EQ(parse("12x", 0).code, 0u);
  const Parsed fraction = parse("1.5x", 0);
  EXPECT_EQ(fraction.code, 2u);
  EXPECT_EQ(fraction.value, 1.5);
}

TEST(RealParser, LongIntegerParts) {
  EXPECT_EQ(parse("123456789").value, 123456789.0);
  EXPECT_EQ(parse("18446744073709551615").value, 18446744073709551615.0);
  EXPECT_EQ(parse("123456789012345678901234").code, 1u);
  // Beyond 8 bytes trailing blanks are digits that fail.
  EXPECT_EQ(parse("123456789 ").code, 0u);
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

TEST(RealParser, SeparatorSetterReturnsThePreviousOne) {
  char comma[] = " ,";
  EXPECT_EQ(KILNUTIL_cvtstr2real_ex(comma, nullptr, 0, nullptr), 46u);
  char blank[] = "  ";
  EXPECT_EQ(KILNUTIL_cvtstr2real_ex(blank, nullptr, 0, nullptr), 0u);
  char dot[] = ".";
  EXPECT_EQ(KILNUTIL_cvtstr2real_ex(dot, nullptr, 0, nullptr), static_cast<unsigned>(','));
}

TEST(RealParser, CommaSeparator) {
  SeparatorScope comma(",");
  const Parsed parsed = parse("1,5");
  EXPECT_EQ(parsed.code, 2u);
  EXPECT_EQ(parsed.value, 1.5);
  EXPECT_EQ(parse("1.5").code, 0u);
  EXPECT_EQ(parse("-2,25e2").value, -225.0);
}

TEST(RealParser, DigitPathWhenTheFractionSwitchIsOff) {
  FractionSwitchScope off(0);
  EXPECT_EQ(parse("3.05").value, 3.0 + 5 / 100.0);
  EXPECT_EQ(parse("3.05").code, 2u);
  EXPECT_EQ(parse("0.123456789").value, 0.1 + 0.02 + 0.003 + 4e-4 + 5e-5 + 6e-6 + 7e-7 + 8e-8 + 9e-9);
  EXPECT_EQ(parse("12 .5").value, 12.5);  // the integer part is trimmed on this path
}

TEST(RealParser, TextIsRestoredAfterEveryParse) {
  for (const char* original : {"-1.5e3", "1.5x", "12 x", "1e308", "1e-0", "3.25", "1,5"}) {
    for (unsigned flags : {0u, 1u}) {
      std::string text = original;
      double value = 0;
      KILNUTIL_cvtstr2real_ex(text.data(), &value, flags, nullptr);
      EXPECT_EQ(text, original) << "flags " << flags;
    }
  }
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
