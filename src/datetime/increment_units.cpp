#include "datetime/increment_units.h"

#include <cmath>

namespace kiln::datetime {
namespace {

struct CalendarUnitSpan {
  int code;
  double nominal_days;
  double shortest_days;
  double longest_days;
};

constexpr CalendarUnitSpan kCalendarUnits[] = {
    {kYearUnit, 365.2425, 365.0, 366.0},
    {kQuarterUnit, 91.310625, 89.0, 92.0},
    {kMonthUnit, 30.436875, 28.0, 31.0},
};

constexpr double kFixedUnitDays[] = {
    0.0,            // no unit
    1.0 / 86400.0,  // second
    1.0 / 1440.0,   // minute
    1.0 / 24.0,     // hour
    1.0,            // day
    7.0,            // week
};

}  // namespace

IncrementInUnits classify_increment(double days) {
  const double magnitude = std::fabs(days);
  if (!(magnitude > 0) || !std::isfinite(magnitude)) return {};
  const double sign = days < 0 ? -1.0 : 1.0;
  for (const CalendarUnitSpan& unit : kCalendarUnits) {
    const double count = std::round(magnitude / unit.nominal_days);
    if (count >= 1 && magnitude >= count * unit.shortest_days && magnitude <= count * unit.longest_days) {
      return {unit.code, sign * count};
    }
  }
  int code = kWeekUnit;
  while (code > kSecondUnit && magnitude < kFixedUnitDays[code]) --code;
  return {code, days / kFixedUnitDays[code]};
}

double unit_length_days(int code) {
  if (code >= kSecondUnit && code <= kWeekUnit) return kFixedUnitDays[code];
  for (const CalendarUnitSpan& unit : kCalendarUnits) {
    if (unit.code == code) return unit.nominal_days;
  }
  return 1.0;
}

int calendar_units_per(int larger, int smaller) {
  int factor = 1;
  for (int code = larger; code > smaller; --code) factor *= code == kYearUnit ? 4 : 3;
  return factor;
}

}  // namespace kiln::datetime
