// The Bessel functions are POSIX extensions of the C runtime's <math.h>.
#include "platform/runtime_math.h"

#include <math.h>

namespace kiln::platform {

double bessel_j0(double x) { return ::j0(x); }
double bessel_j1(double x) { return ::j1(x); }
double bessel_jn(int n, double x) { return ::jn(n, x); }
double bessel_y0(double x) { return ::y0(x); }
double bessel_y1(double x) { return ::y1(x); }
double bessel_yn(int n, double x) { return ::yn(n, x); }

}  // namespace kiln::platform
