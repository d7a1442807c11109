// Matrix inversion: the exports.
#include "math/matrix_inverse.h"

extern "C" {

int KilnMath_Inverse(unsigned short n, double* a, unsigned short mode) {
  if (a == nullptr && n > 0 && n <= KILNUTIL_INVERSE_MAX_ORDER) return KILNUTIL_INVERSE_NO_ROOM;
  return kiln::math::invert_matrix(n, a, mode);
}

int gaussjordan_pivotmin_export_ptr(double* value, int set) {
  if (value == nullptr) return 0;
  if (set != 0) {
    kiln::math::set_pivot_exponent(*value);
  } else {
    *value = kiln::math::pivot_exponent();
  }
  return 0;
}

}  // extern "C"
