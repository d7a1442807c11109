// Student's t from I_x(df/2, 1/2) with x = df/(t² + df), the two-sided tail.
#include "math/t_dist.h"

#include "frame/missing_value.h"
#include "math/block_args.h"
#include "math/error_code.h"
#include "math/incomplete_beta.h"

#include <cmath>
#include <optional>

namespace kiln::math {

namespace {

constexpr double kDoubleEpsilon = 2.220446049250313e-16;
constexpr double kCoarseTolerance = 3e-7;

struct Bisection {
  double upper;      // the search runs over [0, upper]
  double tolerance;  // on the interval and on the tail difference
  bool fail_on_error;
};

// The two-sided tail I at t >= 0.
double two_sided_tail(double t, double df) { return incomplete_beta(df / (t * t + df), df / 2, 0.5); }

// The t >= 0 whose lower tail is q >= 0.5; empty when the incomplete beta
// reports an error and the search is told to fail on it.
std::optional<double> bisect_upper_quantile(double q, double df, const Bisection& search) {
  double lo = 0;
  double hi = search.upper;
  double mid = 0;
  for (int iteration = 0; iteration < kTQuantileIterations; ++iteration) {
    mid = (lo + hi) / 2;
    if (hi - lo < search.tolerance) break;
    clear_error_code();
    const double difference = 1 - two_sided_tail(mid, df) / 2 - q;
    if (search.fail_on_error && error_code() != KILNUTIL_MATH_ERR_NONE) return std::nullopt;
    if (std::fabs(difference) < search.tolerance) break;
    if (difference > 0) {
      hi = mid;
    } else {
      lo = mid;
    }
  }
  return mid;
}

double signed_quantile(double p, double df, const Bisection& search) {
  const double q = p <= 0.5 ? 1 - p : p;
  const std::optional<double> t = bisect_upper_quantile(q, df, search);
  if (!t) return frame::kMissingValue;
  return p <= 0.5 ? -*t : *t;
}

}  // namespace

double t_cdf(double t, int df) {
  if (frame::is_missing(t) || df < 1) return frame::kMissingValue;
  clear_error_code();
  const double tail = two_sided_tail(t, df);
  const double value = t >= 0 ? 1 - tail / 2 : tail / 2;
  return error_code() != KILNUTIL_MATH_ERR_NONE ? frame::kMissingValue : value;
}

double t_cdf_by_symmetry(double t, int df) {
  if (frame::is_missing(t)) return frame::kMissingValue;
  return t < 0 ? 1 - t_cdf(std::fabs(t), df) : t_cdf(t, df);
}

double t_quantile(double p, int df) {
  if (p <= 0 || p >= 1 || df <= 0) return frame::kMissingValue;
  return signed_quantile(p, df, {1e7, kDoubleEpsilon, true});
}

double t_quantile_coarse(double p, unsigned df) { return signed_quantile(p, df, {636, kCoarseTolerance, false}); }

double block_t_quantile_coarse(const double* block) {
  if (block == nullptr) return frame::kMissingValue;
  return t_quantile_coarse(block[0], block_degrees_of_freedom(block[1]));
}

}  // namespace kiln::math
