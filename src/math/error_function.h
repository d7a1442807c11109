// The error function through the incomplete gamma function, and its inverse
// by a rational start value and one Halley step.
#pragma once

namespace kiln::math {

// erf(x) = ±P(1/2, x²). Clears the error code; the missing value in, or an
// error code at the end, gives the missing value.
double error_function(double x);

// The inverse error function (the `inverf` export). Clears the error code;
// the missing value or |y| > 1 give the missing value; y = +1 and y = -1 set
// codes 2 and 3 with the missing value. At exactly y = ±0.7 no start value
// applies and the Halley step starts from 0.
double inverse_error_function(double y);

}  // namespace kiln::math
