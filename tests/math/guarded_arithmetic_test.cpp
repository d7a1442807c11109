// Remainders, tolerant comparison and the guarded power, division and log10.
#include <gtest/gtest.h>

#include <cerrno>
#include <cmath>
#include <limits>

#include <kilnutil/frame.h>
#include <kilnutil/math.h>

#include "frame/missing_value.h"
#include "math/error_code.h"

namespace {

constexpr double kMissing = kiln::frame::kMissingValue;
constexpr double kInf = std::numeric_limits<double>::infinity();

struct IntRemainderCase {
  int a, b, truncated, floored;
};

struct RealRemainderCase {
  double x, y, truncated, floored;
};

TEST(MathGuardedArithmetic, RemaindersAndTheirZeroDivisor) {
  const IntRemainderCase ints[] = {{-7, 3, -1, 2}, {7, -3, 1, -2}, {7, 3, 1, 1}, {-2147483647 - 1, -1, 0, 0}};
  for (const IntRemainderCase& c : ints) {
    if (c.b != -1) {  // the lowest value over -1 faults in the processor's division
      EXPECT_EQ(mod(c.a, c.b), c.truncated) << c.a;
    }
    EXPECT_EQ(mod2(c.a, c.b), c.floored) << c.a;
  }
  const RealRemainderCase reals[] = {{-7, 3, -1, 2}, {5.5, -2, 1.5, -0.5}, {-0.25, 1, -0.25, 0.75}};
  for (const RealRemainderCase& c : reals) {
    EXPECT_EQ(rmod(c.x, c.y), c.truncated) << c.x;
    EXPECT_EQ(KILNUTIL_mrmod2(c.x, c.y), c.floored) << c.x;
  }
  struct ZeroDivisor {
    double result;
    double expected;
  };
  kiln::math::clear_error_code();
  const ZeroDivisor zeros[] = {{static_cast<double>(mod(5, 0)), 0.0},
                               {static_cast<double>(mod2(5, 0)), 0.0},
                               {rmod(5.0, 0.0), kMissing},
                               {KILNUTIL_mrmod2(5.0, 0.0), 5.0}};
  for (const ZeroDivisor& z : zeros) EXPECT_EQ(z.result, z.expected);
  EXPECT_EQ(get_error_code(), KILNUTIL_MATH_ERR_DOMAIN);
  kiln::math::clear_error_code();
}

struct CompareCase {
  double a, b, tol;
  int equal, not_equal;
};

TEST(MathGuardedArithmetic, ToleranceComparison) {
  const CompareCase cases[] = {
      {1, 1 + 1e-15, kMissing, 1, 0},  // the default tolerance 1e-14
      {0, 1e-300, kMissing, 0, 1},     // zero is compared exactly
      {1e-300, 0, kMissing, 0, 1},
      {0, 0, kMissing, 1, 0},
      {1, 1 + 1e-15, 0, 0, 1},  // tolerance 0: exact
      {3, 1, 0.5, 0, 0},        // r = 0.5 exactly: neither equal nor unequal
      {3, 1, 0.5000001, 1, 0},
      {kMissing, kInf, kMissing, 1, 0},
      {kMissing, kMissing, kMissing, 1, 0},
      {std::nan(""), kMissing, kMissing, 1, 0},
      {kMissing, 2.0, kMissing, 0, 1},
  };
  for (const CompareCase& c : cases) {
    EXPECT_EQ(KILNUTIL_double_compare_ex(c.a, c.b, c.tol, KILNUTIL_COMPARE_EQUAL), c.equal) << c.a << " " << c.b;
    EXPECT_EQ(KILNUTIL_double_compare_ex(c.a, c.b, c.tol, KILNUTIL_COMPARE_NOT_EQUAL), c.not_equal)
        << c.a << " " << c.b;
  }
  EXPECT_EQ(KILNUTIL_double_compare_ex(1, 1, 0, '<'), 0);
}

TEST(MathGuardedArithmetic, NonFiniteSwitchOffUsesTheRelativeFormula) {
  KILNUTIL_TreatNonFiniteNumericAsNANUM(0, 0);
  EXPECT_EQ(KILNUTIL_double_compare_ex(kMissing, kInf, kMissing, KILNUTIL_COMPARE_EQUAL), 0);  // r is NaN
  EXPECT_EQ(KILNUTIL_double_compare_ex(kMissing, kMissing, kMissing, KILNUTIL_COMPARE_EQUAL), 1);
  EXPECT_EQ(KILNUTIL_double_compare_ex(kMissing, 2.0, kMissing, KILNUTIL_COMPARE_NOT_EQUAL), 1);
  KILNUTIL_TreatNonFiniteNumericAsNANUM(0, 1);
}

TEST(MathGuardedArithmetic, StoredTolerancesApplyUntilReset) {
  EXPECT_EQ(is_equal(1e-3, 0, KILNUTIL_COMPARE_SET_TOLERANCE), 0);
  EXPECT_EQ(is_equal(1.0, 1.0001, KILNUTIL_COMPARE_EQUAL), 1);
  EXPECT_EQ(KILNUTIL_double_compare_ex(1.0, 1.0001, kMissing, KILNUTIL_COMPARE_EQUAL), 0);
  is_equal(1e-14, 0, KILNUTIL_COMPARE_SET_TOLERANCE);
  KILNUTIL_double_compare_ex(1e-3, 0, 0, KILNUTIL_COMPARE_SET_TOLERANCE);
  EXPECT_EQ(KILNUTIL_double_compare_ex(1.0, 1.0001, kMissing, KILNUTIL_COMPARE_EQUAL), 1);
  KILNUTIL_double_compare_ex(1e-14, 0, 0, KILNUTIL_COMPARE_SET_TOLERANCE);
  EXPECT_EQ(is_equal(1.0, 1.0001, KILNUTIL_COMPARE_EQUAL), 0);
}

TEST(MathGuardedArithmetic, ZeroTest) {
  const double values[] = {0.0, kMissing, 5e-291, -5e-291, 1e-289, 1.0};
  const int expected[] = {1, 1, 1, 1, 0, 0};
  for (int i = 0; i < 6; ++i) EXPECT_EQ(KILNUTIL_test_double_for_zero(values[i]), expected[i]) << values[i];
}

struct PowerCase {
  double base, exponent, expected;
};

TEST(MathGuardedArithmetic, PowerDomainAndLimits) {
  // Whether an underflow to zero is a range error is the C runtime's choice:
  // glibc reports it, the Windows runtime does not (the result is then 0).
  errno = 0;
  volatile double tiny_base = 2;
  static_cast<void>(std::pow(tiny_base, -1100.0));
  const double underflow_result = errno == ERANGE ? kMissing : 0.0;
  const PowerCase cases[] = {
      {0, 0, kMissing},
      {0, -1, kMissing},
      {0, 2, 0},
      {-8, 1.0 / 3, kMissing},
      {-2, 3, -8},
      {10, 400, kMissing},
      {10, -400, 0},
      {2, 0.5, std::sqrt(2.0)},
      {kMissing, 1, kMissing},
      {2, kMissing, kMissing},
      {2, -1100, underflow_result},
      {-2, 2.0000000000000004, kMissing},  // whole within the is_equal tolerance, refused by the runtime
  };
  for (const PowerCase& c : cases) {
    EXPECT_EQ(KILNUTIL_pow(c.base, c.exponent), c.expected) << c.base << "^" << c.exponent;
    EXPECT_EQ(KILNUTIL_my_power(c.base, c.exponent), c.expected) << c.base << "^" << c.exponent;
  }
}

// A null result pointer reaches the zero-to-the-power-zero switch: with a base
// it stores (*base > 0), with none it reads it back.
TEST(MathGuardedArithmetic, SafePowerPointersAndItsSwitch) {
  const double one = 1, zero = 0, ten = 10, two = 2, big = 400, huge = 2000;
  EXPECT_EQ(KILNUTIL_safe_power(nullptr, nullptr, nullptr), 0);
  EXPECT_EQ(KILNUTIL_safe_power(nullptr, &one, nullptr), 1);
  EXPECT_EQ(KILNUTIL_safe_power(nullptr, nullptr, nullptr), 1);
  EXPECT_EQ(KILNUTIL_pow(0, 0), 1.0);
  double written = -1;
  EXPECT_EQ(KILNUTIL_safe_power(&written, &zero, &zero), 1);
  EXPECT_EQ(written, 1.0);
  EXPECT_EQ(KILNUTIL_safe_power(nullptr, &zero, &big), 1);  // 0 > 0 is false: switch off
  EXPECT_EQ(KILNUTIL_safe_power(nullptr, nullptr, nullptr), 0);
  EXPECT_EQ(KILNUTIL_my_power(0, 0), kMissing);

  written = -1;
  EXPECT_EQ(KILNUTIL_safe_power(&written, &ten, &big), 0);
  EXPECT_EQ(written, -1);  // decided before the runtime: nothing written
  EXPECT_EQ(KILNUTIL_safe_power(&written, &two, &huge), 0);
  EXPECT_EQ(written, kInf);  // the runtime's overflow is written, then refused
  EXPECT_EQ(KILNUTIL_safe_power(&written, &two, &ten), 1);
  EXPECT_EQ(written, 1024.0);
}

TEST(MathGuardedArithmetic, DivideLogIncrementPercentage) {
  EXPECT_EQ(KILNUTIL_safe_double_divide(1, 1e-309, 7), 7);
  EXPECT_EQ(KILNUTIL_safe_double_divide(1, 0, 7), 7);
  EXPECT_EQ(KILNUTIL_safe_double_divide(kMissing, 2, 7), 7);
  EXPECT_EQ(KILNUTIL_safe_double_divide(1e-10, 1e-300, 7), 1e290);
  EXPECT_EQ(KILNUTIL_safe_double_divide(-3, 2, 7), -1.5);

  EXPECT_EQ(KILNUTIL_mylog10(0), kMissing);
  EXPECT_EQ(KILNUTIL_mylog10(kMissing), kMissing);
  EXPECT_NE(KILNUTIL_mylog10(1000), 3.0);  // ln(1000)/ln(10) is one ulp off
  *IsReduceErrorForLog10() = 1;
  EXPECT_EQ(KILNUTIL_mylog10(1000), 3.0);
  *IsReduceErrorForLog10() = 0;

  struct IncrementCase {
    double x, inc;
    int up;
    double expected;
  } increments[] = {
      {7.3, 2, KILNUTIL_ROUND_TO_INC_UP, 8},
      {7.3, -2, KILNUTIL_ROUND_TO_INC_DOWN, 6},
      {6.0 - 1e-11, 2, KILNUTIL_ROUND_TO_INC_DOWN, 6},  // within 1e-10 of a step below 6
      {5.9999, 2, KILNUTIL_ROUND_TO_INC_DOWN, 4},
      {-7.3, 2, KILNUTIL_ROUND_TO_INC_UP, -6},
      {5, 0, KILNUTIL_ROUND_TO_INC_UP, 5},
      {0.7, 0.25, 7, 0.75},  // any non-zero up rounds up
  };
  for (const IncrementCase& c : increments) {
    EXPECT_DOUBLE_EQ(KILNUTIL_round_to_inc(c.x, c.inc, c.up), c.expected) << c.x;
  }

  short slot = 40;
  EXPECT_EQ(KILNUTIL_percentage_value(&slot, KILNUTIL_PERCENTAGE_SET, 150), 40);
  EXPECT_EQ(slot, 40);
  EXPECT_EQ(KILNUTIL_percentage_value(&slot, KILNUTIL_PERCENTAGE_SET, 100), 100);
  EXPECT_EQ(KILNUTIL_percentage_value(&slot, KILNUTIL_PERCENTAGE_GET, 5), 100);
  EXPECT_EQ(KILNUTIL_percentage_value(&slot, 2, 5), 100);  // any non-zero get reads
  EXPECT_EQ(slot, 100);
}

}  // namespace
