// The four remainders.
#include "math/remainder.h"

#include <cmath>

#include "frame/missing_value.h"
#include "math/error_code.h"
#include "math/nint.h"

namespace kiln::math {

namespace {

void report_zero_divisor() { set_error_code(KILNUTIL_MATH_ERR_DOMAIN); }

double floored(double x, double y) { return x - std::floor(x / y) * y; }

}  // namespace

// a == INT_MIN with b == -1 is left to the processor's division, as the
// script function always did.
int remainder_truncated(int a, int b) {
  if (b == 0) {
    report_zero_divisor();
    return 0;
  }
  return a % b;
}

int remainder_floored(int a, int b) {
  if (b == 0) {
    report_zero_divisor();
    return 0;
  }
  return truncate_to_int32(floored(a, b));
}

double remainder_truncated(double x, double y) {
  if (y == 0) {
    report_zero_divisor();
    return frame::kMissingValue;
  }
  return std::fmod(x, y);
}

double remainder_floored(double x, double y) {
  if (y == 0) {
    report_zero_divisor();
    return x;
  }
  return floored(x, y);
}

}  // namespace kiln::math
