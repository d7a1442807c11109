// Escape expansion and quoted character constants.
#include <kilnutil/numeric.h>

#include <gtest/gtest.h>

namespace {

TEST(EscapeCodes, ExpandsInPlace) {
  char text[] = R"(a\tb\\c\x41\101\q\0)";
  EXPECT_EQ(KILNUTIL_expand_C_escape_codes(text), 4);
  EXPECT_STREQ(text, "a\tb\\cAA\\q\\0");
  char quotes[] = R"(\'\"\?\n)";
  KILNUTIL_expand_C_escape_codes(quotes);
  EXPECT_STREQ(quotes, "'\"?\n");
  char trailing[] = "x\\";
  EXPECT_EQ(KILNUTIL_expand_C_escape_codes(trailing), 0);
  EXPECT_STREQ(trailing, "x\\");
}

TEST(AsciiChar, Constants) {
  int value = 99;
  EXPECT_EQ(KILNUTIL_is_str_ascii_char("a", &value), 0);
  EXPECT_EQ(value, 99);
  EXPECT_EQ(KILNUTIL_is_str_ascii_char("'a'", &value), 1);
  EXPECT_EQ(value, 'a');
  EXPECT_EQ(KILNUTIL_is_str_ascii_char(R"('\n')", &value), 1);
  EXPECT_EQ(value, 10);
  EXPECT_EQ(KILNUTIL_is_str_ascii_char(R"('\0')", &value), 1);
  EXPECT_EQ(value, 0);
  EXPECT_EQ(KILNUTIL_is_str_ascii_char("'ab'", &value), 1);
  EXPECT_EQ(value, -2);
  EXPECT_EQ(KILNUTIL_is_str_ascii_char("''", &value), 1);
  EXPECT_EQ(value, -1);
  EXPECT_EQ(KILNUTIL_is_str_ascii_char("'a", &value), 1);
  EXPECT_EQ(value, -1);
  EXPECT_EQ(KILNUTIL_is_str_ascii_char("'\xE9'", &value), 1);
  EXPECT_EQ(value, -23);  // sign-extended from a signed char
}

TEST(SpecialInteger, HexQuotedAndErrors) {
  int value = 0;
  int error = 0;
  EXPECT_EQ(KILNUTIL_cvt_special_str_to_int(R"('\n')", &value, &error), 1);
  EXPECT_EQ(value, 10);
  EXPECT_EQ(error, 0);
  EXPECT_EQ(KILNUTIL_cvt_special_str_to_int("'ab'", &value, &error), 1);
  EXPECT_EQ(value, -2);
  EXPECT_EQ(error, 0);
  EXPECT_EQ(KILNUTIL_cvt_special_str_to_int("0x1F", &value, &error), 1);
  EXPECT_EQ(value, 31);
  EXPECT_EQ(KILNUTIL_cvt_special_str_to_int("0xFF", &value, &error), 1);
  EXPECT_EQ(value, 255);
  EXPECT_EQ(error, 0);  // the range applies to quoted characters only
  EXPECT_EQ(KILNUTIL_cvt_special_str_to_int("12", &value, &error), 0);
  EXPECT_EQ(KILNUTIL_cvt_special_str_to_int("'x", &value, &error), 1);
  EXPECT_EQ(value, -1);
  EXPECT_EQ(error, -1);
}

}  // namespace
