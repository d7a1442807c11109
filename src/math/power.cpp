// The guarded power; owner of the zero-to-the-power-zero switch (see
// docs/state.md).
#include "math/power.h"

#include <atomic>
#include <cerrno>
#include <cmath>

#include "frame/missing_value.h"
#include "math/compare.h"

namespace kiln::math {

namespace {

constexpr double kLargeBase = 5.0;
constexpr double kDecadeLimit = 307.0;

std::atomic<bool> g_zero_power_zero{false};

bool zero_base_power(double exponent, double* result) {
  if (exponent > 0) {
    *result = 0.0;
    return true;
  }
  if (exponent < 0 || !zero_power_zero_allowed()) return false;
  *result = 1.0;
  return true;
}

// Half away from zero, kept in doubles so no exponent is clamped.
double round_half_away(double v) { return std::copysign(std::trunc(std::fabs(v) + 0.5), v); }

bool is_whole(double exponent) { return is_equal(round_half_away(exponent), exponent, kCompareNotEqual) == 0; }

// The runtime's pow with errno watched.
bool runtime_power(double base, double exponent, double* result) {
  errno = 0;
  *result = std::pow(base, exponent);
  return errno != EDOM && errno != ERANGE;
}

}  // namespace

bool zero_power_zero_allowed() { return g_zero_power_zero.load(std::memory_order_relaxed); }

void set_zero_power_zero_allowed(bool allowed) { g_zero_power_zero.store(allowed, std::memory_order_relaxed); }

bool power_checked(double base, double exponent, double* result) {
  if (base == 0) return zero_base_power(exponent, result);
  if (base < 0 && !is_whole(exponent)) return false;
  if (base > kLargeBase) {
    const double decades = std::log10(base);
    if (exponent > 1 && exponent >= kDecadeLimit / decades) return false;
    if (exponent < 1 && exponent <= -kDecadeLimit / decades) {
      *result = 0.0;
      return true;
    }
  }
  return runtime_power(base, exponent, result);
}

double power_or_missing(double base, double exponent) {
  if (frame::is_missing(base) || frame::is_missing(exponent)) return frame::kMissingValue;
  double result = 0.0;
  return power_checked(base, exponent, &result) ? result : frame::kMissingValue;
}

}  // namespace kiln::math
