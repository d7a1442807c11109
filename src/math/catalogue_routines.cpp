// The catalogue's own routines and its argument-array adapters.
#include "math/catalogue_routines.h"

#include "frame/missing_value.h"
#include "math/error_code.h"

#include <cmath>
#include <cstdint>

namespace kiln::math {

namespace {

constexpr double kInt64Limit = 9223372036854775808.0;  // 2^63
constexpr double kExpLimit = 665.0;

bool within_int32(double x) { return x >= -2147483648.0 && x <= 2147483647.0; }

// Half away from zero: truncate(|x| + 0.5) with the sign of x, clamped to
// +-2^63 so that the conversion stays defined.
double round_half_away(double x) {
  const double magnitude = std::trunc(std::abs(x) + 0.5);
  const double limited = magnitude < kInt64Limit ? magnitude : kInt64Limit;
  return std::copysign(limited, x);
}

}  // namespace

double absolute_value(double x) { return std::abs(x); }

double truncate_limited(double x) {
  const double whole = std::trunc(x);
  if (whole > kInt64Limit) return kInt64Limit;
  if (whole < -kInt64Limit) return -kInt64Limit;
  return whole;
}

double fraction_part(double x) {
  if (!within_int32(x)) return 0.0;
  return x - std::trunc(x);
}

double exp_limited(double x) {
  if (x > kExpLimit) {
    set_error_code(KILNUTIL_MATH_ERR_DOMAIN);
    return frame::kMissingValue;
  }
  if (x < -kExpLimit) return 0.0;
  return std::exp(x);
}

double nearest_integer(double x) {
  if (std::isnan(x)) return x;
  const double rounded = round_half_away(x);
  return rounded == 0.0 ? 0.0 : rounded;
}

double sine(double x) { return std::sin(x); }
double cosine(double x) { return std::cos(x); }
double arc_tangent(double x) { return std::atan(x); }
double hyperbolic_tangent(double x) { return std::tanh(x); }

double arc_tangent2(const double* yx) { return std::atan2(yx[0], yx[1]); }

double incomplete_f_upper(const double* f_df1_df2) {
  (void)f_df1_df2;
  return routine_unavailable(0.0);
}

double incomplete_f_lower(const double* f_df1_df2) {
  const double upper = incomplete_f_upper(f_df1_df2);
  return frame::is_missing(upper) ? upper : 1.0 - upper;
}

double routine_unavailable(double x) {
  (void)x;
  set_error_code(KILNUTIL_MATH_ERR_DOMAIN);
  return frame::kMissingValue;
}

double routine_unavailable_array(const double* arguments) { return routine_unavailable(arguments[0]); }

}  // namespace kiln::math
