// The regularised incomplete gamma function: the series for the lower part
// and the continued fraction for the upper part, and P(a, x) chosen from them.
#pragma once

namespace kiln::math {

// Iterations after which either loop gives up. Both loops stop on their own
// when the newest term no longer changes the value; the cap only ends loops
// fed NaN, infinities or degrees of freedom so large that a + 1 == a.
inline constexpr int kIncompleteGammaIterationCap = 100000;

// P(a, x) by the series, for 0 < x < a + 1 (0 for x <= 0). NaN when the
// series did not settle within the cap.
double lower_gamma_series(double x, double a);

// Q(a, x) = 1 - P(a, x) by the continued fraction, for x >= a + 1. NaN when
// the fraction did not settle within the cap.
double upper_gamma_fraction(double x, double a);

// P(a, x), x first (the `incgamma` export). x < 0 or a <= 0 set error code 1
// and give the missing value; otherwise the code is cleared, and a loop that
// does not settle sets code 1 and gives the missing value.
double incomplete_gamma(double x, double a);

}  // namespace kiln::math
