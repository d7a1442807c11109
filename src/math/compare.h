// Tolerant comparison of doubles and the test for zero.
#pragma once

#include <kilnutil/math.h>

namespace kiln::math {

// Comparison operators: the character codes the host passes.
inline constexpr int kCompareSetTolerance = KILNUTIL_COMPARE_SET_TOLERANCE;
inline constexpr int kCompareEqual = KILNUTIL_COMPARE_EQUAL;
inline constexpr int kCompareNotEqual = KILNUTIL_COMPARE_NOT_EQUAL;

// 0 or 1. op 0 stores a as the default tolerance and gives 0; a tolerance
// equal to the missing value means the default; zero is compared exactly;
// with the non-finite switch on, the missing value equals any non-finite
// value; otherwise r = (a - b)/(|a| + |b|) and "=" is |r| < tol, "!" is
// |r| > tol (|r| == tol is neither).
int double_compare(double a, double b, double tol, int op);
// double_compare with the is_equal tolerance; op 0 stores a as that tolerance.
int is_equal(double a, double b, int op);
// 1 for 0, the missing value and 0 < |x| < 1e-290.
int test_double_for_zero(double x);

// The exact-zero test the elementary wrappers use: is_equal(v, 0, "=").
bool equals_zero(double v);

}  // namespace kiln::math
