// The script language's elementary functions with their domain rules. An
// argument outside the domain gives the missing value; the functions marked
// "code 1" also set the math error code to 1. None of them clears the code.
// This header does not include <cmath>.
#pragma once

namespace kiln::math {

double script_sqrt(double x);   // x < 0: code 1
double script_ln(double x);     // x <= 0: code 1, unless the pass-through switch is on
double script_log10(double x);  // x <= 0: code 1
double script_log1p(double x);  // x <= -1: code 1
double script_expm1(double x);
double script_acos(double x);  // |x| > 1: code 1
double script_asin(double x);  // |x| > 1: code 1
double script_cosh(double x);  // an infinite result gives the missing value
double script_sinh(double x);
double script_tan(double x);
double script_asinh(double x);
double script_acosh(double x);  // |x| < 1 or x <= -1
double script_atanh(double x);  // |x| >= 1
double script_cot(double x);    // 1/tan x; tan x exactly 0 refused
double script_acot(double x);
double script_coth(double x);
double script_acoth(double x);  // |x| <= 1
double script_secant(double x);
double script_csc(double x);
double script_asec(double x);  // |x| < 1
double script_acsc(double x);  // |x| < 1
double script_sech(double x);
double script_csch(double x);
double script_asech(double x);            // x <= 0 or x > 1
double script_acsch(double x);            // x = 0
double script_hypot(double x, double y);  // a negative leg: code 1
double script_angle(double x, double y);  // polar angle in [0, 2pi); (0, 0): code 1
double script_bessel_j0(double x);
double script_bessel_j1(double x);
double script_bessel_jn(double n, double x);
double script_bessel_y0(double x);  // x <= 0: code 1
double script_bessel_y1(double x);
double script_bessel_yn(double n, double x);
// x rounded to an unsigned 32-bit integer; a negative x gives nint(x) read
// as unsigned; x + 0.5 >= 4294967295 gives 4294967295.
unsigned script_nuint(double x);

// The non-positive-logarithm switch (default off): with it on, ln of x <= 0
// returns the runtime's result (an infinity or NaN) without an error.
bool ln_non_positive_passes_through();
void set_ln_non_positive_passes_through(bool on);

}  // namespace kiln::math
