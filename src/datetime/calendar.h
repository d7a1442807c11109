// The two conversions every date function goes through: calendar fields to
// a date value and back, with the Gregorian rules they rest on.
#pragma once

#include <kilnutil/frame.h>

namespace kiln::datetime {

// Cumulative days before each month of a common year (and 365 at the end).
inline constexpr int kCumulativeDays[13] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334, 365};

inline constexpr int kFirstDay = -657435;              // 0099-12-31
inline constexpr int kLastDay = 2958465;               // 9999-12-31
inline constexpr long kAbsoluteDayOfDayZero = 693959;  // 1899-12-30 counted from 0000-01-01
inline constexpr double kSecondsPerDay = 86400.0;
inline constexpr int kMaxYear = 9999;

// Stands for the active date system wherever an offset is asked for.
inline constexpr double kActiveSystem = KILNUTIL_NANUM;

bool is_leap_year(int year);
// Days in month1 (1..12) of year by the leap rule.
int month_length(int month1, int year);
// Days from 0000-01-01 (day 0) to the date, for a valid month.
long absolute_day(int year, int month1, int day);

struct CalendarFields {
  int year = 0;
  int month = 1;  // 1..12
  int day = 1;    // 1..31
  int hour = 0;
  int minute = 0;
  int second = 0;
  double milliseconds = 0.0;
  int day_of_week = 1;  // 1 = Sunday .. 7 = Saturday
  int day_of_year = 1;  // 1..366
};

inline constexpr int kFieldsConverted = 1;
inline constexpr int kFieldsInvalid = 0;
inline constexpr int kDayBeyondMonth = -1;

// A year below 100 counts as two digits (below 45: 20xx, else 19xx).
// Returns kFieldsConverted, kFieldsInvalid or kDayBeyondMonth; *value is
// written only on success. offset kActiveSystem: the active system's.
int fields_to_value(const CalendarFields& fields, double offset, double* value);

// A value of the active system to fields, the time rounded to `decimals`
// places of the second (a carry to 24:00 starts the next day). false when
// the day lies outside kFirstDay..kLastDay.
bool value_to_fields(double value, int decimals, CalendarFields* fields);

// The serial day number (days since 1899-12-30) of a valid date.
inline long serial_day(int year, int month1, int day) {
  return absolute_day(year, month1, day) - kAbsoluteDayOfDayZero;
}

}  // namespace kiln::datetime
