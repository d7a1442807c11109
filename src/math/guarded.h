// Guarded division and common logarithm, rounding to an increment, and the
// percentage slot.
#pragma once

namespace kiln::math {

// a/b, or fallback when a or b is the missing value or the quotient could
// overflow (|b| < 1 and |b| * 1.7e308 <= |a|; so b = 0 always falls back).
double divide_or(double a, double b, double fallback);

// Common logarithm; the missing value for the missing value and x <= 0.
// With the exact-log10 switch off (default), ln(x)/ln(10).
double log10_or_missing(double x);
// The exact-log10 switch: a plain byte handed to the host by pointer.
unsigned char* exact_log10_flag();

// x rounded to a multiple of |inc|: up toward +infinity (the ceiling of
// x/|inc|), otherwise down with a tolerance of 1e-10 of a step. inc 0: x.
double round_to_increment(double x, double inc, bool up);

// get: *slot. Otherwise value is stored when below 101; the slot is returned.
int percentage_value(short* slot, bool get, int value);

}  // namespace kiln::math
