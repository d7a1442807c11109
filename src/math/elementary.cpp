// The script language's elementary functions; owner of the
// non-positive-logarithm switch (see docs/state.md).
#include "math/elementary.h"

#include <atomic>
#include <cmath>
#include <cstdint>
#include <limits>

#include "frame/missing_value.h"
#include "math/compare.h"
#include "math/error_code.h"
#include "math/nint.h"
#include "platform/runtime_math.h"

namespace kiln::math {

namespace {

constexpr double kHalfPi = 1.5707963267948966;
constexpr double kPi = 3.141592653589793;
constexpr double kThreeHalvesPi = 4.71238898038469;
constexpr double kTwoPi = 6.283185307179586;
constexpr double kUint32Max = 4294967295.0;

std::atomic<bool> g_ln_non_positive_passes_through{false};

using frame::is_missing;
using frame::kMissingValue;

// A domain error of a function that reports it.
double domain_error() {
  set_error_code(KILNUTIL_MATH_ERR_DOMAIN);
  return kMissingValue;
}

double finite_or_missing(double v) { return std::isinf(v) ? kMissingValue : v; }

// 1/v, or the missing value when v is exactly zero.
double reciprocal_or_missing(double v) { return equals_zero(v) ? kMissingValue : 1.0 / v; }

// Bessel orders arrive as doubles: truncated toward zero and kept inside the
// symmetric 32-bit range. (A non-finite order never gets here.)
int bessel_order(double n) {
  const std::int32_t order = truncate_to_int32(n);
  return order == std::numeric_limits<std::int32_t>::min() ? -std::numeric_limits<std::int32_t>::max() : order;
}

}  // namespace

bool ln_non_positive_passes_through() { return g_ln_non_positive_passes_through.load(std::memory_order_relaxed); }

void set_ln_non_positive_passes_through(bool on) {
  g_ln_non_positive_passes_through.store(on, std::memory_order_relaxed);
}

double script_sqrt(double x) { return x < 0 ? domain_error() : std::sqrt(x); }

double script_ln(double x) {
  if (x <= 0 && !ln_non_positive_passes_through()) return domain_error();
  return std::log(x);
}

double script_log10(double x) { return x <= 0 ? domain_error() : std::log10(x); }

double script_log1p(double x) {
  if (x <= -1) return domain_error();
  const double u = 1.0 + x;
  if (u - 1.0 == 0) return x;
  return std::log(u) * x / (u - 1.0);
}

double script_expm1(double x) {
  if ((x + 1.0) - 1.0 == 0) return x;
  return std::exp(x) - 1.0;
}

double script_acos(double x) { return std::fabs(x) > 1 ? domain_error() : std::acos(x); }

double script_asin(double x) { return std::fabs(x) > 1 ? domain_error() : std::asin(x); }

double script_cosh(double x) { return is_missing(x) ? kMissingValue : finite_or_missing(std::cosh(x)); }

double script_sinh(double x) { return is_missing(x) ? kMissingValue : finite_or_missing(std::sinh(x)); }

double script_tan(double x) { return is_missing(x) ? kMissingValue : finite_or_missing(std::tan(x)); }

double script_asinh(double x) {
  if (is_missing(x)) return kMissingValue;
  const double magnitude = std::log(std::sqrt(x * x + 1.0) + std::fabs(x));
  return x < 0 ? -magnitude : magnitude;
}

double script_acosh(double x) {
  if (is_missing(x) || std::fabs(x) < 1 || x <= -1) return kMissingValue;
  return 2.0 * std::log(std::sqrt((x - 1.0) / 2.0) + std::sqrt((x + 1.0) / 2.0));
}

double script_atanh(double x) {
  if (is_missing(x) || std::fabs(x) >= 1) return kMissingValue;
  return (std::log(1.0 + x) - std::log(1.0 - x)) / 2.0;
}

double script_cot(double x) { return is_missing(x) ? kMissingValue : reciprocal_or_missing(std::tan(x)); }

double script_acot(double x) { return is_missing(x) ? kMissingValue : kHalfPi - std::atan(x); }

double script_coth(double x) { return is_missing(x) ? kMissingValue : reciprocal_or_missing(std::tanh(x)); }

double script_acoth(double x) {
  if (is_missing(x) || std::fabs(x) <= 1 || equals_zero(x)) return kMissingValue;
  return script_atanh(1.0 / x);
}

double script_secant(double x) { return is_missing(x) ? kMissingValue : reciprocal_or_missing(std::cos(x)); }

double script_csc(double x) { return is_missing(x) ? kMissingValue : reciprocal_or_missing(std::sin(x)); }

double script_asec(double x) {
  if (is_missing(x) || std::fabs(x) < 1) return kMissingValue;
  return std::acos(1.0 / x);
}

double script_acsc(double x) {
  if (is_missing(x) || std::fabs(x) < 1) return kMissingValue;
  return std::asin(1.0 / x);
}

// An overflowing cosh gives 1/inf = 0.
double script_sech(double x) { return is_missing(x) ? kMissingValue : 1.0 / std::cosh(x); }

double script_csch(double x) { return is_missing(x) ? kMissingValue : reciprocal_or_missing(std::sinh(x)); }

double script_asech(double x) {
  if (x <= 0 || x > 1) return kMissingValue;
  return std::log(std::sqrt(1.0 / (x * x) - 1.0) + 1.0 / x);
}

double script_acsch(double x) {
  if (is_missing(x) || equals_zero(x)) return kMissingValue;
  return std::log(std::sqrt(1.0 / (x * x) + 1.0) + 1.0 / x);
}

// Negative legs are refused, not squared.
double script_hypot(double x, double y) { return x < 0 || y < 0 ? domain_error() : std::hypot(x, y); }

double script_angle(double x, double y) {
  if (x == 0) {
    if (y == 0) return domain_error();
    return y >= 0 ? kHalfPi : kThreeHalvesPi;
  }
  if (y == 0 && x < 0) return kPi;
  const double a = std::atan(y / x);
  if (x < 0) return a + kPi;
  return y < 0 ? a + kTwoPi : a;
}

double script_bessel_j0(double x) { return platform::bessel_j0(x); }

double script_bessel_j1(double x) { return platform::bessel_j1(x); }

// A non-finite order gives NaN: the runtime's time grows with the order, and
// such an order would otherwise become the largest one.
double script_bessel_jn(double n, double x) {
  return std::isfinite(n) ? platform::bessel_jn(bessel_order(n), x) : std::nan("");
}

double script_bessel_y0(double x) { return x <= 0 ? domain_error() : platform::bessel_y0(x); }

double script_bessel_y1(double x) { return x <= 0 ? domain_error() : platform::bessel_y1(x); }

double script_bessel_yn(double n, double x) {
  if (x <= 0) return domain_error();
  return std::isfinite(n) ? platform::bessel_yn(bessel_order(n), x) : std::nan("");
}

unsigned script_nuint(double x) {
  if (x < 0) return static_cast<unsigned>(nint(x));
  if (x + 0.5 >= kUint32Max) return static_cast<unsigned>(kUint32Max);
  return static_cast<unsigned>(truncate_to_int64(x + 0.5));
}

}  // namespace kiln::math
