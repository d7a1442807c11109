// Shared helpers of the date tests: an independent civil-date count and
// SYSTEMTIME construction.
#pragma once

#include <kilnutil/datetime.h>

namespace date_test {

// Days from 1970-01-01 of a proleptic Gregorian date, by the era method
// (independent of the library's own 400/100/4-year decomposition).
inline long long days_from_civil(long long y, unsigned m, unsigned d) {
  y -= m <= 2;
  const long long era = (y >= 0 ? y : y - 399) / 400;
  const unsigned yoe = static_cast<unsigned>(y - era * 400);
  const unsigned doy = (153 * (m > 2 ? m - 3 : m + 9) + 2) / 5 + d - 1;
  const unsigned doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
  return era * 146097 + static_cast<long long>(doe) - 719468;
}

// Days since 1899-12-30.
inline long long serial_of(int y, int m, int d) { return days_from_civil(y, m, d) - days_from_civil(1899, 12, 30); }

inline SYSTEMTIME system_time(int y, int m, int d, int h = 0, int mi = 0, int s = 0, int ms = 0) {
  const auto field = [](int v) { return static_cast<unsigned short>(v); };
  return SYSTEMTIME{field(y), field(m), 0, field(d), field(h), field(mi), field(s), field(ms)};
}

// The date value of a date and time in the active system (asserting success
// is the caller's business: -1 stands for a failed conversion).
inline double date_value(int y, int m, int d, int h = 0, int mi = 0, int s = 0) {
  const SYSTEMTIME t = system_time(y, m, d, h, mi, s);
  double value = 0;
  return SystemTimeToJulianDate(&value, &t, nullptr) ? value : -1.0;
}

// Makes a date system active for one test and restores the default after.
class DateSystemScope {
public:
  explicit DateSystemScope(int code) { DateTime_DateSys(1, code); }
  ~DateSystemScope() { DateTime_DateSys(1, 0); }
};

}  // namespace date_test
