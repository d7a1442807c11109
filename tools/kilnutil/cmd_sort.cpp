// kilnutil sort [--desc] [--column N] [--separator C] [FILE|-]: one column of
// a delimited text file, imported as `preview` imports it (encoding detected,
// separator and decimal separator found, text that is not a number read as
// the missing value), sorted by KilnMath_Sort. Prints each value to 17
// significant digits (or the missing-value text) with its line number.
#include "commands.h"
#include "preview_cell.h"
#include "preview_file.h"
#include "stdin_file.h"

#include <kilnutil/frame.h>
#include <kilnutil/math.h>
#include <kilnutil/numeric.h>

#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

namespace kilnutil_cli {

namespace {

struct SortOptions {
  std::string path = "-";
  bool descending = false;
  int column = 1;      // 1-based
  int separator = 0;   // 0: found from the text
};

bool parse_column(const char* text, int& column) {
  char* end = nullptr;
  const long value = std::strtol(text, &end, 10);
  if (end == text || *end != '\0' || value < 1 || value > 1000000) return false;
  column = static_cast<int>(value);
  return true;
}

bool parse_separator(const std::string& text, int& separator) {
  if (text == "tab" || text == "\\t") {
    separator = '\t';
  } else if (text.size() == 1 && text[0] != '\n' && text[0] != '\r') {
    separator = static_cast<unsigned char>(text[0]);
  } else {
    return false;
  }
  return true;
}

int parse_sort_options(Args args, SortOptions& options) {
  bool have_path = false;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string arg = args[i];
    const bool has_value = i + 1 < args.size();
    if (arg == "--desc") {
      options.descending = true;
    } else if (arg == "--column") {
      if (!has_value || !parse_column(args[++i], options.column)) return usage_error("--column needs a number from 1");
    } else if (arg == "--separator") {
      if (!has_value || !parse_separator(args[++i], options.separator)) {
        return usage_error("--separator needs one character or 'tab'");
      }
    } else if (arg.size() > 1 && arg[0] == '-') {
      return usage_error("unknown option '" + arg + "' (sort [--desc] [--column N] [--separator C] [FILE|-])");
    } else if (have_path) {
      return usage_error("sort takes one file");
    } else {
      options.path = arg;
      have_path = true;
    }
  }
  return kOk;
}

// The column's cells, one per line; lines without the column give the missing value.
std::vector<double> read_column(std::string text, int separator, int column) {
  std::vector<double> keys;
  if (!text.empty() && text.back() == '\n') text.pop_back();
  for (std::size_t at = 0; at <= text.size();) {
    std::size_t end = text.find('\n', at);
    if (end == std::string::npos) end = text.size();
    std::string line = text.substr(at, end - at);
    const std::vector<char*> fields = split_fields(line, separator);
    const auto wanted = static_cast<std::size_t>(column - 1);
    const std::optional<double> number = wanted < fields.size() ? read_cell(fields[wanted]).number : std::nullopt;
    keys.push_back(number ? *number : KILNUTIL_NANUM);
    at = end + 1;
  }
  return keys;
}

}  // namespace

int run_sort(Args args) {
  SortOptions options;
  if (const int rc = parse_sort_options(args, options); rc != kOk) return rc;
  const std::string name = options.path == "-" ? "(stdin)" : options.path;
  StdinFile stdin_copy;
  const std::string path = options.path == "-" ? stdin_copy.path() : options.path;
  if (path.empty()) return input_error(name + ": cannot keep a copy of standard input");

  Utf8TextFile file(path);
  if (!file.ok()) return input_error(name + ": " + file.error());
  std::string text = read_head(file);
  int separator = options.separator;
  if (separator == 0) {
    separator = find_table_layout(text).separator;
  } else if (separator == ';') {
    use_decimal_comma();
  }
  std::vector<char> block(1 << 20);
  for (std::size_t got; (got = file.read(block.data(), block.size())) > 0;) text.append(block.data(), got);
  if (text.empty()) return kOk;

  std::vector<double> keys = read_column(std::move(text), separator, options.column);
  std::vector<unsigned> rows(keys.size());
  for (std::size_t i = 0; i < rows.size(); ++i) rows[i] = static_cast<unsigned>(i + 1);
  const auto flags = static_cast<unsigned short>(options.descending ? KILNUTIL_SORT_DESCENDING : 0);
  if (KilnMath_Sort(static_cast<int>(keys.size()), rows.data(), keys.data(), flags) != KILNUTIL_SORT_OK) {
    return input_error(name + ": too many rows to sort (pending-range stack exhausted)");
  }
  for (std::size_t i = 0; i < keys.size(); ++i) {
    if (is_missing_value(keys[i])) {
      std::printf("%s\t%u\n", KILNUTIL_get_missing_as_text(nullptr), rows[i]);
    } else {
      std::printf("%.17g\t%u\n", keys[i], rows[i]);
    }
  }
  return kOk;
}

}  // namespace kilnutil_cli
