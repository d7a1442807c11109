// The four remainders.
#include <kilnutil/math.h>

#include "math/remainder.h"

extern "C" {

int mod(int a, int b) { return kiln::math::remainder_truncated(a, b); }

int mod2(int a, int b) { return kiln::math::remainder_floored(a, b); }

double rmod(double x, double y) { return kiln::math::remainder_truncated(x, y); }

double KILNUTIL_mrmod2(double x, double y) { return kiln::math::remainder_floored(x, y); }

}  // extern "C"
