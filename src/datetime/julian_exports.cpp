// SYSTEMTIME records and date values, the current date, the tick-count
// duration and the date-value test.
#include "datetime/calendar.h"
#include "datetime/system_time.h"
#include "platform/clock.h"

#include <kilnutil/datetime.h>

#include <cmath>

using namespace kiln::datetime;

namespace {

constexpr int kDefaultDecimals = 3;

}  // namespace

int SystemTimeToJulianDate(double* value, const SYSTEMTIME* time, const double* milliseconds) {
  return system_time_to_value(value, time, milliseconds) ? 1 : 0;
}

int JulianDateToSystemTime(const double* value, SYSTEMTIME* time, double* milliseconds, int decimals) {
  if (value == nullptr || time == nullptr) return 0;
  CalendarFields f;
  if (!value_to_fields(*value, milliseconds ? decimals : kDefaultDecimals, &f)) return 0;
  time->wYear = static_cast<unsigned short>(f.year);
  time->wMonth = static_cast<unsigned short>(f.month);
  time->wDayOfWeek = static_cast<unsigned short>(f.day_of_week);
  time->wDay = static_cast<unsigned short>(f.day);
  time->wHour = static_cast<unsigned short>(f.hour);
  time->wMinute = static_cast<unsigned short>(f.minute);
  time->wSecond = static_cast<unsigned short>(f.second);
  time->wMilliseconds = static_cast<unsigned short>(f.milliseconds);
  if (milliseconds) *milliseconds = f.milliseconds;
  return 1;
}

double get_current_date(bool date_only) {
  SYSTEMTIME now = kiln::platform::local_time();
  if (date_only) now.wHour = now.wMinute = now.wSecond = now.wMilliseconds = 0;
  double value = 0.0;
  system_time_to_value(&value, &now, nullptr);
  return value;
}

unsigned int get_time_duration(unsigned int start) {
  const unsigned int now = kiln::platform::tick_count();
  // The extra 1 on a wrapped counter is what callers have always measured.
  return now < start ? now - start - 1 : now - start;
}

int is_JulianDays(double v) { return v > 2415019.0 && v < 2473459.0 ? 1 : 0; }
