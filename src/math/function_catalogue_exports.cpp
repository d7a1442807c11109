// The math dispatcher export: a forward to math/function_dispatcher.h. The
// context pointer belongs to the host's interpreter and is not used.
#include <kilnutil/math.h>

#include "math/function_dispatcher.h"

extern "C" {

unsigned int KilnMath_function(void* context, unsigned int command, void* arguments, void* result,
                               unsigned short unit) {
  (void)context;
  return kiln::math::run_math_function(command, arguments, result, unit);
}

}  // extern "C"
