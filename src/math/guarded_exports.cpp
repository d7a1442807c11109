// Guarded power, division and logarithm; increments; the percentage slot.
#include <kilnutil/math.h>

#include "math/guarded.h"
#include "math/power.h"

extern "C" {

int KILNUTIL_safe_power(double* result, const double* base, const double* exponent) {
  if (result == nullptr) {
    if (base == nullptr) return kiln::math::zero_power_zero_allowed() ? 1 : 0;
    kiln::math::set_zero_power_zero_allowed(*base > 0);
    return 1;
  }
  if (base == nullptr || exponent == nullptr) return 0;
  return kiln::math::power_checked(*base, *exponent, result) ? 1 : 0;
}

double KILNUTIL_pow(double base, double exponent) { return kiln::math::power_or_missing(base, exponent); }

double KILNUTIL_my_power(double base, double exponent) { return kiln::math::power_or_missing(base, exponent); }

double KILNUTIL_safe_double_divide(double a, double b, double fallback) {
  return kiln::math::divide_or(a, b, fallback);
}

double KILNUTIL_mylog10(double x) { return kiln::math::log10_or_missing(x); }

unsigned char* IsReduceErrorForLog10(void) { return kiln::math::exact_log10_flag(); }

double KILNUTIL_round_to_inc(double x, double inc, int up) { return kiln::math::round_to_increment(x, inc, up != 0); }

int KILNUTIL_percentage_value(short* slot, int get, int value) {
  if (slot == nullptr) return 0;
  return kiln::math::percentage_value(slot, get != 0, value);
}

}  // extern "C"
