// Reading one imported cell as the host does: a number (or the missing
// value), and a date value where the text is an ISO date.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kilnutil_cli {

struct CellValue {
  std::string text;              // the field, enclosing double quotes removed
  std::optional<double> number;  // empty: the missing value
  std::optional<double> date;    // a date value, for ISO dates "YYYY-MM-DD[ HH:MM[:SS]]"
  std::string scratch;           // the number parser's working copy of text
};

// Reads a field (as cut from its record) into cell, reusing its storage.
void read_cell(std::string_view field, CellValue& cell);

// Sets the library's decimal separator ("." or ",").
void set_decimal_mark(char mark);

// A double in its shortest round-trip form.
std::string number_text(double value);
void append_number(double value, std::string& out);

}  // namespace kilnutil_cli
