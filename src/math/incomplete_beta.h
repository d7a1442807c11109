// The regularised incomplete beta function I_x(a, b) by its continued
// fraction (at most 79 iterations, relative change 3e-7), in the checked
// form every distribution uses and in the F quantile's own copy.
#pragma once

#include <optional>

namespace kiln::math {

// The continued fraction CF(a, b, x); empty when 79 iterations did not
// reach a relative change below 3e-7.
std::optional<double> beta_fraction(double a, double b, double x);

// I_x(a, b) (the `incbeta` export). x outside [0, 1] or a negative a or b
// set error code 1 and give the missing value; a or b equal to 0 gives 1,
// or error code 1 and the missing value at x = 0. Otherwise the code is
// cleared, and a fraction that fails sets code 1 and gives the missing value.
double incomplete_beta(double x, double a, double b);

// The F quantile's copy, for a, b > 0: the prefactor without the cut-off at
// exp(-300); x outside [0, 1] or a failed fraction give -1.0. Never touches
// the error code.
double incomplete_beta_or_minus_one(double x, double a, double b);

}  // namespace kiln::math
