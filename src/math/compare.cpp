// Tolerant comparison; owner of the default and is_equal tolerances (see
// docs/state.md).
#include "math/compare.h"

#include <atomic>
#include <cmath>

#include "frame/missing_value.h"
#include "frame/settings.h"

namespace kiln::math {

namespace {

constexpr double kInitialTolerance = 1e-14;
constexpr double kZeroThreshold = 1e-290;

std::atomic<double> g_default_tolerance{kInitialTolerance};
std::atomic<double> g_is_equal_tolerance{kInitialTolerance};

int verdict(int op, bool equal) { return (op == kCompareEqual) == equal ? 1 : 0; }

bool is_missing_or_non_finite(double v) { return frame::is_missing(v) || !std::isfinite(v); }

}  // namespace

int double_compare(double a, double b, double tol, int op) {
  if (op == kCompareSetTolerance) {
    g_default_tolerance.store(a, std::memory_order_relaxed);
    return 0;
  }
  if (frame::is_missing(tol)) tol = g_default_tolerance.load(std::memory_order_relaxed);
  if (op != kCompareEqual && op != kCompareNotEqual) return 0;
  if (a == 0) return verdict(op, b == 0);
  if (b == 0) return verdict(op, false);
  if (frame::treat_non_finite_as_missing() && (frame::is_missing(a) || frame::is_missing(b))) {
    const double other = frame::is_missing(a) ? b : a;
    return verdict(op, is_missing_or_non_finite(other));
  }
  if (tol == 0) return verdict(op, a == b);
  const double r = std::fabs((a - b) / (std::fabs(a) + std::fabs(b)));
  return op == kCompareEqual ? (r < tol ? 1 : 0) : (r > tol ? 1 : 0);
}

int is_equal(double a, double b, int op) {
  if (op == kCompareSetTolerance) {
    g_is_equal_tolerance.store(a, std::memory_order_relaxed);
    return 0;
  }
  return double_compare(a, b, g_is_equal_tolerance.load(std::memory_order_relaxed), op);
}

int test_double_for_zero(double x) {
  if (x == 0 || frame::is_missing(x)) return 1;
  return std::fabs(x) < kZeroThreshold ? 1 : 0;
}

bool equals_zero(double v) { return is_equal(v, 0.0, kCompareEqual) != 0; }

}  // namespace kiln::math
