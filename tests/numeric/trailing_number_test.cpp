// Exponent test, trailing numbers of names in every mode, missing-value text
// and separator styles.
#include <kilnutil/frame.h>
#include <kilnutil/numeric.h>

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace {

TEST(ExponentTest, SignAndDigitAfterTheMark) {
  const std::pair<const char*, int> cases[] = {
      {"1E+5", 1}, {"1E5", 0}, {"1D-3", 1}, {"1d-3", 0}, {"1e+", 0}, {"1e-.5", 1},  // "." is of the digit class
      {"Ee-5", 0},                                                                  // only the first mark counts
  };
  for (const auto& [text, has] : cases) EXPECT_EQ(KILNUTIL_is_str_has_exponent(text), has) << text;
}

// Modes -1, 0 and n > 0 take at most 8 digits (n also bounds the prefix
// buffer); -2 takes every digit, and -1 leaves the number's leading zeros
// in the prefix.
TEST(EndNumber, Modes) {
  const struct {
    const char* text;
    int mode, value;
    const char* prefix;
    std::ptrdiff_t start;
  } cases[] = {
      {"Book123456789", -1, 23456789, "Book1", 5},
      {"Book123456789", 0, 23456789, "Book1", 5},
      {"Book123456789", 20, 23456789, "Book1", 5},
      {"Book123456789", -2, 123456789, "Book", 4},
      {"a007", -1, 7, "a00", 3},
      {"a000", -1, 0, "a00", 3},
      {"a007", 0, 7, "a", 1},
      {"Sheet", 0, 0, "Sheet", 5},
      {"Sheet12", 4, 12, "She", 5},
      {"Sheet12", 1, 12, "", 5},
      {"99999999999999", -2, 2147483647, "", 0},
  };
  for (const auto& c : cases) {
    std::string text = c.text;
    char prefix[64] = "unchanged";
    char* start = nullptr;
    EXPECT_EQ(KILNUTIL_End_Number_ex(prefix, text.data(), &start, c.mode), c.value) << c.text << " mode " << c.mode;
    EXPECT_STREQ(prefix, c.prefix) << c.text << " mode " << c.mode;
    EXPECT_EQ(start - text.data(), c.start) << c.text << " mode " << c.mode;
  }
}

TEST(EndNumber, PrefixForm) {
  char prefix[16];
  char text[] = "Col005";
  EXPECT_EQ(string_to_prefix_end_number(prefix, text, true), 5);
  EXPECT_STREQ(prefix, "Col00");
  EXPECT_EQ(string_to_prefix_end_number(prefix, text, false), 5);
  EXPECT_STREQ(prefix, "Col");
}

TEST(MissingText, TextAndBlankSelector) {
  EXPECT_STREQ(KILNUTIL_get_missing_as_text(nullptr), "--");
  char out[25];
  EXPECT_EQ(KILNUTIL_get_missing_as_str(out, 0), 0);
  EXPECT_STREQ(out, "--");
  EXPECT_EQ(KILNUTIL_get_missing_as_str(out, 3), 1);
  EXPECT_STREQ(out, "");
  const unsigned previous = KILNUTIL_SetReal2StrInternalOptions(2);
  EXPECT_EQ(KILNUTIL_get_missing_as_str(out, -1), 1);
  KILNUTIL_SetReal2StrInternalOptions(previous);
  EXPECT_EQ(KILNUTIL_get_missing_as_str(out, -1), 0);

  EXPECT_STREQ(KILNUTIL_get_missing_as_text("abcdefghijklmnopqrstuvwxyz"), "abcdefghijklmnopqrstuvwx");
  KILNUTIL_get_missing_as_text("--");
}

// Styles 3 and 4 group with a blank and an apostrophe; unknown styles and a
// missing output are refused without writing.
TEST(SeparatorStyles, Table) {
  char decimal = 'x', grouping = 'x';
  EXPECT_EQ(get_numeric_separators(3, &decimal, &grouping), 1);
  EXPECT_EQ(std::pair(decimal, grouping), std::pair(',', ' '));
  EXPECT_EQ(get_numeric_separators(4, &decimal, &grouping), 1);
  EXPECT_EQ(grouping, '\'');
  decimal = grouping = 'x';
  for (int unknown : {6, 0}) EXPECT_EQ(get_numeric_separators(unknown, &decimal, &grouping), 0);
  EXPECT_EQ(std::pair(decimal, grouping), std::pair('x', 'x'));
  EXPECT_EQ(get_numeric_separators(1, nullptr, &grouping), 0);
}

}  // namespace
