// Reading the math error code.
#include "math/error_code.h"

extern "C" {

unsigned int get_error_code(void) { return kiln::math::error_code(); }

unsigned int KILNUTIL_get_error_code(void) { return kiln::math::error_code(); }

}  // extern "C"
