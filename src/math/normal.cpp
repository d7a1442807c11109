// Normal quantiles and probabilities.
#include "math/normal.h"

#include "frame/missing_value.h"
#include "math/error_code.h"
#include "math/error_function.h"
#include "math/function_dispatcher.h"
#include "math/incomplete_gamma.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace kiln::math {

namespace {

constexpr double kSqrtTwo = 1.4142135623730951;

// Horner's rule, highest coefficient first.
double polynomial(std::span<const double> coefficients, double x) {
  double value = coefficients.front();
  for (const double c : coefficients.subspan(1)) value = value * x + c;
  return value;
}

// AS 241 (PPND16): numerator and denominator of each of its three rational
// functions, highest power first; the denominators' constant term is 1.
constexpr double kCentralNumerator[] = {2.5090809287301226727e+3, 3.3430575583588128105e+4, 6.7265770927008700853e+4,
                                        4.5921953931549871457e+4, 1.3731693765509461125e+4, 1.9715909503065514427e+3,
                                        1.3314166789178437745e+2, 3.3871328727963666080e+0};
constexpr double kCentralDenominator[] = {
    5.2264952788528545610e+3, 2.8729085735721942674e+4, 3.9307895800092710610e+4, 2.1213794301586595867e+4,
    5.3941960214247511077e+3, 6.8718700749205790830e+2, 4.2313330701600911252e+1, 1.0};
constexpr double kNearNumerator[] = {7.74545014278341407640e-4, 2.27238449892691845833e-2, 2.41780725177450611770e-1,
                                     1.27045825245236838258e+0, 3.64784832476320460504e+0, 5.76949722146069140550e+0,
                                     4.63033784615654529590e+0, 1.42343711074968357734e+0};
constexpr double kNearDenominator[] = {
    1.05075007164441684324e-9, 5.47593808499534494600e-4, 1.51986665636164571966e-2, 1.48103976427480074590e-1,
    6.89767334985100004550e-1, 1.67638483018380384940e+0, 2.05319162663775882187e+0, 1.0};
constexpr double kFarNumerator[] = {2.01033439929228813265e-7, 2.71155556874348757815e-5, 1.24266094738807843860e-3,
                                    2.65321895265761230930e-2, 2.96560571828504891230e-1, 1.78482653991729133580e+0,
                                    5.46378491116411436990e+0, 6.65790464350110377720e+0};
constexpr double kFarDenominator[] = {
    2.04426310338993978564e-15, 1.42151175831644588870e-7, 1.84631831751005468180e-5, 7.86869131145613259100e-4,
    1.48753612908506148525e-2,  1.36929880922735805310e-1, 5.99832206555887937690e-1, 1.0};

// Acklam's coefficients, highest power first.
constexpr double kAcklamCentralNumerator[] = {-3.969683028665376e+01, 2.209460984245205e+02,  -2.759285104469687e+02,
                                              1.383577518672690e+02,  -3.066479806614716e+01, 2.506628277459239e+00};
constexpr double kAcklamCentralDenominator[] = {-5.447609879822406e+01, 1.615858368580409e+02,  -1.556989798598866e+02,
                                                6.680131188771972e+01,  -1.328068155288572e+01, 1.0};
constexpr double kAcklamTailNumerator[] = {-7.784894002430293e-03, -3.223964580411365e-01, -2.400758277161838e+00,
                                           -2.549732539343734e+00, 4.374664141464968e+00,  2.938163982698783e+00};
constexpr double kAcklamTailDenominator[] = {7.784695709041462e-03, 3.224671290700398e-01, 2.445134137142996e+00,
                                             3.754408661907416e+00, 1.0};
constexpr double kAcklamUpperBreak = 0.97575;  // 1 - 0.02425, the lower break mirrored

bool outside_open_unit_interval(double p) { return p <= 0 || p >= 1; }

// Acklam's form on x = max(p, 1 - p) >= 0.5, non-negative. The upper-tail
// form needs 1 - x, which is taken as `tail` = min(p, 1 - p) itself: forming
// 1 - (1 - p) would round p below 1.1e-16 to 0 and give NaN.
double acklam_upper_half(double x, double tail) {
  if (x <= kAcklamUpperBreak) {
    const double q = x - 0.5;
    const double r = q * q;
    return polynomial(kAcklamCentralNumerator, r) * q / polynomial(kAcklamCentralDenominator, r);
  }
  const double q = std::sqrt(-2 * std::log(tail));
  return -polynomial(kAcklamTailNumerator, q) / polynomial(kAcklamTailDenominator, q);
}

}  // namespace

double normal_quantile_as241(double p) {
  if (outside_open_unit_interval(p)) return frame::kMissingValue;
  const double q = p - 0.5;
  if (std::fabs(q) <= 0.425) {
    const double r = 0.180625 - q * q;
    return q * polynomial(kCentralNumerator, r) / polynomial(kCentralDenominator, r);
  }
  double r = std::min(p, 1 - p);
  if (r <= 0) return 0;
  r = std::sqrt(-std::log(r));
  double value;
  if (r <= 5) {
    r -= 1.6;
    value = polynomial(kNearNumerator, r) / polynomial(kNearDenominator, r);
  } else {
    r -= 5;
    value = polynomial(kFarNumerator, r) / polynomial(kFarDenominator, r);
  }
  return q < 0 ? -value : value;
}

double normal_quantile_via_inverf(double p) {
  if (outside_open_unit_interval(p)) return frame::kMissingValue;
  return kSqrtTwo * inverse_error_function(2 * p - 1);
}

double normal_quantile_acklam(double p) {
  clear_error_code();
  if (outside_open_unit_interval(p)) {
    set_error_code(KILNUTIL_MATH_ERR_DOMAIN);
    return frame::kMissingValue;
  }
  const double magnitude = p < 0.5 ? acklam_upper_half(1 - p, p) : acklam_upper_half(p, 1 - p);
  return p > 0.5 ? magnitude : -magnitude;
}

double normal_probability(double x) {
  if (frame::is_missing(x)) return frame::kMissingValue;
  clear_error_code();
  const double value = error_function(x / kSqrtTwo);
  return error_code() != KILNUTIL_MATH_ERR_NONE ? frame::kMissingValue : value;
}

double normal_probability_unchecked(double x) { return error_function(x / kSqrtTwo); }

double inverse_normal_probability(double p) {
  const double value = normal_quantile_acklam((p + 1) / 2);
  return error_code() != KILNUTIL_MATH_ERR_NONE ? frame::kMissingValue : value;
}

double inverse_normal_probability_unchecked(double p) { return normal_quantile_acklam((p + 1) / 2); }

double normal_cdf_plus_one(double x) {
  constexpr double a = 0.5;
  const double y = x / kSqrtTwo;
  const double z = y * y;
  if (y >= 0) return z >= 1.5 ? 2 - upper_gamma_fraction(z, a) : 1 + lower_gamma_series(z, a);
  return z >= 1.5 ? upper_gamma_fraction(z, a) : 1 - lower_gamma_series(z, a);
}

double normal_cdf_percent(double x) {
  if (frame::is_missing(x)) return frame::kMissingValue;
  return 50 * normal_cdf_plus_one(x);
}

double normal_quantile_of_percent(double pct) {
  if (frame::is_missing(pct)) return frame::kMissingValue;
  if (pct >= 100) return 1e290;
  if (pct <= 0) return -1e290;
  // The quantile is the math dispatcher's function 21, as the host reaches it.
  double p = pct / 100;
  double quantile = 0;
  run_math_function(KILNUTIL_MATHFN_QUANTILE, &p, &quantile, KILNUTIL_MATHFN_UNIT_RADIANS);
  return quantile;
}

}  // namespace kiln::math
