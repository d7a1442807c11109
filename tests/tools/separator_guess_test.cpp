// The layout of delimited text from its first lines.
#include "separator_guess.h"

#include <gtest/gtest.h>

namespace {

TEST(ToolSeparatorGuess, SeparatorTitlesHeaderAndDecimalMark) {
  struct Case {
    const char* name;
    std::vector<std::string> lines;
    char separator;
    int fields;
    bool by_library;
    std::size_t titles;
    bool header;
    char decimal;
  };
  const Case cases[] = {
      {"commas", {"a,b,c", "1,2,3", "4,5,6"}, ',', 3, true, 0, true, '.'},
      {"semicolons with decimal commas", {"x;y", "1,5;2,5", "3,25;4"}, ';', 2, true, 0, true, ','},
      {"semicolons with decimal points", {"x;y", "1.5;2.5", "3.25;4"}, ';', 2, true, 0, true, '.'},
      {"tabs with decimal commas", {"x\ty", "1,5\t2", "3,5\t4"}, '\t', 2, true, 0, true, ','},
      {"pipes", {"a|b|c", "1|2|3", "4|5|6"}, '|', 3, false, 0, true, '.'},
      {"blanks", {"1 2 3", "4 5 6", "7 8 9"}, ' ', 3, false, 0, false, '.'},
      {"title line", {"Station 12", "x,y,z", "1,2,3", "4,5,6"}, ',', 3, false, 1, true, '.'},
      {"rows missing trailing fields", {"a,b,c,d", "1,2", "3,4,5,6", "7,8,9,10"}, ',', 4, false, 0, true, '.'},
      {"header one field short", {"x y", "r1 1 2", "r2 3 4"}, ' ', 3, false, 0, true, '.'},
      {"numbers in the first line", {"1,2", "3,4"}, ',', 2, true, 0, false, '.'},
      {"one column", {"value", "1.5", "2.5"}, 0, 1, false, 0, true, '.'},
  };
  for (const Case& c : cases) {
    const kilnutil_cli::SeparatorChoice choice = kilnutil_cli::choose_separator(c.lines);
    EXPECT_EQ(choice.separator, c.separator) << c.name << ": " << choice.reason;
    EXPECT_EQ(choice.fields, c.fields) << c.name;
    EXPECT_EQ(choice.reason == "the library's guess", c.by_library) << c.name << ": " << choice.reason;
    const std::size_t titles = kilnutil_cli::title_lines(c.lines, choice);
    EXPECT_EQ(titles, c.titles) << c.name;
    const std::vector<std::string> table(c.lines.begin() + static_cast<std::ptrdiff_t>(titles), c.lines.end());
    EXPECT_EQ(kilnutil_cli::looks_like_header(table, choice.separator), c.header) << c.name;
    EXPECT_EQ(kilnutil_cli::choose_decimal(table, choice.separator).mark, c.decimal) << c.name;
  }
}

}  // namespace
