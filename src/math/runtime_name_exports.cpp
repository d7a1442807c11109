// The script functions exported under C runtime names. This file is built
// only into the shared library, without <cmath>/<math.h> and without the
// compiler's built-in knowledge of these names (round here takes a number of
// places); the library's own calls to the runtime functions of the same
// names are bound to the runtime at link time (src/platform/
// runtime_name_bindings.cpp), so nothing inside the library reaches these.
#define KILNUTIL_DECLARE_RUNTIME_NAMES 1
#include <kilnutil/math.h>

#include "math/elementary.h"
#include "math/power.h"
#include "math/rounding.h"

extern "C" {

double round(double x, int n) { return kiln::math::round_decimals(x, n); }
double ceil(double x) { return kiln::math::ceil_or_missing(x); }
double floor(double x) { return kiln::math::floor_or_missing(x); }
double pow(double base, double exponent) { return kiln::math::power_or_missing(base, exponent); }
double sqrt(double x) { return kiln::math::script_sqrt(x); }
double log10(double x) { return kiln::math::script_log10(x); }
double log1p(double x) { return kiln::math::script_log1p(x); }
double expm1(double x) { return kiln::math::script_expm1(x); }
double acos(double x) { return kiln::math::script_acos(x); }
double asin(double x) { return kiln::math::script_asin(x); }
double cosh(double x) { return kiln::math::script_cosh(x); }
double sinh(double x) { return kiln::math::script_sinh(x); }
double tan(double x) { return kiln::math::script_tan(x); }
double asinh(double x) { return kiln::math::script_asinh(x); }
double acosh(double x) { return kiln::math::script_acosh(x); }
double atanh(double x) { return kiln::math::script_atanh(x); }
double hypot(double x, double y) { return kiln::math::script_hypot(x, y); }

}  // extern "C"
