// The four remainders. A zero divisor sets error code 1; the result is then
// 0 (both integer forms), the missing value (fmod) or x (the floored form).
#pragma once

namespace kiln::math {

int remainder_truncated(int a, int b);           // sign of the dividend
int remainder_floored(int a, int b);             // sign of the divisor, computed in doubles
double remainder_truncated(double x, double y);  // fmod
double remainder_floored(double x, double y);    // x - floor(x/y)*y

}  // namespace kiln::math
