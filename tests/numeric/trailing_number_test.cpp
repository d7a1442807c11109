// Exponent test, trailing numbers of names in every mode, missing-value text
// and separator styles.
#include <kilnutil/frame.h>
#include <kilnutil/numeric.h>

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(ExponentTest, SignAndDigitAfterTheMark) {
  EXPECT_EQ(KILNUTIL_is_str_has_exponent("1E+5"), 1);
  EXPECT_EQ(KILNUTIL_is_str_has_exponent("1E5"), 0);
  EXPECT_EQ(KILNUTIL_is_str_has_exponent("1D-3"), 1);
  EXPECT_EQ(KILNUTIL_is_str_has_exponent("1d-3"), 0);
  EXPECT_EQ(KILNUTIL_is_str_has_exponent("1e-.5"), 1);  // "." is of the digit class
  EXPECT_EQ(KILNUTIL_is_str_has_exponent("Ee-5"), 0);   // only the first mark counts
  EXPECT_EQ(KILNUTIL_is_str_has_exponent("1e+"), 0);
}

struct EndNumber {
  int value;
  std::string prefix;
  std::ptrdiff_t start;
};

EndNumber end_number(const char* original, int mode) {
  std::string text = original;
  char prefix[64] = "unchanged";
  char* start = nullptr;
  const int value = KILNUTIL_End_Number_ex(prefix, text.data(), &start, mode);
  return {value, prefix, start - text.data()};
}

TEST(EndNumber, Modes) {
  for (int mode : {-1, 0, 20}) {
    const EndNumber book = end_number("Book123456789", mode);
    EXPECT_EQ(book.value, 23456789);
    EXPECT_EQ(book.prefix, "Book1");
    EXPECT_EQ(book.start, 5);
  }
  const EndNumber any = end_number("Book123456789", -2);
  EXPECT_EQ(any.value, 123456789);
  EXPECT_EQ(any.prefix, "Book");

  const EndNumber zeros = end_number("a007", -1);
  EXPECT_EQ(zeros.value, 7);
  EXPECT_EQ(zeros.prefix, "a00");
  const EndNumber all_zeros = end_number("a000", -1);
  EXPECT_EQ(all_zeros.value, 0);
  EXPECT_EQ(all_zeros.prefix, "a00");
  EXPECT_EQ(end_number("a007", 0).prefix, "a");

  const EndNumber none = end_number("Sheet", 0);
  EXPECT_EQ(none.value, 0);
  EXPECT_EQ(none.prefix, "Sheet");
  EXPECT_EQ(none.start, 5);

  EXPECT_EQ(end_number("Sheet12", 4).prefix, "She");  // a 4-byte prefix buffer
  EXPECT_EQ(end_number("Sheet12", 1).prefix, "");
  EXPECT_EQ(end_number("99999999999999", -2).value, 2147483647);
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

TEST(SeparatorStyles, Table) {
  char decimal = 'x';
  char grouping = 'x';
  EXPECT_EQ(get_numeric_separators(3, &decimal, &grouping), 1);
  EXPECT_EQ(decimal, ',');
  EXPECT_EQ(grouping, ' ');
  EXPECT_EQ(get_numeric_separators(4, &decimal, &grouping), 1);
  EXPECT_EQ(grouping, '\'');
  decimal = grouping = 'x';
  EXPECT_EQ(get_numeric_separators(6, &decimal, &grouping), 0);
  EXPECT_EQ(get_numeric_separators(0, &decimal, &grouping), 0);
  EXPECT_EQ(decimal, 'x');
  EXPECT_EQ(get_numeric_separators(1, nullptr, &grouping), 0);
}

}  // namespace
