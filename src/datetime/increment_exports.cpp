// Stepping a date value by days, months, quarters or years; values counted in
// years; rounding a date to the start of a calendar unit; tick placement.
#include "datetime/calendar.h"
#include "datetime/ticks.h"

#include <kilnutil/datetime.h>

#include <algorithm>
#include <cmath>

using namespace kiln::datetime;

namespace {

constexpr int kRecordDecimals = 3;
constexpr int kMonthsPerQuarter = 3;

bool step_by_months_or_years(double* value, char unit, int n) {
  CalendarFields f;
  if (!value_to_fields(*value, kRecordDecimals, &f)) return false;
  long long month_index = f.month - 1;
  long long year = f.year;
  if (unit == 'm') month_index += n;
  if (unit == 'q') month_index += static_cast<long long>(kMonthsPerQuarter) * n;
  if (unit == 'y') year += n;
  // One carry only: a step of more than a year's worth of months stays
  // out of range and fails the conversion below.
  if (month_index > 11) {
    month_index -= 12;
    year += 1;
  }
  if (month_index > 11 || year > kMaxYear) return false;
  f.year = static_cast<int>(year);
  f.month = static_cast<int>(month_index) + 1;
  f.day = std::min(f.day, month_length(f.month, f.year));
  f.milliseconds = 0.0;
  return fields_to_value(f, kActiveSystem, value) == kFieldsConverted;
}

void truncate_to_unit_start(CalendarFields* f, char unit) {
  if (unit != 'm' && unit != 'q' && unit != 'y') return;
  f->hour = f->minute = f->second = 0;
  f->day = 1;
  if (unit == 'y') f->month = 1;
}

bool step_date(double* value, char unit, int n) {
  if (value == nullptr || n < 1) return false;
  if (unit == 'd') {
    *value += n;
    return true;
  }
  if (unit != 'm' && unit != 'q' && unit != 'y') return false;
  double stepped = *value;
  if (!step_by_months_or_years(&stepped, unit, n)) return false;
  *value = stepped;
  return true;
}

bool round_to_calendar_unit(double* value, double increment_days, int tolerance, int reserved) {
  if (value == nullptr) return false;
  const char unit = tick_unit(increment_days);
  CalendarFields f;
  if (!value_to_fields(*value, kRecordDecimals, &f)) return false;
  if (reserved != 0) return false;
  truncate_to_unit_start(&f, unit);
  f.milliseconds = 0.0;
  double candidate = 0.0;
  if (fields_to_value(f, kActiveSystem, &candidate) != kFieldsConverted) return false;
  if (!within_tolerance(candidate, *value, increment_days, tolerance)) {
    if (!step_date(&candidate, unit, 1)) return false;
    if (!within_tolerance(candidate, *value, increment_days, tolerance)) return false;
  }
  *value = candidate;
  return true;
}

}  // namespace

bool increment_date_val(double* value, char unit, int n) { return step_date(value, unit, n); }

bool increment_years_type_date_val(double* value, char unit, int n, bool forward) {
  if (value == nullptr || n < 1) return false;
  double step = 0.0;
  switch (unit) {
    case 'd': step = n / 12.0 / 30.0; break;  // the 360-day year
    case 'm': step = n / 12.0; break;
    case 'q': step = n / 4.0; break;
    case 'y': step = n; break;
    default: return false;
  }
  *value += forward ? step : -step;
  return true;
}

bool calendar_round_to_inc(double* value, double increment_days, int tolerance, int reserved) {
  return round_to_calendar_unit(value, increment_days, tolerance, reserved);
}

double KILNUTIL_chk_round_tick(double value, double increment, int tolerance, bool calendar) {
  if (calendar) {
    double rounded = value;
    return round_to_calendar_unit(&rounded, increment, tolerance, 0) ? rounded : value;
  }
  if (increment == 0) return value;
  const double step = std::fabs(increment);
  const double tick = nearest_int(value / step) * step;
  return within_tolerance(tick, value, increment, tolerance) ? tick : value;
}
