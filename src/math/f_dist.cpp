// F quantile: Newton's method on x = df1·F/(df1·F + df2) with P = I_x(a, b),
// a = df1/2, b = df2/2, and the beta density x^(a-1) (1-x)^(b-1) / B(a, b);
// a step that leaves (0, 1) is halved until it stays inside.
#include "math/f_dist.h"

#include "frame/missing_value.h"
#include "math/block_args.h"
#include "math/error_code.h"
#include "math/gamma.h"
#include "math/incomplete_beta.h"

#include <cmath>

namespace kiln::math {

namespace {

constexpr double kStepTolerance = 1e-12;

// The beta density at x in (0, 1), formed in logarithms so that large
// degrees of freedom do not turn it into 0/0.
double beta_density(double x, double a, double b, double ln_beta) {
  return std::exp((b - 1) * std::log(1 - x) + (a - 1) * std::log(x) - ln_beta);
}

// The start point: x = 1/2 (F = 1) when df1 = df2, scaled down for df2 = 1
// (F = 1/10).
double start_point(double df1, double df2) {
  const double scale = df2 < 1.5 ? 10.0 : 1.0;
  return df1 / (df2 * scale + df1);
}

// x + step, with the step halved until the point stays inside (0, 1). The
// point is restored from `x` itself rather than by subtracting the step, so a
// step far larger than x cannot leave it at 0 for good.
double step_inside_unit_interval(double x, double step) {
  double next = x + step;
  while (next >= 1 || next <= 0) {
    step /= 2;
    next = x + step;
  }
  return next;
}

// Newton's method; false when it did not settle: the cap was reached, or the
// step is not a number (the density underflowed, or p is NaN).
bool newton_on_beta(double p, double a, double b, double& x) {
  const double ln_beta = ln_complete_beta(a, b);
  for (int iteration = 0; iteration < kFQuantileIterationCap; ++iteration) {
    const double tail = incomplete_beta_or_minus_one(x, a, b);
    const double full_step = (p - tail) / beta_density(x, a, b, ln_beta);
    if (!std::isfinite(full_step)) return false;
    x = step_inside_unit_interval(x, full_step);
    if (!(std::fabs(full_step) > kStepTolerance)) return true;
  }
  return false;
}

}  // namespace

double f_cdf(double f, int df1, int df2) {
  if (f < 0 || df1 < 1 || df2 < 1) return frame::kMissingValue;
  clear_error_code();
  const double d1 = df1;
  const double d2 = df2;
  const double value = 1 - incomplete_beta(d2 / (d1 * f + d2), d2 / 2, d1 / 2);
  return error_code() != KILNUTIL_MATH_ERR_NONE ? frame::kMissingValue : value;
}

double f_quantile(double p, unsigned df1, unsigned df2) {
  if (p <= 0 || p >= 1 || df1 == 0 || df2 == 0) {
    set_error_code(KILNUTIL_MATH_ERR_DOMAIN);
    return frame::kMissingValue;
  }
  clear_error_code();
  const double d1 = df1;
  const double d2 = df2;
  double x = start_point(d1, d2);
  if (!newton_on_beta(p, d1 / 2, d2 / 2, x)) set_error_code(KILNUTIL_MATH_ERR_DOMAIN);
  const double value = 1 / ((d1 / x - d1) / d2);
  return error_code() != KILNUTIL_MATH_ERR_NONE ? frame::kMissingValue : value;
}

double block_f_quantile(const double* block) {
  if (block == nullptr) return frame::kMissingValue;
  return f_quantile(block[0], block_degrees_of_freedom(block[1]), block_degrees_of_freedom(block[2]));
}

}  // namespace kiln::math
