// A SYSTEMTIME record as a date value: the work of SystemTimeToJulianDate.
#pragma once

#include <kilnutil/datetime.h>

namespace kiln::datetime {

// The record (its milliseconds replaced by *milliseconds when given) as a date
// value of the active system. *value first receives a placeholder, which a
// failed conversion (false) leaves behind.
bool system_time_to_value(double* value, const SYSTEMTIME* time, const double* milliseconds);

}  // namespace kiln::datetime
