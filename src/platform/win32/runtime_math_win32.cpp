// The Bessel functions of the Windows C runtime. Its <math.h> declares them
// only outside strict standard mode, so they are declared here.
#include "platform/runtime_math.h"

extern "C" {
double __cdecl _j0(double x);
double __cdecl _j1(double x);
double __cdecl _jn(int n, double x);
double __cdecl _y0(double x);
double __cdecl _y1(double x);
double __cdecl _yn(int n, double x);
}

namespace kiln::platform {

double bessel_j0(double x) { return ::_j0(x); }
double bessel_j1(double x) { return ::_j1(x); }
double bessel_jn(int n, double x) { return ::_jn(n, x); }
double bessel_y0(double x) { return ::_y0(x); }
double bessel_y1(double x) { return ::_y1(x); }
double bessel_yn(int n, double x) { return ::_yn(n, x); }

}  // namespace kiln::platform
