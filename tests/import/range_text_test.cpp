// Range reference text.
#include <kilnutil/import.h>

#include <gtest/gtest.h>

#include <string>

namespace {

// "book|sheet|row1|col1|row2|col2", or "none" when the text is no reference.
// The separators cut while parsing must be put back.
std::string parse(const std::string& input) {
  char text[128] = {}, book[64] = {}, sheet[64] = {}, row1[32] = {}, col1[32] = {}, row2[32] = {}, col2[32] = {};
  input.copy(text, sizeof text - 1);
  if (!KILNUTIL_parse_one_range_string(text, book, sheet, row1, col1, row2, col2)) return "none";
  EXPECT_EQ(text, input);
  return std::string(book) + "|" + sheet + "|" + row1 + "|" + col1 + "|" + row2 + "|" + col2;
}

TEST(RangeText, ReferenceShapes) {
  const struct {
    const char* text;
    const char* parts;
  } cases[] = {
      {"[Book1]Sheet1!$A$1:$C$10", "Book1|Sheet1|1|A|10|C"},
      {"Data!$B$3:$D$4", "|Data|3|B|4|D"},
      {"$A$1:$B$2", "||1|A|2|B"},
      {"$A:$C", "|||A||C"},
      {"$1$A:$B$2", "||1|1|2|B"},  // the row digits stand in for the column
      {"$1$2:$B$2", "none"},
      {"$A$B:$B$2", "none"},
      {"$A$1", "none"},     // no ":"
      {"A1:$B$2", "none"},  // no "$"
      {"[Book1$A$1:$B$2", "none"},
  };
  for (const auto& c : cases) EXPECT_EQ(parse(c.text), c.parts) << c.text;
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
