// erf from P(1/2, x²); the inverse from rational start values (one for
// |y| < 0.7, one for each tail in r = sqrt(-ln((1 - |y|)/2))) and a single
// Halley step x0 - u/(1 + x0 u), u = (erf(x0) - y) / ((2/√π) exp(-x0²)).
#include "math/error_function.h"

#include "frame/missing_value.h"
#include "math/error_code.h"
#include "math/incomplete_gamma.h"

#include <cmath>

namespace kiln::math {

namespace {

constexpr double kTwoOverSqrtPi = 1.1283791670955126;
constexpr double kCentralLimit = 0.7;

double central_start(double y) {
  const double w = y * y;
  return y * (((-0.140543331 * w + 0.914624893) * w - 1.645349621) * w + 0.886226899) /
         ((((0.012229801 * w - 0.329097515) * w + 1.442710462) * w - 2.118377725) * w + 1);
}

// The tail start for 0.7 < |y| < 1, positive; `one_minus` is 1 - |y|.
double tail_start(double one_minus) {
  const double r = std::sqrt(-std::log(one_minus / 2));
  return (((1.641345311 * r + 3.429567803) * r - 1.624906493) * r - 1.970840454) /
         ((1.6370678 * r + 3.5438892) * r + 1);
}

double start_value(double y) {
  if (std::fabs(y) < kCentralLimit) return central_start(y);
  if (y > kCentralLimit && y < 1) return tail_start(1 - y);
  if (y < -kCentralLimit && y > -1) return -tail_start(1 + y);
  return 0;  // exactly ±0.7
}

// One Halley step from the start value; 0 when erf fails.
double halley_inverse(double y) {
  const double x0 = start_value(y);
  const double erf_x0 = error_function(x0);
  if (error_code() != KILNUTIL_MATH_ERR_NONE) return 0;
  const double u = (erf_x0 - y) / (kTwoOverSqrtPi * std::exp(-x0 * x0));
  return x0 - u / (1 + x0 * u);
}

}  // namespace

double error_function(double x) {
  if (frame::is_missing(x)) return frame::kMissingValue;
  clear_error_code();
  const double p = incomplete_gamma(x * x, 0.5);
  const double value = x < 0 ? -p : p;
  return error_code() != KILNUTIL_MATH_ERR_NONE ? frame::kMissingValue : value;
}

double inverse_error_function(double y) {
  clear_error_code();
  if (frame::is_missing(y) || std::fabs(y) > 1) return frame::kMissingValue;
  if (y == 1 || y == -1) {
    set_error_code(y == 1 ? KILNUTIL_MATH_ERR_INVERF_PLUS_ONE : KILNUTIL_MATH_ERR_INVERF_MINUS_ONE);
    return frame::kMissingValue;
  }
  const double x = halley_inverse(y);
  return error_code() != KILNUTIL_MATH_ERR_NONE ? frame::kMissingValue : x;
}

}  // namespace kiln::math
