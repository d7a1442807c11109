// P(a, x) = Σ x^n / (a (a+1) ... (a+n)) · exp(a ln x - x - ln Γ(a)) below
// x = a + 1, and 1 - Q from the Legendre continued fraction above it. Both
// stop at a relative change of 1e-17, below the double epsilon: a loop ends
// when its newest term underflows against the sum, or g stops changing.
#include "math/incomplete_gamma.h"

#include "frame/missing_value.h"
#include "math/error_code.h"
#include "math/gamma.h"

#include <cmath>
#include <limits>

namespace kiln::math {

namespace {

constexpr double kRelativeChange = 1e-17;
constexpr double kNoValue = std::numeric_limits<double>::quiet_NaN();

// exp(a ln x - x - ln Γ(a)): the factor both expansions share.
double gamma_prefactor(double x, double a) { return std::exp(a * std::log(x) - x - ln_gamma(a)); }

}  // namespace

double lower_gamma_series(double x, double a) {
  if (x <= 0) return 0;
  double denominator = a;
  double term = 1 / a;
  double sum = term;
  for (int iteration = 0; iteration < kIncompleteGammaIterationCap; ++iteration) {
    denominator += 1;
    term *= x / denominator;
    sum += term;
    if (std::fabs(term) < std::fabs(sum) * kRelativeChange) return sum * gamma_prefactor(x, a);
    if (std::isnan(sum)) break;  // NaN never settles
  }
  return kNoValue;
}

double upper_gamma_fraction(double x, double a) {
  double a0 = 1, a1 = x, b0 = 0, b1 = 1, fac = 1, g = 1;
  for (int n = 1; n <= kIncompleteGammaIterationCap; ++n) {
    const double an = n;
    a0 = (a1 + a0 * (an - a)) * fac;
    b0 = (b1 + b0 * (an - a)) * fac;
    a1 = x * a0 + an * fac * a1;
    b1 = x * b0 + an * fac * b1;
    if (a1 == 0) continue;
    const double previous = g;
    fac = 1 / a1;
    g = b1 * fac;
    if (std::fabs((g - previous) / g) < kRelativeChange) return gamma_prefactor(x, a) * g;
    if (std::isnan(g)) break;  // NaN never settles
  }
  return kNoValue;
}

double incomplete_gamma(double x, double a) {
  if (x < 0 || a <= 0) {
    set_error_code(KILNUTIL_MATH_ERR_DOMAIN);
    return frame::kMissingValue;
  }
  clear_error_code();
  const double p = x < a + 1 ? lower_gamma_series(x, a) : 1 - upper_gamma_fraction(x, a);
  if (std::isnan(p)) set_error_code(KILNUTIL_MATH_ERR_DOMAIN);
  return error_code() != KILNUTIL_MATH_ERR_NONE ? frame::kMissingValue : p;
}

}  // namespace kiln::math
