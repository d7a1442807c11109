// Durations: a signed day count split into days, hours, minutes, seconds and
// milliseconds, the stTime totals, and differences between two dates.
#include "datetime/duration.h"

#include "datetime/calendar.h"
#include "datetime/system_time.h"
#include "frame/relaxed.h"

#include <kilnutil/datetime.h>

#include <cmath>
#include <cstdint>

namespace kiln::datetime {
namespace {

kiln::frame::Relaxed<bool> g_keep_rounded_midnight{false};

// A quarter of a second, in days: differences this close to a whole number
// are that number.
constexpr double kSnapTolerance = 2.8935185185185184e-6;

constexpr double kPowersOfTen[] = {1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9};

double power_of_ten(int n) { return n >= 0 && n <= 9 ? kPowersOfTen[n] : std::pow(10.0, n); }

// Rounds half up to a multiple of 10^(3 - decimals) milliseconds.
double round_milliseconds(double milliseconds, int decimals) {
  if (decimals >= 3) {
    const double scale = power_of_ten(decimals - 3);
    return std::floor(milliseconds * scale + 0.5) / scale;
  }
  const double step = power_of_ten(3 - decimals);
  return std::floor(milliseconds / step + 0.5) * step;
}

// Truncates toward zero, but a value within a quarter second of the next
// whole number away from zero is that number.
long long snap(double x) {
  const double n = std::trunc(x);
  if (x >= 0 && n + 1 - x < kSnapTolerance) return static_cast<long long>(n) + 1;
  if (x < 0 && x - (n - 1) < kSnapTolerance) return static_cast<long long>(n) - 1;
  return static_cast<long long>(n);
}

double date_value(const SYSTEMTIME* time) {
  double value = 0.0;
  system_time_to_value(&value, time, nullptr);  // a failed conversion leaves its placeholder
  return value;
}

// (second - first) in days, snapped, then its remainder in `unit`s per day.
int difference_in(const SYSTEMTIME* first, const SYSTEMTIME* second, double units_per_day) {
  if (first == nullptr || second == nullptr) return 0;
  const double days = date_value(second) - date_value(first);
  const long long whole_days = snap(days);
  const double rest = days - static_cast<double>(whole_days);
  const long long units = whole_days * static_cast<long long>(units_per_day) + snap(rest * units_per_day);
  return static_cast<int>(static_cast<std::uint32_t>(units));
}

}  // namespace

bool keep_rounded_midnight_as_2400() { return g_keep_rounded_midnight.load(); }
void set_keep_rounded_midnight_as_2400(bool keep) { g_keep_rounded_midnight.store(keep); }

void split_duration(double value, stTime* out, int decimals) {
  stTime t{};
  t.negative = value < 0 ? 1 : 0;
  // Not a number or infinite: no duration at all.
  const double magnitude = std::isfinite(value) ? std::fabs(value) : 0.0;
  const double days = std::trunc(magnitude);
  const double seconds_in_day = (magnitude - days) * kSecondsPerDay;
  double whole_seconds = std::trunc(seconds_in_day);
  double milliseconds = (seconds_in_day - whole_seconds) * 1000.0;
  double day_count = days;
  if (decimals >= 0) {
    milliseconds = round_milliseconds(milliseconds, decimals);
    if (milliseconds >= 1000.0) {
      milliseconds -= 1000.0;
      whole_seconds += 1;
      if (whole_seconds >= kSecondsPerDay && !keep_rounded_midnight_as_2400()) {
        day_count += 1;
        whole_seconds = 0;
      }
    }
  }
  const auto seconds = static_cast<int>(whole_seconds);
  constexpr double kDayCountWrap = 4294967296.0;  // the count is 32 bits
  t.days = static_cast<unsigned int>(day_count < kDayCountWrap ? day_count : std::fmod(day_count, kDayCountWrap));
  t.hours = seconds / 3600;
  t.minutes = (seconds / 60) % 60;
  t.seconds = seconds % 60;
  t.milliseconds = milliseconds;
  *out = t;
}

}  // namespace kiln::datetime

using namespace kiln::datetime;

int extract_time(double value, stTime* out, int decimals) {
  if (out == nullptr) return 0;
  split_duration(value, out, decimals);
  return 0;
}

long long stTime::GetHours() const {
  const long long hours_total = static_cast<long long>(days) * 24 + hours;
  return negative ? -hours_total : hours_total;
}

long long stTime::GetMinutes() const { return GetHours() * 60 + (negative ? -minutes : minutes); }

long long stTime::GetSeconds() const { return GetMinutes() * 60 + (negative ? -seconds : seconds); }

double stTime::GetMilliSecs() const {
  return static_cast<double>(GetSeconds()) * 1000.0 + (negative ? -milliseconds : milliseconds);
}

int KILNUTIL_GetDifferenceInDays(const SYSTEMTIME* first, const SYSTEMTIME* second) {
  return difference_in(first, second, 1.0);
}

int KILNUTIL_GetDifferenceInHours(const SYSTEMTIME* first, const SYSTEMTIME* second) {
  return difference_in(first, second, 24.0);
}

int KILNUTIL_GetDifferenceInMinutes(const SYSTEMTIME* first, const SYSTEMTIME* second) {
  return difference_in(first, second, 1440.0);
}

int KILNUTIL_GetDifferenceInSeconds(const SYSTEMTIME* first, const SYSTEMTIME* second) {
  return difference_in(first, second, 86400.0);
}
