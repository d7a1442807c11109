// ln Γ by Lanczos' series: y = x - 1, t = y + 5.5,
// ln Γ(x) = ln(2.50662827465 · s) - (t - (y + 0.5) · ln t),
// s = 1 + Σ c_i / (y + i). The five-term form stops one coefficient early on
// purpose, so its results differ from the six-term form in the last digits.
#include "math/gamma.h"

#include "frame/missing_value.h"
#include "math/error_code.h"

#include <cmath>
#include <span>

namespace kiln::math {

namespace {

constexpr double kSqrtTwoPi = 2.50662827465;

constexpr double kFiveTerms[] = {76.18009173, -86.50532033, 24.01409822, -1.231739516, 0.00120858003};

constexpr double kSixTerms[] = {76.18009172947146,  -86.50532032941678,   24.01409824083091,
                                -1.231739572450155, 0.001208650973866179, -5.395239384953e-06};

double lanczos_ln_gamma(double x, std::span<const double> coefficients) {
  if (x <= 0) {
    set_error_code(KILNUTIL_MATH_ERR_DOMAIN);
    return frame::kMissingValue;
  }
  const double y = x - 1;
  const double t = y + 5.5;
  double s = 1;
  double offset = 0;
  for (const double c : coefficients) {
    offset += 1;  // 1, 2, ... exactly
    s += c / (y + offset);
  }
  if (s <= 0) return frame::kMissingValue;
  return std::log(kSqrtTwoPi * s) - (t - (y + 0.5) * std::log(t));
}

// ln m! as the binomial coefficient takes it: 0 below 2.
double ln_factorial(unsigned m) { return m < 2 ? 0.0 : ln_gamma(static_cast<double>(m) + 1); }

}  // namespace

double ln_gamma_five_term(double x) { return lanczos_ln_gamma(x, kFiveTerms); }

double ln_gamma(double x) { return lanczos_ln_gamma(x, kSixTerms); }

double complete_beta(double a, double b) {
  clear_error_code();
  const double la = ln_gamma(a);
  const double lb = ln_gamma(b);
  const double lab = ln_gamma(a + b);
  const double sum = la + lb + lab;
  if (sum < -665) return 0;
  if (error_code() != KILNUTIL_MATH_ERR_NONE || sum > 665) return frame::kMissingValue;
  return std::exp(la + lb - lab);
}

double ln_complete_beta(double a, double b) { return ln_gamma(a) + ln_gamma(b) - ln_gamma(a + b); }

double binomial_coefficient(unsigned n, unsigned k) {
  const unsigned rest = n - k;
  return std::floor(std::exp(ln_factorial(n) - ln_factorial(k) - ln_factorial(rest)) + 0.5);
}

}  // namespace kiln::math
