// A SYSTEMTIME record as a date value of the active date system.
#include "datetime/system_time.h"

#include "datetime/calendar.h"

namespace kiln::datetime {

namespace {

// Stored before converting, so a failed conversion leaves a recognisable value.
constexpr double kConversionPlaceholder = 2451323.4653704;

CalendarFields fields_of(const SYSTEMTIME& time, const double* milliseconds) {
  CalendarFields f;
  f.year = time.wYear;
  f.month = time.wMonth;
  f.day = time.wDay;
  f.hour = time.wHour;
  f.minute = time.wMinute;
  f.second = time.wSecond;
  f.milliseconds = milliseconds ? *milliseconds : time.wMilliseconds;
  return f;
}

}  // namespace

bool system_time_to_value(double* value, const SYSTEMTIME* time, const double* milliseconds) {
  if (value == nullptr || time == nullptr) return false;
  *value = kConversionPlaceholder;
  return fields_to_value(fields_of(*time, milliseconds), kActiveSystem, value) == kFieldsConverted;
}

}  // namespace kiln::datetime
