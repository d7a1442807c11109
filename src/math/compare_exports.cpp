// Tolerant comparison of doubles.
#include <kilnutil/math.h>

#include "math/compare.h"

extern "C" {

int KILNUTIL_double_compare_ex(double a, double b, double tol, int op) {
  return kiln::math::double_compare(a, b, tol, op);
}

int is_equal(double a, double b, int op) { return kiln::math::is_equal(a, b, op); }

int KILNUTIL_test_double_for_zero(double x) { return kiln::math::test_double_for_zero(x); }

}  // extern "C"
