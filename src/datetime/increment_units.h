// The units in which the date-editing operations express an increment: fixed
// lengths (second to week), stepped by plain addition, and the calendar units
// month, quarter and year, stepped on the calendar.
#pragma once

namespace kiln::datetime {

enum IncrementUnitCode : int {
  kNoUnit = 0,
  kSecondUnit = 1,
  kMinuteUnit = 2,
  kHourUnit = 3,
  kDayUnit = 4,
  kWeekUnit = 5,
  kMonthUnit = 6,
  kQuarterUnit = 7,
  kYearUnit = 8,
};

inline bool is_calendar_unit(int code) { return code >= kMonthUnit && code <= kYearUnit; }

struct IncrementInUnits {
  int code = kNoUnit;
  double count = 0.0;  // signed; whole for the calendar units
};

// An increment in days as a count of the largest unit that fits it: a whole
// number of years (365 to 366 days each), quarters (89 to 92) or months
// (28 to 31), else the largest fixed unit not longer than it.
IncrementInUnits classify_increment(double days);

// The nominal length of a unit in days (1 for kNoUnit and unknown codes).
double unit_length_days(int code);

// How many of unit `smaller` make one `larger` (a year is 4 quarters, a
// quarter 3 months); both calendar units, smaller <= larger.
int calendar_units_per(int larger, int smaller);

}  // namespace kiln::datetime
