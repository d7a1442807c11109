// Rounding to decimal places and to significant digits, and the library's
// ceiling and floor. This header does not include <cmath>, so the file that
// defines the exports named like C runtime functions can use it.
#pragma once

namespace kiln::math {

// x rounded to n decimal places by the algorithm the new-rounding switch
// selects; n > 308 gives x unchanged.
double round_decimals(double x, int n);
// The two algorithms. New: half away from zero with the halfway test made
// against the unscaled value; a negative n rounds to tens, hundreds, ...
// Old: only the fraction is scaled, so a negative n returns the integer part.
double round_decimals_new(double x, int n);
double round_decimals_old(double x, int n);

// The new-rounding switch (default 1): a plain byte handed to the host by
// pointer, read on every call.
unsigned char* round_new_algorithm_flag();

// x rounded to n significant digits; 0 gives 0; 10^n above 2147483647 gives
// the missing value with error code 1.
double round_significant(double x, int n);

// Half away from zero: nint inside the 32-bit range, else the 64-bit form
// clamped at +-2^63 (the rounding step of significant digits and NINT).
double nint_any(double v);

// 10^n exactly as the runtime's pow gives it (a table for whole n within
// +-22, which the rounding functions mostly use).
double power_of_ten(double n);

// Ceiling and floor that give the missing value for the missing value and
// for an infinite result.
double ceil_or_missing(double x);
double floor_or_missing(double x);

}  // namespace kiln::math
