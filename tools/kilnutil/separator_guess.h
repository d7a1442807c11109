// The layout of delimited text from its first lines: the separator (the
// library's guess first, the tool's count of fields per line when that guess
// leaves most lines with one field), the title lines before the table, the
// header line and the decimal mark.
#pragma once

#include <string>
#include <vector>

namespace kilnutil_cli {

struct SeparatorChoice {
  char separator = 0;  // 0: none, each line is one field
  int fields = 1;      // the field count most lines share
  std::string reason;  // why, in words
};

// lines: the first data lines (no comments, no blank lines).
SeparatorChoice choose_separator(const std::vector<std::string>& lines);

// The number of leading lines that are titles: lines of one field, or of
// two or more fewer than the table, before the first line of the table (a
// header one field short, as some writers make it, is not a title).
std::size_t title_lines(const std::vector<std::string>& lines, const SeparatorChoice& choice);

// Whether the first line is a header: none of its fields is a number and
// another line follows.
bool looks_like_header(const std::vector<std::string>& lines, char separator);

struct DecimalChoice {
  char mark = '.';
  std::string reason;
};

// "," when more fields of the data lines are numbers with a decimal comma
// than with a decimal point, else ".".
DecimalChoice choose_decimal(const std::vector<std::string>& lines, char separator);

// How a separator is named to the user: "\",\"", "tab", "blank", "none".
std::string separator_name(char separator);

}  // namespace kilnutil_cli
