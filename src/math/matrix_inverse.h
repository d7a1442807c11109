// Matrix inversion by Gauss-Jordan elimination with full pivoting in place,
// and the process-wide pivot exponent p that makes a pivot below 10^-p count
// as singular.
#pragma once

#include <kilnutil/math.h>

namespace kiln::math {

// Inverts the n x n matrix a (element (i, j) at i * n + j) and returns
// KILNUTIL_INVERSE_OK, KILNUTIL_INVERSE_NO_ROOM (n above 128, or no memory
// for the copy of KILNUTIL_INVERSE_MODE_COPY) or KILNUTIL_INVERSE_SINGULAR.
int invert_matrix(unsigned n, double* a, unsigned mode);

// The pivot exponent: 35 at load.
double pivot_exponent();
void set_pivot_exponent(double exponent);

}  // namespace kiln::math
