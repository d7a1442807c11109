// Escape expansion and quoted character constants.
#include <kilnutil/numeric.h>

#include <gtest/gtest.h>

#include <string>

namespace {

// Returns the number of escapes expanded; unknown escapes, backslash-zero and a
// trailing backslash stay as they are.
TEST(EscapeCodes, ExpandsInPlace) {
  const struct {
    const char* text;
    int count;
    const char* expanded;
  } cases[] = {{R"(a\tb\\c\x41\101\q\0)", 4, "a\tb\\cAA\\q\\0"}, {R"(\'\"\?\n)", 4, "'\"?\n"}, {"x\\", 0, "x\\"}};
  for (const auto& c : cases) {
    std::string text = c.text;
    EXPECT_EQ(KILNUTIL_expand_C_escape_codes(text.data()), c.count) << c.text;
    EXPECT_STREQ(text.c_str(), c.expanded);
  }
}

// Both readers of a quoted character: -1 for an empty or unterminated
// constant, -2 for more than one character, a signed char's value otherwise.
TEST(CharConstants, AsciiCharAndSpecialInteger) {
  // error: of the special-integer reader, which leaves it alone on success.
  struct Case {
    const char* text;
    int code, value, error;
  };
  const Case cases[] = {
      {"'a'", 1, 'a', 0},     {R"('\n')", 1, 10, 0}, {R"('\0')", 1, 0, 0},  {"'ab'", 1, -2, 0},
      {"''", 1, -1, -1},      {"'a", 1, -1, -1},     {"'\xE9'", 1, -23, 0},  // sign-extended from a signed char
      {"'\x80'", 1, -128, 0}, {"'\x7F'", 1, 127, 0},                         // the ends of the range a char holds
  };
  for (const Case& c : cases) {
    int value = 99;
    EXPECT_EQ(KILNUTIL_is_str_ascii_char(c.text, &value), c.code) << c.text;
    EXPECT_EQ(value, c.value) << c.text;
    int error = 0;
    value = 99;
    EXPECT_EQ(KILNUTIL_cvt_special_str_to_int(c.text, &value, &error), c.code) << c.text;
    EXPECT_EQ(value, c.value) << c.text;
    EXPECT_EQ(error, c.error) << c.text;
  }
  int value = 99, error = 0;
  EXPECT_EQ(KILNUTIL_is_str_ascii_char("a", &value), 0);
  EXPECT_EQ(value, 99);
  EXPECT_EQ(KILNUTIL_cvt_special_str_to_int("0xFF", &value, &error), 1);
  EXPECT_EQ(value, 255);
  EXPECT_EQ(error, 0);  // the range applies to quoted characters only
  EXPECT_EQ(KILNUTIL_cvt_special_str_to_int("12", &value, &error), 0);
}

}  // namespace
