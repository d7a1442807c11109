#include "datetime/calendar.h"

#include "datetime/date_system.h"
#include "datetime/duration.h"

#include <cmath>

namespace kiln::datetime {
namespace {

constexpr int kTwoDigitYearLimit = 100;
constexpr int kTwoDigitPivot = 45;
constexpr long kDaysPer400Years = 146097;
constexpr long kDaysPer100Years = 36524;
constexpr long kDaysPer4Years = 1461;
constexpr long kDaysPerYear = 365;
constexpr int kLeapDayIndex = 59;  // 29 February, counted from 0 in the year

int full_year(int year) {
  if (year >= kTwoDigitYearLimit) return year;
  return year + (year < kTwoDigitPivot ? 2000 : 1900);
}

bool time_is_valid(const CalendarFields& f) { return f.hour <= 23 && f.minute <= 59 && f.second <= 59; }

struct YearAndDay {
  int year;
  int day_index;  // 0-based day of the year
};

// Gregorian decomposition by 400-year cycles, centuries, 4-year cycles and
// years, counted from 0001-01-01.
YearAndDay split_absolute_day(long absolute) {
  const long from_year_one = absolute - (kDaysPerYear + 1);  // 0000 is a leap year
  const long cycles400 = from_year_one / kDaysPer400Years;
  long rest = from_year_one % kDaysPer400Years;
  const long centuries = rest / kDaysPer100Years;
  rest %= kDaysPer100Years;
  const long cycles4 = rest / kDaysPer4Years;
  rest %= kDaysPer4Years;
  const long years = rest / kDaysPerYear;
  const int year = static_cast<int>(400 * cycles400 + 100 * centuries + 4 * cycles4 + years);
  // The last day of a leap cycle shows as a fifth year or century: it is
  // 31 December of the year before.
  if (centuries == 4 || years == 4) return {year, 365};
  return {year + 1, static_cast<int>(rest % kDaysPerYear)};
}

void set_month_and_day(int year, int day_index, CalendarFields* f) {
  int index = day_index;
  if (is_leap_year(year)) {
    if (index == kLeapDayIndex) {
      f->month = 2;
      f->day = 29;
      return;
    }
    if (index > kLeapDayIndex) --index;
  }
  int month = 1;
  while (month < 12 && kCumulativeDays[month] <= index) ++month;
  f->month = month;
  f->day = index - kCumulativeDays[month - 1] + 1;
}

}  // namespace

bool is_leap_year(int year) { return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0); }

int month_length(int month1, int year) {
  if (month1 == 2 && is_leap_year(year)) return 29;
  return kCumulativeDays[month1] - kCumulativeDays[month1 - 1];
}

long absolute_day(int year, int month1, int day) {
  const long y = year;
  long days = y * 365 + y / 4 - y / 100 + y / 400 + kCumulativeDays[month1 - 1] + day;
  if (month1 <= 2 && is_leap_year(year)) --days;
  return days;
}

int fields_to_value(const CalendarFields& fields, double offset, double* value) {
  const int year = full_year(fields.year);
  if (year > kMaxYear) return kFieldsInvalid;
  if (fields.month < 1 || fields.month > 12 || fields.day == 0) return kFieldsInvalid;
  if (fields.day > month_length(fields.month, year)) return kDayBeyondMonth;
  if (!time_is_valid(fields)) return kFieldsInvalid;
  const double day_offset = offset == kActiveSystem ? active_offset() : offset;
  const double seconds = (fields.hour * 60.0 + fields.minute) * 60.0 + fields.second + fields.milliseconds / 1000.0;
  *value = static_cast<double>(absolute_day(year, fields.month, fields.day) - kAbsoluteDayOfDayZero) + day_offset +
           seconds / kSecondsPerDay;
  return kFieldsConverted;
}

bool value_to_fields(double value, int decimals, CalendarFields* fields) {
  const double serial = value - active_offset();
  const double day = std::floor(serial);
  if (!(day >= kFirstDay && day <= kLastDay)) return false;

  stTime time{};
  split_duration(serial - day, &time, decimals);
  const long absolute = static_cast<long>(day) + static_cast<long>(time.days) + kAbsoluteDayOfDayZero;

  CalendarFields f;
  f.hour = time.hours;
  f.minute = time.minutes;
  f.second = time.seconds;
  f.milliseconds = time.milliseconds;
  f.day_of_week = static_cast<int>((absolute - 1) % 7) + 1;
  const YearAndDay split = split_absolute_day(absolute);
  f.year = split.year;
  f.day_of_year = split.day_index + 1;
  set_month_and_day(split.year, split.day_index, &f);
  *fields = f;
  return true;
}

}  // namespace kiln::datetime
