// kilnutil invert [FILE|-]: the inverse of a square matrix by
// KilnMath_Inverse. One matrix row per line, numbers separated by blanks,
// commas or semicolons; blank lines are skipped. Prints the inverse row by
// row with 17 significant digits, or reports "singular" (exit 1).
#include "commands.h"

#include <kilnutil/math.h>
#include <kilnutil/numeric.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace kilnutil_cli {

namespace {

constexpr const char* kNumberSeparators = " \t,;\r";

// The numbers of one line; false (with the offending text) when one is not a number.
bool parse_row(const std::string& line, std::vector<double>& row, std::string& bad) {
  for (std::size_t at = line.find_first_not_of(kNumberSeparators); at != std::string::npos;) {
    std::size_t end = line.find_first_of(kNumberSeparators, at);
    if (end == std::string::npos) end = line.size();
    std::string token = line.substr(at, end - at);
    double value = 0;
    if (KILNUTIL_cvtstr2real(token.data(), &value) == 0) {
      bad = line.substr(at, end - at);
      return false;
    }
    row.push_back(value);
    at = line.find_first_not_of(kNumberSeparators, end);
  }
  return true;
}

// "" when the text is a square matrix of order 1 to 128, else the reason.
std::string read_matrix(const std::string& text, std::vector<double>& matrix, int& order) {
  std::vector<std::vector<double>> rows;
  for (std::size_t at = 0; at < text.size();) {
    std::size_t end = text.find('\n', at);
    if (end == std::string::npos) end = text.size();
    std::vector<double> row;
    std::string bad;
    if (!parse_row(text.substr(at, end - at), row, bad)) {
      return "line " + std::to_string(rows.size() + 1) + ": '" + bad + "' is not a number";
    }
    if (!row.empty()) rows.push_back(std::move(row));
    at = end + 1;
  }
  if (rows.empty()) return "no matrix";
  if (rows.size() > KILNUTIL_INVERSE_MAX_ORDER) return "order above " + std::to_string(KILNUTIL_INVERSE_MAX_ORDER);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (rows[i].size() != rows.size()) {
      return "not square: row " + std::to_string(i + 1) + " has " + std::to_string(rows[i].size()) + " numbers, " +
             std::to_string(rows.size()) + " expected";
    }
    matrix.insert(matrix.end(), rows[i].begin(), rows[i].end());
  }
  order = static_cast<int>(rows.size());
  return "";
}

bool read_input(const std::string& path, std::string& text) {
  if (path == "-") {
    text = text_argument("-");
    return true;
  }
  std::ifstream in(path, std::ios::binary);
  if (!in) return false;
  text.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  return !in.bad();
}

}  // namespace

int run_invert(Args args) {
  if (args.size() > 1) return usage_error("invert takes one file: invert [FILE|-]");
  const std::string path = args.empty() ? "-" : args[0];
  if (path.size() > 1 && path[0] == '-') return usage_error("unknown option '" + path + "' (invert [FILE|-])");
  const std::string name = path == "-" ? "(stdin)" : path;

  std::string text;
  if (!read_input(path, text)) return input_error(name + ": cannot open");
  std::vector<double> matrix;
  int order = 0;
  if (const std::string problem = read_matrix(text, matrix, order); !problem.empty()) {
    return input_error(name + ": " + problem);
  }
  const int result =
      KilnMath_Inverse(static_cast<unsigned short>(order), matrix.data(), KILNUTIL_INVERSE_MODE_IN_PLACE);
  if (result == KILNUTIL_INVERSE_SINGULAR) return input_error(name + ": singular");
  if (result != KILNUTIL_INVERSE_OK) return input_error(name + ": cannot invert");
  for (int i = 0; i < order; ++i) {
    for (int j = 0; j < order; ++j) {
      std::printf("%s%.17g", j ? " " : "", matrix[static_cast<std::size_t>(i * order + j)]);
    }
    std::printf("\n");
  }
  return kOk;
}

}  // namespace kilnutil_cli
