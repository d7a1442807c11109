// Range reference text.
#include <kilnutil/import.h>

#include <gtest/gtest.h>

#include <string>

namespace {

struct Parsed {
  int result;
  std::string text, book, sheet, row1, col1, row2, col2;
};

Parsed parse(const std::string& input) {
  char text[128], book[64], sheet[64], row1[32], col1[32], row2[32], col2[32];
  input.copy(text, sizeof text - 1);
  text[input.size()] = '\0';
  const int result = KILNUTIL_parse_one_range_string(text, book, sheet, row1, col1, row2, col2);
  return {result, std::string(text, input.size()), book, sheet, row1, col1, row2, col2};
}

TEST(RangeText, FullReference) {
  const Parsed p = parse("[Book1]Sheet1!$A$1:$C$10");
  ASSERT_EQ(p.result, 1);
  EXPECT_EQ(p.book, "Book1");
  EXPECT_EQ(p.sheet, "Sheet1");
  EXPECT_EQ(p.row1, "1");
  EXPECT_EQ(p.col1, "A");
  EXPECT_EQ(p.row2, "10");
  EXPECT_EQ(p.col2, "C");
  EXPECT_EQ(p.text, "[Book1]Sheet1!$A$1:$C$10");  // separators put back
}

TEST(RangeText, ReferenceShapes) {
  EXPECT_EQ(parse("$A$1:$B$2").result, 1);
  EXPECT_EQ(parse("$1$2:$B$2").result, 0);
  EXPECT_EQ(parse("$A$B:$B$2").result, 0);
  const Parsed odd = parse("$1$A:$B$2");
  ASSERT_EQ(odd.result, 1);
  EXPECT_EQ(odd.row1, "1");
  EXPECT_EQ(odd.col1, "1");  // the row digits stand in for the column
  const Parsed cols = parse("$A:$C");
  ASSERT_EQ(cols.result, 1);
  EXPECT_EQ(cols.col1, "A");
  EXPECT_EQ(cols.col2, "C");
  EXPECT_EQ(cols.row1, "");
  EXPECT_EQ(cols.book, "");
  EXPECT_EQ(parse("$A$1").result, 0);     // no ":"
  EXPECT_EQ(parse("A1:$B$2").result, 0);  // no "$"
  EXPECT_EQ(parse("[Book1$A$1:$B$2").result, 0);
  const Parsed sheet_only = parse("Data!$B$3:$D$4");
  ASSERT_EQ(sheet_only.result, 1);
  EXPECT_EQ(sheet_only.sheet, "Data");
}

TEST(RangeText, NullOutputsAndSecondName) {
  char text[] = "[B]S!$A$1:$B$2";
  EXPECT_EQ(KILNUTIL_parse_one_range_string(text, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr), 1);
  char col2[8];
  EXPECT_EQ(parse_data_range_str(text, nullptr, nullptr, nullptr, nullptr, nullptr, col2), 1);
  EXPECT_STREQ(col2, "B");
  EXPECT_EQ(KILNUTIL_parse_one_range_string(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr), 0);
}

}  // namespace
