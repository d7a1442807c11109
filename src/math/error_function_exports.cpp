// The error function and its inverse.
#include <kilnutil/math.h>

#include "math/block_args.h"
#include "math/error_function.h"

extern "C" {

double error_func_export(double x) { return kiln::math::error_function(x); }

int error_func_export_ptr(double* inout) {
  if (inout == nullptr) return 0;
  return kiln::math::write_through(inout, kiln::math::error_function(*inout));
}

double inverf(double y) { return kiln::math::inverse_error_function(y); }

double inv_erf_export(double y) { return kiln::math::inverse_error_function(y); }

}  // extern "C"
