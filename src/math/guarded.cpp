// Guarded division and logarithm, increments and the percentage slot; owner
// of the exact-log10 switch (see docs/state.md).
#include "math/guarded.h"

#include <cmath>

#include "frame/missing_value.h"
#include "math/nint.h"

namespace kiln::math {

namespace {

constexpr double kQuotientLimit = 1.7e308;
constexpr double kLn10 = 2.302585092994046;
constexpr int kPercentageLimit = 101;

// Plain byte: the host writes it through the pointer IsReduceErrorForLog10 returns.
unsigned char g_exact_log10 = 0;

}  // namespace

double divide_or(double a, double b, double fallback) {
  if (frame::is_missing(a) || frame::is_missing(b)) return fallback;
  if (std::fabs(b) >= 1) return a / b;
  return std::fabs(b) * kQuotientLimit > std::fabs(a) ? a / b : fallback;
}

unsigned char* exact_log10_flag() { return &g_exact_log10; }

double log10_or_missing(double x) {
  if (frame::is_missing(x) || x <= 0) return frame::kMissingValue;
  return g_exact_log10 != 0 ? std::log10(x) : std::log(x) / kLn10;
}

double round_to_increment(double x, double inc, bool up) {
  const double step = std::fabs(inc);
  if (step == 0) return x;
  const double q = x / step;
  const int n = up ? nnint(q) : last_nint(q);
  return n * step;
}

int percentage_value(short* slot, bool get, int value) {
  if (!get && value < kPercentageLimit) *slot = static_cast<short>(value);
  return *slot;
}

}  // namespace kiln::math
