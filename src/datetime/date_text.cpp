// Date text: the weekday-name table and the ISO 8601 date reader.
#include "datetime/date_text.h"

#include "datetime/calendar.h"
#include "unicode/ascii_case.h"

#include <kilnutil/datetime.h>

#include <cstring>

namespace kiln::datetime {
namespace {

constexpr const char* kWeekdayNames[7] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
constexpr std::size_t kAbbreviationLength = 3;

bool is_blank(char c) { return c == ' ' || c == '\t'; }
bool is_digit(char c) { return c >= '0' && c <= '9'; }

// Exactly `count` digits at p; p moves past them.
bool read_digits(const char*& p, int count, int* value) {
  int v = 0;
  for (int i = 0; i < count; ++i, ++p) {
    if (!is_digit(*p)) return false;
    v = v * 10 + (*p - '0');
  }
  *value = v;
  return true;
}

bool read_separator(const char*& p, char separator) {
  if (*p != separator) return false;
  ++p;
  return true;
}

// " hh:mm[:ss[.fff...]]" after the date; nothing at all is midnight.
bool read_time(const char*& p, CalendarFields* f) {
  if (*p != ' ' && *p != 'T') return true;
  const char* start = p;
  ++p;
  if (!is_digit(*p)) {  // only blanks after the date
    p = start;
    return true;
  }
  if (!read_digits(p, 2, &f->hour) || !read_separator(p, ':') || !read_digits(p, 2, &f->minute)) return false;
  if (*p != ':') return true;
  ++p;
  if (!read_digits(p, 2, &f->second)) return false;
  if (*p != '.') return true;
  ++p;
  if (!is_digit(*p)) return false;
  double scale = 100.0;
  for (; is_digit(*p); ++p, scale /= 10.0) f->milliseconds += (*p - '0') * scale;
  return true;
}

}  // namespace

int weekday_index(const char* text) {
  if (text == nullptr) return -1;
  while (is_blank(*text)) ++text;
  std::size_t length = std::strlen(text);
  while (length > 0 && is_blank(text[length - 1])) --length;
  for (int day = 0; day < 7; ++day) {
    const std::size_t name_length = std::strlen(kWeekdayNames[day]);
    if ((length == name_length || length == kAbbreviationLength) &&
        unicode::equal_ignoring_ascii_case(text, kWeekdayNames[day], length)) {
      return day;
    }
  }
  return -1;
}

double read_iso_date(const char* text) {
  if (text == nullptr) return KILNUTIL_NANUM;
  const char* p = text;
  while (is_blank(*p)) ++p;
  CalendarFields f;
  if (!read_digits(p, 4, &f.year) || !read_separator(p, '-') || !read_digits(p, 2, &f.month) ||
      !read_separator(p, '-') || !read_digits(p, 2, &f.day) || !read_time(p, &f)) {
    return KILNUTIL_NANUM;
  }
  while (is_blank(*p)) ++p;
  double value = 0.0;
  if (*p != '\0' || f.year < 100 || fields_to_value(f, kActiveSystem, &value) != kFieldsConverted)
    return KILNUTIL_NANUM;
  return value;
}

}  // namespace kiln::datetime

double KILNUTIL_str2date(const char* text) { return kiln::datetime::read_iso_date(text); }
