#include "datetime/ticks.h"

#include <climits>
#include <cmath>

namespace kiln::datetime {

int nearest_int(double x) {
  if (std::isnan(x)) return INT_MIN;
  if (x >= 2147483647.0) return INT_MAX;
  if (x <= -2147483648.0) return INT_MIN;
  const auto magnitude = static_cast<long long>(std::fabs(x) + 0.5);
  const long long rounded = x < 0 ? -magnitude : magnitude;
  return static_cast<int>(rounded < INT_MIN ? INT_MIN : rounded);
}

bool within_tolerance(double a, double b, double increment, int tolerance) {
  return nearest_int(std::fabs(a - b) * 100.0 / std::fabs(increment)) <= tolerance;
}

char tick_unit(double increment_days) {
  if (increment_days > 60) return 'y';
  if (increment_days > 31) return 'q';
  if (increment_days > 7) return 'm';
  if (increment_days > 1) return 'w';
  return 'h';
}

}  // namespace kiln::datetime
