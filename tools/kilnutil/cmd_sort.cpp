// kilnutil sort [--desc] [--column N] [--separator C] [FILE|-]: one column of
// a delimited text file, imported as `preview` imports it (encoding detected,
// separator and decimal separator found, text that is not a number read as
// the missing value), sorted by KilnMath_Sort. Prints each value to 17
// significant digits (or the missing-value text) with its line number.
#include "commands.h"
#include "csv_records.h"
#include "file_io.h"
#include "preview_cell.h"
#include "separator_guess.h"
#include "text_decoder.h"

#include <kilnutil/frame.h>
#include <kilnutil/math.h>
#include <kilnutil/numeric.h>

#include <algorithm>
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
  int column = 1;     // 1-based
  int separator = 0;  // 0: found from the text
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

// The records of the input (the tool's decoder: encoding decided on the whole
// file, quoted fields may span lines); false with the reason on failure.
bool read_records(InputFile& input, std::vector<std::string>& records, std::string& error) {
  TextDecoder decoder(input, DecodeOptions{});
  if (!decoder.start()) {
    error = decoder.error();
    return false;
  }
  RecordReader reader(decoder);
  for (std::string_view record; reader.next(record);) records.emplace_back(record);
  error = reader.error();
  return error.empty();
}

// The separator as asked, or as the first lines show it; the decimal mark
// from the data either way.
char choose_layout(const std::vector<std::string>& records, int asked) {
  constexpr std::size_t kHeadLines = 50;
  const std::vector<std::string> head(
      records.begin(), records.begin() + static_cast<std::ptrdiff_t>(std::min(kHeadLines, records.size())));
  const char separator = asked != 0 ? static_cast<char>(asked) : choose_separator(head).separator;
  set_decimal_mark(choose_decimal(head, separator).mark);
  return separator;
}

// The column's cells, one per record; records without the column give the
// missing value.
std::vector<double> read_column(const std::vector<std::string>& records, char separator, int column) {
  std::vector<double> keys;
  keys.reserve(records.size());
  std::vector<std::string_view> fields;
  CellValue cell;
  const auto wanted = static_cast<std::size_t>(column - 1);
  for (const std::string& record : records) {
    split_fields(record, separator, fields);
    if (wanted < fields.size()) read_cell(fields[wanted], cell);
    keys.push_back(wanted < fields.size() && cell.number ? *cell.number : KILNUTIL_NANUM);
  }
  return keys;
}

}  // namespace

int run_sort(Args args) {
  SortOptions options;
  if (const int rc = parse_sort_options(args, options); rc != kOk) return rc;
  InputFile input;
  if (!input.open(options.path)) return file_error(options.path, input.error());
  std::vector<std::string> records;
  std::string error;
  if (!read_records(input, records, error)) return file_error(options.path, error);
  if (records.empty()) return kOk;
  std::vector<double> keys = read_column(records, choose_layout(records, options.separator), options.column);
  std::vector<unsigned> rows(keys.size());
  for (std::size_t i = 0; i < rows.size(); ++i) rows[i] = static_cast<unsigned>(i + 1);
  const auto flags = static_cast<unsigned short>(options.descending ? KILNUTIL_SORT_DESCENDING : 0);
  if (KilnMath_Sort(static_cast<int>(keys.size()), rows.data(), keys.data(), flags) != KILNUTIL_SORT_OK) {
    return file_error(options.path, "too many rows to sort (pending-range stack exhausted)");
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
