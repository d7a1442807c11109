// Rounding to decimal places and significant digits; owner of the
// new-rounding switch (see docs/state.md).
#include "math/rounding.h"

#include <cmath>
#include <cstdint>

#include "frame/missing_value.h"
#include "math/error_code.h"
#include "math/nint.h"

namespace kiln::math {

namespace {

constexpr int kMaxDecimalPlaces = 308;
constexpr double kInt32Max = 2147483647.0;
constexpr double kInt32Min = -2147483648.0;
constexpr double kInt64Bound = 9223372036854775808.0;

// Plain byte: the host writes it through the pointer IsRoundNewAlgorithm returns.
unsigned char g_round_new_algorithm = 1;

double with_sign_of(double magnitude, double x) { return x < 0 ? -magnitude : magnitude; }

// Half away from zero in 64 bits, clamped at +-2^63; NaN (from an infinite
// or NaN x) stays NaN.
double nint_wide(double v) {
  if (std::isnan(v)) return v;
  if (v >= kInt64Bound) return kInt64Bound;
  if (v <= -kInt64Bound) return -kInt64Bound;
  return static_cast<double>(nint64(v));
}

// The powers of ten the rounding uses most, as the runtime's pow gives them
// (every one correctly rounded); others come from pow itself.
constexpr int kTabledPower = 22;
constexpr double kPowersOfTen[2 * kTabledPower + 1] = {
    1e-22, 1e-21, 1e-20, 1e-19, 1e-18, 1e-17, 1e-16, 1e-15, 1e-14, 1e-13, 1e-12, 1e-11, 1e-10, 1e-9, 1e-8,
    1e-7,  1e-6,  1e-5,  1e-4,  1e-3,  1e-2,  1e-1,  1e0,   1e1,   1e2,   1e3,   1e4,   1e5,   1e6,  1e7,
    1e8,   1e9,   1e10,  1e11,  1e12,  1e13,  1e14,  1e15,  1e16,  1e17,  1e18,  1e19,  1e20,  1e21, 1e22};

}  // namespace

// Half away from zero: through nint inside the 32-bit range, else the wide form.
double nint_any(double v) {
  if (v < kInt32Max && v > kInt32Min) return nint(v);
  return nint_wide(v);
}

double power_of_ten(double n) {
  if (n >= -kTabledPower && n <= kTabledPower && n == std::trunc(n)) {
    return kPowersOfTen[static_cast<int>(n) + kTabledPower];
  }
  return std::pow(10.0, n);
}

unsigned char* round_new_algorithm_flag() { return &g_round_new_algorithm; }

double round_decimals_new(double x, int n) {
  const double a = std::fabs(x);
  const double s = power_of_ten(n);
  double f = std::floor(a * s);
  if ((f + 0.5) / s <= a) f += 1.0;
  return with_sign_of(f / s, x);
}

double round_decimals_old(double x, int n) {
  const double a = std::fabs(x);
  const double whole = std::floor(a);
  const double fraction = a - whole;
  if (fraction == 0) return x;
  const double s = power_of_ten(n);
  return std::copysign(std::floor(s * fraction + 0.5) / s + whole, x);
}

double round_decimals(double x, int n) {
  if (n > kMaxDecimalPlaces) return x;
  return g_round_new_algorithm != 0 ? round_decimals_new(x, n) : round_decimals_old(x, n);
}

double round_significant(double x, int n) {
  if (x == 0) return 0;
  if (power_of_ten(n) > kInt32Max) {
    set_error_code(KILNUTIL_MATH_ERR_DOMAIN);
    return frame::kMissingValue;
  }
  const double a = std::fabs(x);
  const double e = std::floor(std::log10(a));
  const double m = power_of_ten(static_cast<double>(n) - 1.0);
  const double scale = power_of_ten(e);
  return with_sign_of(nint_any(a / scale * m) / m * scale, x);
}

double ceil_or_missing(double x) {
  if (frame::is_missing(x)) return frame::kMissingValue;
  const double c = std::ceil(x);
  return std::isinf(c) ? frame::kMissingValue : c;
}

double floor_or_missing(double x) {
  if (frame::is_missing(x)) return frame::kMissingValue;
  const double f = std::floor(x);
  return std::isinf(f) ? frame::kMissingValue : f;
}

}  // namespace kiln::math
