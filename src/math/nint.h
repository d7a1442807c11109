// Double to integer: the conversions the script functions and the rounding
// code share. Each clamps as its name's contract says; a value the clamps do
// not catch (NaN, or anything for the unclamped 64-bit form) converts as the
// x86 processor's truncating conversion does, to the lowest integer, so no
// input is undefined behaviour.
#pragma once

#include <cstdint>

namespace kiln::math {

// Half away from zero; x >= 2147483647 gives 2147483647, x <= -2147483648
// gives -2147483648.
int nint(double x);
// Truncation, minus 1 for every negative x (whole or not); clamps as nint.
int nint2(double x);
// Half away from zero in 64 bits, no clamp.
std::int64_t nint64(double x);

// The last four clamp at +-2147483600.
int tint(double x);       // truncation toward zero
int nnint(double x);      // the ceiling
int last_nint(double x);  // n = truncate(x + 0.5), minus 1 unless x - n > -1e-10
int lnint(double x);      // last_nint's test made in single precision

// Truncation toward zero as the processor does it: a value outside the range
// of the result type (or NaN) gives the type's lowest value.
std::int32_t truncate_to_int32(double x);
std::int64_t truncate_to_int64(double x);

}  // namespace kiln::math
