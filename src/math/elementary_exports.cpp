// The elementary function wrappers whose names are the library's own.
#include <kilnutil/math.h>

#include "math/elementary.h"

extern "C" {

double ln(double x) { return kiln::math::script_ln(x); }
double cot(double x) { return kiln::math::script_cot(x); }
double acot(double x) { return kiln::math::script_acot(x); }
double coth(double x) { return kiln::math::script_coth(x); }
double acoth(double x) { return kiln::math::script_acoth(x); }
double secant(double x) { return kiln::math::script_secant(x); }
double csc(double x) { return kiln::math::script_csc(x); }
double asec(double x) { return kiln::math::script_asec(x); }
double acsc(double x) { return kiln::math::script_acsc(x); }
double sech(double x) { return kiln::math::script_sech(x); }
double csch(double x) { return kiln::math::script_csch(x); }
double asech(double x) { return kiln::math::script_asech(x); }
double acsch(double x) { return kiln::math::script_acsch(x); }
double angle(double x, double y) { return kiln::math::script_angle(x, y); }
double J0(double x) { return kiln::math::script_bessel_j0(x); }
double J1(double x) { return kiln::math::script_bessel_j1(x); }
double Jn(double n, double x) { return kiln::math::script_bessel_jn(n, x); }
double Y0(double x) { return kiln::math::script_bessel_y0(x); }
double Y1(double x) { return kiln::math::script_bessel_y1(x); }
double Yn(double n, double x) { return kiln::math::script_bessel_yn(n, x); }
unsigned int nUINT(double x) { return kiln::math::script_nuint(x); }

int KILNUTIL_SetLnNonPositivePassThrough(int on) {
  const bool previous = kiln::math::ln_non_positive_passes_through();
  kiln::math::set_ln_non_positive_passes_through(on != 0);
  return previous ? 1 : 0;
}

int KILNUTIL_GetLnNonPositivePassThrough(void) { return kiln::math::ln_non_positive_passes_through() ? 1 : 0; }

}  // extern "C"
