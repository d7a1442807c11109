// Cells as numbers (the library's number parser) and ISO dates (the library's
// date values).
#include "preview_cell.h"

#include "csv_records.h"

#include <kilnutil/datetime.h>
#include <kilnutil/frame.h>
#include <kilnutil/numeric.h>

#include <cctype>
#include <charconv>
#include <cmath>

namespace kilnutil_cli {

namespace {

// Reads exactly `digits` digits at text[at...]; -1 when they are not there.
int fixed_digits(std::string_view text, std::size_t at, int digits) {
  int value = 0;
  for (std::size_t i = at; i < at + static_cast<std::size_t>(digits); ++i) {
    if (i >= text.size() || !std::isdigit(static_cast<unsigned char>(text[i]))) return -1;
    value = value * 10 + (text[i] - '0');
  }
  return value;
}

// "YYYY-MM-DD", optionally followed by " " or "T" and "HH:MM" or "HH:MM:SS".
std::optional<SYSTEMTIME> iso_date(std::string_view text) {
  if (text.size() < 10 || text[4] != '-' || text[7] != '-') return std::nullopt;
  SYSTEMTIME time{};
  const int year = fixed_digits(text, 0, 4), month = fixed_digits(text, 5, 2), day = fixed_digits(text, 8, 2);
  if (year < 0 || month < 1 || day < 1) return std::nullopt;
  if (month > 12 || day > KILNUTIL_GetNumDaysInMonth(static_cast<unsigned short>(month), year)) return std::nullopt;
  time.wYear = static_cast<unsigned short>(year);
  time.wMonth = static_cast<unsigned short>(month);
  time.wDay = static_cast<unsigned short>(day);
  if (text.size() == 10) return time;
  if (text.size() < 16) return std::nullopt;
  const int hour = fixed_digits(text, 11, 2), minute = fixed_digits(text, 14, 2);
  if ((text[10] != ' ' && text[10] != 'T') || hour < 0 || hour > 23 || text[13] != ':' || minute < 0 || minute > 59) {
    return std::nullopt;
  }
  int second = 0;
  if (text.size() == 19 && text[16] == ':') {
    second = fixed_digits(text, 17, 2);
    if (second < 0 || second > 59) return std::nullopt;
  } else if (text.size() != 16) {
    return std::nullopt;
  }
  time.wHour = static_cast<unsigned short>(hour);
  time.wMinute = static_cast<unsigned short>(minute);
  time.wSecond = static_cast<unsigned short>(second);
  return time;
}

// Whether the library's number grammar can accept the text: it starts (after
// blanks) with a digit, a sign, a decimal mark, a quote of a character
// constant, or the first letter of an infinity or NaN name. Other text is
// not handed to the parser.
bool may_be_number(std::string_view text) {
  const std::size_t at = text.find_first_not_of(" \t");
  if (at == std::string_view::npos) return false;
  const auto c = static_cast<unsigned char>(text[at]);
  if (c >= 0x80) return false;
  return !std::isalpha(c) || c == 'i' || c == 'I' || c == 'n' || c == 'N';
}

}  // namespace

void read_cell(std::string_view field, CellValue& cell) {
  assign_field_text(field, cell.text);
  cell.number.reset();
  cell.date.reset();
  if (cell.text.empty()) return;
  if (const std::optional<SYSTEMTIME> time = iso_date(cell.text)) {
    double value = 0;
    if (SystemTimeToJulianDate(&value, &*time, nullptr) == 1) cell.date = value;
    return;  // a date is not a number ("2024-03-01" has text after "2024")
  }
  if (!may_be_number(cell.text)) return;
  cell.scratch = cell.text;  // the parser may leave its text changed
  const double number = KILNUTIL_str2real(cell.scratch.data());
  if (!is_missing_value(number)) cell.number = number;
}

void set_decimal_mark(char mark) {
  char text[2] = {mark, '\0'};
  KILNUTIL_cvtstr2real_ex(text, nullptr, 0, nullptr);
}

void append_number(double value, std::string& out) {
  char buffer[64];
  // Whole numbers below 2^53 print as integers, the shortest form already.
  constexpr double kExactIntegers = 9007199254740992.0;
  const bool whole = value > -kExactIntegers && value < kExactIntegers &&
                     value == static_cast<double>(static_cast<long long>(value)) &&
                     !(value == 0 && std::signbit(value));
  const auto result = whole ? std::to_chars(buffer, buffer + sizeof buffer, static_cast<long long>(value))
                            : std::to_chars(buffer, buffer + sizeof buffer, value);
  out.append(buffer, result.ptr);
}

std::string number_text(double value) {
  std::string text;
  append_number(value, text);
  return text;
}

}  // namespace kilnutil_cli
