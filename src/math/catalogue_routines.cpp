// The catalogue's own routines and its argument-array adapters.
#include "math/catalogue_routines.h"

#include "frame/missing_value.h"
#include "math/block_args.h"
#include "math/elementary.h"
#include "math/error_code.h"
#include "math/f_dist.h"
#include "math/gamma.h"
#include "math/incomplete_beta.h"
#include "math/incomplete_gamma.h"
#include "math/nint.h"
#include "math/remainder.h"
#include "math/rounding.h"
#include "math/t_dist.h"

#include <cmath>
#include <cstdint>
#include <limits>

namespace kiln::math {

namespace {

constexpr double kInt64Limit = 9223372036854775808.0;  // 2^63
constexpr double kExpLimit = 665.0;

bool within_int32(double x) { return x >= -2147483648.0 && x <= 2147483647.0; }

// INCF(F, df1, df2): I_x(df2/2, df1/2) at x = df2/(df1 F + df2).
double f_upper_tail(double f, double df1, double df2) {
  return incomplete_beta(df2 / (df1 * f + df2), df2 / 2.0, df1 / 2.0);
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

double nint2_value(double x) { return nint2(x); }

double sine(double x) { return std::sin(x); }
double cosine(double x) { return std::cos(x); }
double arc_tangent(double x) { return std::atan(x); }
double hyperbolic_tangent(double x) { return std::tanh(x); }

double arc_tangent2(const double* yx) { return std::atan2(yx[0], yx[1]); }

double beta_of(const double* ab) { return complete_beta(ab[0], ab[1]); }

double incomplete_gamma_of(const double* ax) { return incomplete_gamma(ax[1], ax[0]); }

double incomplete_beta_of(const double* xab) { return incomplete_beta(xab[0], xab[1], xab[2]); }

double incomplete_f_upper(const double* f_df1_df2) { return f_upper_tail(f_df1_df2[0], f_df1_df2[1], f_df1_df2[2]); }

double incomplete_f_lower(const double* f_df1_df2) {
  const double upper = incomplete_f_upper(f_df1_df2);
  return frame::is_missing(upper) ? upper : 1.0 - upper;
}

double f_table_of(const double* p_df1_df2) {
  return f_quantile(p_df1_df2[0], block_degrees_of_freedom(p_df1_df2[1]), block_degrees_of_freedom(p_df1_df2[2]));
}

double t_cdf_of(const double* t_df) { return t_cdf(t_df[0], truncate_to_int32(t_df[1])); }

double t_table_of(const double* p_df) { return t_quantile_coarse(p_df[0], block_degrees_of_freedom(p_df[1])); }

double round_of(const double* x_places) { return round_decimals(x_places[0], truncate_to_int32(x_places[1])); }

double prec_of(const double* x_digits) { return round_significant(x_digits[0], truncate_to_int32(x_digits[1])); }

// The one quotient that overflows 32 bits, -2^31 / -1, has the remainder 0;
// it is answered here instead of faulting in the division.
double mod_of(const double* ab) {
  const std::int32_t a = truncate_to_int32(ab[0]);
  const std::int32_t b = truncate_to_int32(ab[1]);
  if (a == std::numeric_limits<std::int32_t>::min() && b == -1) return 0.0;
  return remainder_truncated(a, b);
}

double mod2_of(const double* ab) { return remainder_floored(truncate_to_int32(ab[0]), truncate_to_int32(ab[1])); }

double rmod_of(const double* xy) { return remainder_truncated(xy[0], xy[1]); }

double rmod2_of(const double* xy) { return remainder_floored(xy[0], xy[1]); }

double angle_of(const double* xy) { return script_angle(xy[0], xy[1]); }

double bessel_jn_of(const double* nx) { return script_bessel_jn(nx[0], nx[1]); }

double bessel_yn_of(const double* nx) { return script_bessel_yn(nx[0], nx[1]); }

}  // namespace kiln::math
