// KILNUTIL_dateinc: the date-editing operations the host performs on a date
// value through one entry point (calendar steps, increments divided or
// snapped, weekday and day-of-month moves, queries).
#include "frame/missing_value.h"
#include "datetime/calendar.h"
#include "datetime/date_text.h"
#include "datetime/increment_units.h"
#include "numeric/integer_rule.h"

#include <kilnutil/datetime.h>
#include <kilnutil/numeric.h>

#include <cmath>
#include <cstdint>
#include <cstring>

using namespace kiln::datetime;

namespace {

constexpr int kRecordDecimals = 3;
constexpr long long kMaxSteppedYear = 65534;
constexpr double kWholeTolerance = 1e-5;
constexpr double kLargestStep = 1e9;

enum Operation : unsigned short {
  kAdd = KILNUTIL_DATEINC_ADD,
  kCalendarStep = KILNUTIL_DATEINC_CALENDAR_STEP,
  kDivideIncrement = KILNUTIL_DATEINC_DIVIDE_INCREMENT,
  kFractionalStep = KILNUTIL_DATEINC_FRACTIONAL_STEP,
  kSnapIncrement = KILNUTIL_DATEINC_SNAP_INCREMENT,
  kQuery = KILNUTIL_DATEINC_QUERY,
  kMoveToWeekday = KILNUTIL_DATEINC_MOVE_TO_WEEKDAY,
  kSetFromText = KILNUTIL_DATEINC_SET_FROM_TEXT,
  kMoveToDayRoundingAt17 = KILNUTIL_DATEINC_MOVE_TO_DAY_ROUNDING_AT_17,
  kMoveToFirstRoundingAt15 = KILNUTIL_DATEINC_MOVE_TO_FIRST_ROUNDING_AT_15,
  kIsLeapDay = KILNUTIL_DATEINC_IS_LEAP_DAY,
};

constexpr unsigned kQueryDayOfWeek = KILNUTIL_DATEINC_QUERY_DAY_OF_WEEK;
constexpr unsigned kQueryDayOfMonth = KILNUTIL_DATEINC_QUERY_DAY_OF_MONTH;

long long floor_div(long long a, long long b) { return a / b - ((a % b != 0) && ((a < 0) != (b < 0))); }

bool decompose(double value, CalendarFields* f) { return value_to_fields(value, kRecordDecimals, f); }

int record_weekday(const CalendarFields& f) { return f.day_of_week - 1; }  // 0 = Sunday

// Adds n months (code 6), quarters (7) or years (other codes) to the date
// and converts it back with its milliseconds; a day beyond the new month's
// end is lowered until the date exists.
bool step_calendar(const CalendarFields& from, int code, long long n, double* value) {
  long long month_index = from.month - 1;
  long long year = from.year;
  if (code == kMonthUnit) {
    month_index += n;
  } else if (code == kQuarterUnit) {
    month_index += 3 * n;
  } else {
    year += n;
  }
  year += floor_div(month_index, 12);
  month_index -= 12 * floor_div(month_index, 12);
  if (year > kMaxSteppedYear || year < -kMaxSteppedYear) return false;
  CalendarFields f = from;
  f.year = static_cast<int>(year);
  f.month = static_cast<int>(month_index) + 1;
  for (;;) {
    const int result = fields_to_value(f, kActiveSystem, value);
    if (result != kDayBeyondMonth) return result == kFieldsConverted;
    --f.day;
  }
}

// Converts fields whose day of month may lie outside the month: the days
// beyond (or before) it run on into the neighbouring months.
bool fields_to_value_rolling(CalendarFields f, double* value) {
  const int day = f.day;
  f.day = 1;
  double first_of_month = 0.0;
  if (fields_to_value(f, kActiveSystem, &first_of_month) != kFieldsConverted) return false;
  *value = first_of_month + (day - 1);
  return true;
}

// A small integer argument (weekday, day of month). Hosts pass either a
// 32-bit integer in the argument's first four bytes or a double holding a
// whole number; a whole double up to 2^20 has zeros there, an integer other
// than 0 does not, so the two are told apart by those four bytes.
int small_integer_argument(const double* argument) {
  std::int32_t as_integer = 0;
  std::memcpy(&as_integer, argument, sizeof as_integer);
  if (as_integer != 0) return as_integer;
  const double as_double = *argument;
  return as_double == std::trunc(as_double) && std::fabs(as_double) <= 64 ? static_cast<int>(as_double) : 0;
}

void clear_time_of_day(CalendarFields* f) {
  f->hour = f->minute = f->second = 0;
  f->milliseconds = 0.0;
}

void advance_month(CalendarFields* f) {
  if (++f->month > 12) {
    f->month = 1;
    ++f->year;
  }
}

int add(double* value, const double* argument) {
  *value += *argument;
  return 0;
}

int calendar_step(double* value, const double* argument, unsigned* inout) {
  const IncrementInUnits unit = classify_increment(*argument);
  CalendarFields f;
  double stepped = 0.0;
  if (is_calendar_unit(unit.code) && decompose(*value, &f) &&
      step_calendar(f, unit.code, static_cast<long long>(unit.count), &stepped)) {
    *value = stepped;
    if (inout) *inout = static_cast<unsigned>(unit.code);
    return 0;
  }
  *value += *argument;
  if (inout) *inout = kNoUnit;
  return 0;
}

bool is_whole(double x) { return std::fabs(x - std::round(x)) <= kWholeTolerance && std::round(x) != 0; }

// Splits a calendar increment into `count` equal parts, in the largest unit
// where that is a whole number; returns the unit of the part stored.
int divide_increment(double* value, const double* argument, const unsigned* inout) {
  if (*inout < 1) return 0;
  const IncrementInUnits unit = classify_increment(*argument);
  if (!is_calendar_unit(unit.code)) return 0;
  const double count = *inout;
  int stored_unit = 0;
  for (int code = unit.code; code >= kMonthUnit; --code) {
    const double amount = unit.count * calendar_units_per(unit.code, code);
    if (!is_whole(amount)) continue;
    const double whole = std::round(amount);
    if (std::fmod(whole, count) == 0) {
      *value = whole / count;
      return code;
    }
    if (std::fmod(count, whole) == 0) {
      *value = whole / count;
      stored_unit = code;
    }
  }
  return stored_unit;
}

int fractional_step(double* value, const double* argument, const unsigned* inout) {
  const int code = inout ? static_cast<int>(*inout) : kNoUnit;
  const double units = *argument;
  CalendarFields f;
  if (code >= kMonthUnit && std::fabs(units) < kLargestStep && decompose(*value, &f)) {
    const double whole = std::round(units);
    const double rest = units - whole;
    double stepped = 0.0;
    if (step_calendar(f, code, static_cast<long long>(whole), &stepped)) {
      double further = 0.0;
      if (rest != 0 && step_calendar(f, code, static_cast<long long>(whole) + (rest > 0 ? 1 : -1), &further)) {
        stepped += std::fabs(rest) * (further - stepped);
      }
      *value = stepped;
      return 0;
    }
  }
  *value += units * unit_length_days(code);
  return 0;
}

struct SnapTarget {
  double seconds;
  double within;
  unsigned code;
};

constexpr SnapTarget kSnapTargets[] = {
    {604800.0, 86400.0, 16},     // a week
    {2678400.0, 604800.0, 32},   // 31 days
    {7862400.0, 1209600.0, 64},  // 91 days
};

// An increment in days snapped to a week, 31 days or 91 days when near one.
int snap_increment(double* value, unsigned* inout) {
  const double seconds = std::fabs(*value) * 86400.0;
  unsigned code = 0;
  double snapped = seconds;
  for (const SnapTarget& target : kSnapTargets) {
    if (std::fabs(seconds - target.seconds) <= target.within) {
      snapped = target.seconds;
      code = target.code;
      break;
    }
  }
  *value = std::copysign(snapped / 86400.0, *value);
  if (inout) *inout = code;
  return 0;
}

int query(const double* value, double* argument, const unsigned* inout) {
  const unsigned code = *inout & 0xFFFFu;
  int answer = 0;
  CalendarFields f;
  if ((code == kQueryDayOfWeek || code == kQueryDayOfMonth) && decompose(*value, &f)) {
    answer = code == kQueryDayOfWeek ? record_weekday(f) : f.day;
  }
  std::memcpy(argument, &answer, sizeof answer);  // the int in the slot's first bytes
  return static_cast<int>(code);
}

int move_to_weekday(double* value, const double* argument) {
  CalendarFields f;
  if (!decompose(*value, &f)) return 0;
  const int target = small_integer_argument(argument);
  *value += target - record_weekday(f);
  return 0;
}

int set_from_text(double* value, const double* argument) {
  const char* text = reinterpret_cast<const char*>(argument);
  int day = 0;
  const bool is_day = kiln::numeric::convert_integer_text(text, &day) && day >= 1 && day <= 31;
  const int weekday = is_day ? -1 : weekday_index(text);
  if (is_day || weekday >= 0) {
    CalendarFields f;
    if (!decompose(*value, &f)) return 0;
    f.day = is_day ? day : f.day + weekday - record_weekday(f);
    clear_time_of_day(&f);
    fields_to_value_rolling(f, value);
    return 0;
  }
  const double date = kiln::datetime::read_iso_date(text);
  if (!kiln::frame::is_missing(date)) *value = date;
  return 0;
}

// Moves to the next month when the day lies more than `threshold` days past
// day d, then sets the day of month.
int move_to_day(double* value, const double* argument, int threshold, bool to_first) {
  CalendarFields f;
  if (!decompose(*value, &f)) return 0;
  const int d = small_integer_argument(argument);
  if (f.day - d > threshold) advance_month(&f);
  if (to_first) {
    f.day = 1;
  } else if (d != 0) {
    f.day = d;
  }
  fields_to_value_rolling(f, value);
  return 0;
}

int is_leap_day(const double* value) {
  CalendarFields f;
  return decompose(*value, &f) && f.month == 2 && f.day == 29 ? 1 : 0;
}

}  // namespace

int KILNUTIL_dateinc(double* value, double* argument, unsigned short operation, unsigned int* inout) {
  if (value == nullptr) return 0;
  switch (operation) {
    case kAdd: return argument ? add(value, argument) : 0;
    case kCalendarStep: return argument ? calendar_step(value, argument, inout) : 0;
    case kDivideIncrement: return argument && inout ? divide_increment(value, argument, inout) : 0;
    case kFractionalStep: return argument ? fractional_step(value, argument, inout) : 0;
    case kSnapIncrement: return snap_increment(value, inout);
    case kQuery: return argument && inout ? query(value, argument, inout) : 0;
    case kMoveToWeekday: return argument ? move_to_weekday(value, argument) : 0;
    case kSetFromText: return argument ? set_from_text(value, argument) : 0;
    case kMoveToDayRoundingAt17: return argument ? move_to_day(value, argument, 17, false) : 0;
    case kMoveToFirstRoundingAt15: return argument ? move_to_day(value, argument, 15, true) : 0;
    case kIsLeapDay: return is_leap_day(value);
    default: return 0;
  }
}
