// Separator, titles, header and decimal mark from the first lines.
#include "separator_guess.h"

#include "csv_records.h"

#include <kilnutil/text.h>

#include <algorithm>
#include <cctype>
#include <map>
#include <string_view>

namespace kilnutil_cli {

namespace {

constexpr int kLibraryLines = 10;
constexpr char kCandidates[] = {',', ';', '\t', '|', kBlankSeparator};

struct FieldCounts {
  int mode = 1;      // the count most lines share
  int agreeing = 0;  // lines with that count
  int single = 0;    // lines with one field
};

FieldCounts count_fields(const std::vector<std::string>& lines, char separator) {
  std::map<int, int> lines_by_count;
  std::vector<std::string_view> fields;
  FieldCounts counts;
  for (const std::string& line : lines) {
    split_fields(line, separator, fields);
    const int n = static_cast<int>(fields.size());
    ++lines_by_count[n];
    counts.single += n == 1;
  }
  for (const auto& [n, how_many] : lines_by_count) {
    if (how_many > counts.agreeing || (how_many == counts.agreeing && n > counts.mode)) {
      counts.mode = n;
      counts.agreeing = how_many;
    }
  }
  return counts;
}

// The host's way: a table whose lines agree on ";" with "," excluded is
// semicolon-separated; otherwise tab, "," or ";" as the library finds it.
char library_separator(const std::vector<std::string>& lines) {
  std::string head;
  const int count = static_cast<int>(std::min<std::size_t>(lines.size(), kLibraryLines));
  for (int i = 0; i < count; ++i) head += lines[static_cast<std::size_t>(i)] + "\n";
  head += "\n";  // every examined line needs a following one
  const int previous = KILNUTIL_SetSeparatorExclusionChar(',');
  int found = KILNUTILT_FindSeparator(head.data(), 0, count);
  KILNUTIL_SetSeparatorExclusionChar(previous);
  if (found != ';') found = KILNUTILT_FindSeparator(head.data(), 0, count);
  return found == '\t' || found == ',' || found == ';' ? static_cast<char>(found) : 0;
}

bool is_number_text(std::string_view text, char decimal) {
  std::size_t at = 0, digits = 0;
  if (at < text.size() && (text[at] == '-' || text[at] == '+')) ++at;
  for (; at < text.size() && std::isdigit(static_cast<unsigned char>(text[at])); ++at) ++digits;
  if (at < text.size() && text[at] == decimal) {
    for (++at; at < text.size() && std::isdigit(static_cast<unsigned char>(text[at])); ++at) ++digits;
  }
  if (digits > 0 && at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
    ++at;
    if (at < text.size() && (text[at] == '-' || text[at] == '+')) ++at;
    if (at == text.size()) return false;
    while (at < text.size() && std::isdigit(static_cast<unsigned char>(text[at]))) ++at;
  }
  return digits > 0 && at == text.size();
}

bool has_fraction(std::string_view text, char decimal) {
  const std::size_t at = text.find(decimal);
  return at != std::string_view::npos && at + 1 < text.size() && is_number_text(text, decimal);
}

}  // namespace

std::string separator_name(char separator) {
  switch (separator) {
    case 0: return "none";
    case '\t': return "tab";
    case kBlankSeparator: return "blank";
    default: return std::string("\"") + separator + "\"";
  }
}

SeparatorChoice choose_separator(const std::vector<std::string>& lines) {
  SeparatorChoice choice;
  if (lines.empty()) {
    choice.reason = "no data lines";
    return choice;
  }
  const char library = library_separator(lines);
  const int total = static_cast<int>(lines.size());
  if (library != 0) {
    const FieldCounts counts = count_fields(lines, library);
    if (counts.mode > 1 && counts.single * 2 <= total) {
      choice.separator = library;
      choice.fields = counts.mode;
      choice.reason = "the library's guess";
      return choice;
    }
  }
  FieldCounts best;
  for (const char candidate : kCandidates) {
    const FieldCounts counts = count_fields(lines, candidate);
    if (counts.mode > 1 && counts.agreeing > best.agreeing) {
      best = counts;
      choice.separator = candidate;
    }
  }
  const std::string library_said =
      library == 0 ? "the library found no separator"
                   : "the library's guess " + separator_name(library) + " leaves most lines with one field";
  if (choice.separator == 0) {
    choice.reason = library_said + ", and no candidate gives lines more than one field";
    return choice;
  }
  choice.fields = best.mode;
  choice.reason = "chosen by the tool: " + std::to_string(best.agreeing) + " of " + std::to_string(total) +
                  " lines have " + std::to_string(best.mode) + " fields; " + library_said;
  return choice;
}

std::size_t title_lines(const std::vector<std::string>& lines, const SeparatorChoice& choice) {
  std::vector<std::string_view> fields;
  for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
    split_fields(lines[i], choice.separator, fields);
    const int n = static_cast<int>(fields.size());
    if (n > 1 && n + 1 >= choice.fields) return i;
  }
  return 0;
}

bool looks_like_header(const std::vector<std::string>& lines, char separator) {
  if (lines.size() < 2) return false;
  std::vector<std::string_view> fields;
  split_fields(lines.front(), separator, fields);
  for (const std::string_view field : fields) {
    const std::string text = field_text(field);
    if (is_number_text(text, '.') || is_number_text(text, ',')) return false;
  }
  return true;
}

DecimalChoice choose_decimal(const std::vector<std::string>& lines, char separator) {
  int points = 0, commas = 0;
  std::vector<std::string_view> fields;
  for (const std::string& line : lines) {
    split_fields(line, separator, fields);
    for (const std::string_view field : fields) {
      const std::string text = field_text(field);
      points += has_fraction(text, '.');
      commas += has_fraction(text, ',');
    }
  }
  DecimalChoice choice;
  choice.mark = commas > points ? ',' : '.';
  choice.reason = "from the data: " + std::to_string(points) + " numbers with a decimal point, " +
                  std::to_string(commas) + " with a decimal comma";
  return choice;
}

}  // namespace kilnutil_cli
