/* A C host that links the C math library and this library, and calls the C
 * runtime's functions that share a name with the library's exports: it must
 * get the runtime's answers. It also checks that the library's own use of the
 * runtime's pow inside KILNUTIL_safe_power reaches the runtime (whose pow of
 * 2 to the missing value is 1) and not the library's pow export (which would
 * give the missing value). Built without the compiler's built-in math so
 * every call is a real call. */
#include <kilnutil/frame.h>
#include <kilnutil/math.h>

#include <math.h>
#include <stdio.h>

static int failures = 0;

static void expect(int condition, const char* what) {
  if (!condition) {
    printf("FAILED: %s\n", what);
    ++failures;
  }
}

int main(void) {
  volatile double minus_one = -1.0;
  volatile double zero = 0.0;
  volatile double two_and_half = 2.5;
  expect(isnan(sqrt(minus_one)), "sqrt(-1) is NaN");
  expect(pow(zero, zero) == 1.0, "pow(0, 0) is 1");
  expect(round(two_and_half) == 3.0, "round(2.5) is 3");
  expect(floor(-INFINITY) == -INFINITY, "floor(-inf) is -inf");
  expect(isinf(log10(zero)), "log10(0) is -inf");
  expect(isnan(acos(2.0 + zero)), "acos(2) is NaN");
  expect(hypot(-3.0 + zero, 4.0) == 5.0, "hypot(-3, 4) is 5");

  double result = 0.0;
  const double base = 2.0;
  const double exponent = get_missing_value();
  expect(KILNUTIL_safe_power(&result, &base, &exponent) == 1 && result == 1.0, "the library's pow reaches the runtime");
  printf("runtime names: %s\n", failures ? "FAILED" : "ok");
  return failures ? 1 : 0;
}
