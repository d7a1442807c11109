// Reading one imported cell as the host does: a number (or the missing
// value), and a date value where the text is an ISO date.
#pragma once

#include <optional>
#include <string>

namespace kilnutil_cli {

struct CellValue {
  std::string text;            // the field, its enclosing double quotes removed
  std::optional<double> number;  // empty: the missing value
  std::optional<double> date;    // a date value, for ISO dates "YYYY-MM-DD[ HH:MM[:SS]]"
};

CellValue read_cell(std::string field);

}  // namespace kilnutil_cli
