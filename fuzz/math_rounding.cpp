// Arbitrary doubles (NaN, infinities, the missing value, subnormals, huge
// values) through every scalar export of rounding, comparison, guarded
// arithmetic and the elementary wrappers: no crash, no undefined behaviour,
// no hang. The exports named like C runtime functions live only in the shared
// library; their internal functions are called instead. Bessel orders are
// kept below a million: the runtime's cost grows linearly with the order.
#include <kilnutil/frame.h>
#include <kilnutil/math.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "math/elementary.h"
#include "math/power.h"
#include "math/rounding.h"

namespace {

void check(bool condition) {
  if (!condition) std::abort();
}

double take(const std::uint8_t*& data, std::size_t& size) {
  double v = 0.0;
  if (size >= sizeof v) {
    std::memcpy(&v, data, sizeof v);
    data += sizeof v;
    size -= sizeof v;
  }
  return v;
}

int as_int(double v) { return KILNUTIL_tint(v); }

double bessel_order(double n) { return std::isfinite(n) ? std::fmod(n, 1e6) : n; }  // NaN, +-inf: NaN result

void rounding(double x, double y, int n) {
  KILNUTIL_mround(x, n);
  prec(x, n);
  kiln::math::round_decimals(x, n);
  kiln::math::round_decimals_old(x, n);
  kiln::math::ceil_or_missing(x);
  kiln::math::floor_or_missing(x);
  nint(x);
  nint2(x);
  KILNUTIL_nint64(x);
  KILNUTIL_lnint(x);
  KILNUTIL_round_to_inc(x, y, (n & 1) != 0 ? KILNUTIL_ROUND_TO_INC_UP : KILNUTIL_ROUND_TO_INC_DOWN);
  const int c = KILNUTIL_nnint(x);
  const int f = KILNUTIL_last_nint(x);
  const int t = KILNUTIL_tint(x);
  check(std::isnan(x) || (c >= -2147483600 && c <= 2147483600 && f <= 2147483600 && t <= 2147483600));
}

void arithmetic(double x, double y, int a, int b) {
  if (!(a == -2147483647 - 1 && b == -1)) mod(a, b);  // that pair faults as the processor does
  mod2(a, b);
  rmod(x, y);
  KILNUTIL_mrmod2(x, y);
  KILNUTIL_double_compare_ex(x, y, std::fabs(x - y), KILNUTIL_COMPARE_EQUAL);
  KILNUTIL_double_compare_ex(x, y, KILNUTIL_NANUM, KILNUTIL_COMPARE_NOT_EQUAL);
  is_equal(x, y, KILNUTIL_COMPARE_EQUAL);
  KILNUTIL_test_double_for_zero(x);
  double result = 0.0;
  KILNUTIL_safe_power(&result, &x, &y);
  KILNUTIL_pow(x, y);
  KILNUTIL_my_power(y, x);
  KILNUTIL_safe_double_divide(x, y, 7.0);
  KILNUTIL_mylog10(x);
  short slot = 50;
  check(KILNUTIL_percentage_value(&slot, KILNUTIL_PERCENTAGE_SET, a) == (a < 101 ? static_cast<short>(a) : 50));
}

void elementary(double x, double y) {
  namespace m = kiln::math;
  m::script_sqrt(x);
  m::script_ln(x);
  m::script_log10(x);
  m::script_log1p(x);
  m::script_expm1(x);
  m::script_acos(x);
  m::script_asin(x);
  m::script_asinh(x);
  m::script_acosh(x);
  m::script_atanh(x);
  const double overflowing[] = {m::script_cosh(x), m::script_sinh(x), m::script_tan(x)};
  for (double v : overflowing) check(!std::isinf(v));  // an infinite result is the missing value
  cot(x);
  acot(x);
  coth(x);
  acoth(x);
  secant(x);
  csc(x);
  asec(x);
  acsc(x);
  sech(x);
  csch(x);
  asech(x);
  acsch(x);
  J0(x);
  J1(x);
  Y0(x);
  Y1(x);
  m::script_hypot(x, y);
  const double a = angle(x, y);
  check(std::isnan(a) || a == KILNUTIL_NANUM || (a >= 0 && a <= 6.283185307179587));
  Jn(bessel_order(y), x);
  Yn(bessel_order(y), x);
  nUINT(x);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const double x = take(data, size);
  const double y = take(data, size);
  const double z = take(data, size);
  const int n = as_int(z);
  rounding(x, y, n);
  arithmetic(x, y, as_int(x), n);
  elementary(x, y);
  return 0;
}
