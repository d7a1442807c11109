// Rounding and the double-to-integer family.
#include <kilnutil/math.h>

#include "math/nint.h"
#include "math/rounding.h"

extern "C" {

double KILNUTIL_mround(double x, int n) { return kiln::math::round_decimals(x, n); }

double prec(double x, int n) { return kiln::math::round_significant(x, n); }

unsigned char* IsRoundNewAlgorithm(void) { return kiln::math::round_new_algorithm_flag(); }

int nint(double x) { return kiln::math::nint(x); }

int KILNUTIL_nint(double x) { return kiln::math::nint(x); }

int nint2(double x) { return kiln::math::nint2(x); }

long long KILNUTIL_nint64(double x) { return kiln::math::nint64(x); }

int KILNUTIL_tint(double x) { return kiln::math::tint(x); }

int KILNUTIL_nnint(double x) { return kiln::math::nnint(x); }

int KILNUTIL_last_nint(double x) { return kiln::math::last_nint(x); }

int KILNUTIL_lnint(double x) { return kiln::math::lnint(x); }

}  // extern "C"
