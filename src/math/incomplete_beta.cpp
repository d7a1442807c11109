// I_x(a, b) = bt · CF(a, b, x) / a below x = (a + 1)/(a + b + 2) and
// 1 - bt · CF(b, a, 1 - x) / b above it, with
// bt = exp(ln Γ(a + b) - ln Γ(a) - ln Γ(b) + a ln x + b ln(1 - x)).
#include "math/incomplete_beta.h"

#include "frame/missing_value.h"
#include "math/error_code.h"
#include "math/gamma.h"

#include <cmath>

namespace kiln::math {

namespace {

constexpr int kFractionIterations = 79;
constexpr double kFractionTolerance = 3e-7;

// The exponent of the prefactor bt, for 0 < x < 1.
double prefactor_exponent(double x, double a, double b) {
  return ln_gamma(a + b) - ln_gamma(a) - ln_gamma(b) + a * std::log(x) + b * std::log(1 - x);
}

// bt · CF / a on the side of x where the fraction converges fast; empty when
// the fraction fails.
std::optional<double> from_prefactor(double bt, double x, double a, double b) {
  if (x < (a + 1) / (a + b + 2)) {
    const std::optional<double> fraction = beta_fraction(a, b, x);
    if (!fraction) return std::nullopt;
    return bt * *fraction / a;
  }
  const std::optional<double> fraction = beta_fraction(b, a, 1 - x);
  if (!fraction) return std::nullopt;
  return 1 - bt * *fraction / b;
}

double checked_exp(double t) { return t < -300 ? 0.0 : std::exp(t); }

}  // namespace

std::optional<double> beta_fraction(double a, double b, double x) {
  double am = 1, bm = 1, az = 1;
  double bz = 1 - (a + b) * x / (a + 1);
  for (int m = 1; m <= kFractionIterations; ++m) {
    const double em = m;
    const double tem = 2 * em;
    double d = em * (b - em) * x / ((a - 1 + tem) * (a + tem));
    const double ap = az + d * am;
    const double bp = bz + d * bm;
    d = -(a + em) * (a + b + em) * x / ((a + 1 + tem) * (a + tem));
    const double app = ap + d * az;
    const double bpp = bp + d * bz;
    const double previous = az;
    am = ap / bpp;
    bm = bp / bpp;
    az = app / bpp;
    bz = 1;
    if (std::fabs(az - previous) < kFractionTolerance * std::fabs(az)) return az;
  }
  return std::nullopt;
}

double incomplete_beta(double x, double a, double b) {
  if (x < 0 || x > 1 || a < 0 || b < 0) {
    set_error_code(KILNUTIL_MATH_ERR_DOMAIN);
    return frame::kMissingValue;
  }
  if (a == 0 || b == 0) {
    if (x != 0) return 1.0;
    set_error_code(KILNUTIL_MATH_ERR_DOMAIN);
    return frame::kMissingValue;
  }
  clear_error_code();
  const double bt = (x == 0 || x == 1) ? 0.0 : checked_exp(prefactor_exponent(x, a, b));
  const std::optional<double> value = from_prefactor(bt, x, a, b);
  if (!value) set_error_code(KILNUTIL_MATH_ERR_DOMAIN);
  return error_code() != KILNUTIL_MATH_ERR_NONE ? frame::kMissingValue : *value;
}

double incomplete_beta_or_minus_one(double x, double a, double b) {
  if (x < 0 || x > 1) return -1.0;
  const double bt = (x == 0 || x == 1) ? 0.0 : std::exp(prefactor_exponent(x, a, b));
  return from_prefactor(bt, x, a, b).value_or(-1.0);
}

}  // namespace kiln::math
