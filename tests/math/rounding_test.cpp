// Rounding to places and digits, and the double-to-integer family.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>

#include <kilnutil/math.h>

#include "frame/missing_value.h"
#include "math/error_code.h"
#include "math/rounding.h"

namespace {

struct RoundCase {
  double x;
  int n;
  double new_result;
  double old_result;
};

// KILNUTIL_mround under each setting of the switch IsRoundNewAlgorithm points
// to (on by default); more than 308 places keep x under both.
TEST(MathRounding, BothAlgorithmsThroughTheSwitch) {
  const RoundCase cases[] = {
      {2.5, 0, 3.0, 3.0},
      {-2.5, 0, -3.0, -3.0},
      {2.675, 2, 2.68, 2.67},  // a*s falls below 267.5: only the unscaled halfway test rounds up
      {1.005, 2, 1.01, 1.0},   // the old form scales the fraction 0.00499999... and rounds down
      {1234.5678, -2, 1200.0, 1234.0},
      {-1234.5678, -2, -1200.0, -1234.0},
      {0.125, 2, 0.13, 0.13},
      {7.0, 3, 7.0, 7.0},
      {-0.0049, 2, -0.0, -0.0},
      {1e300, 5, 1e300, 1e300},
      {0.123456789, 309, 0.123456789, 0.123456789},
  };
  unsigned char* new_algorithm = IsRoundNewAlgorithm();
  ASSERT_EQ(*new_algorithm, 1);
  for (const RoundCase& c : cases) {
    *new_algorithm = 1;
    EXPECT_DOUBLE_EQ(KILNUTIL_mround(c.x, c.n), c.new_result) << c.x << " " << c.n;
    *new_algorithm = 0;
    EXPECT_DOUBLE_EQ(KILNUTIL_mround(c.x, c.n), c.old_result) << c.x << " " << c.n;
  }
  *new_algorithm = 1;
}

// The tabled powers of ten must be the runtime's, or round(x, n) would depend
// on which path produced 10^n.
TEST(MathRounding, TabledPowersAgreeWithTheRuntime) {
  for (int n = -24; n <= 24; ++n) EXPECT_EQ(kiln::math::power_of_ten(n), std::pow(10.0, n)) << n;
  EXPECT_EQ(kiln::math::power_of_ten(0.5), std::pow(10.0, 0.5));
}

struct PrecCase {
  double x;
  int n;
  double expected;
};

TEST(MathRounding, SignificantDigits) {
  const PrecCase cases[] = {
      {0.000123456, 3, 0.000123},
      {123456.0, 2, 120000.0},
      {-987.65, 4, -987.7},
      {0.0, 5, 0.0},
      {9.99, 2, 10.0},
      {2.5, 1, 3.0},
      {1e-310, 2, 1e-310},
      {5e300, 9, 5e300},
      {-1.23456789e-300, 3, -1.23e-300},
  };
  for (const PrecCase& c : cases) {
    EXPECT_NEAR(prec(c.x, c.n), c.expected, std::abs(c.expected) * 4e-16) << c.x << " " << c.n;
  }
  EXPECT_TRUE(std::isnan(prec(std::numeric_limits<double>::infinity(), 3)));
  kiln::math::clear_error_code();
  EXPECT_EQ(prec(1.5, 10), kiln::frame::kMissingValue);  // 10^10 is beyond the 32-bit range
  EXPECT_EQ(get_error_code(), KILNUTIL_MATH_ERR_DOMAIN);
  kiln::math::clear_error_code();
  EXPECT_EQ(prec(1.5, 9), 1.5);
  EXPECT_EQ(get_error_code(), KILNUTIL_MATH_ERR_NONE);
}

TEST(MathRounding, CeilFloorRefuseMissingAndInfinite) {
  const double inf = std::numeric_limits<double>::infinity();
  EXPECT_EQ(kiln::math::ceil_or_missing(-2.5), -2.0);
  EXPECT_EQ(kiln::math::floor_or_missing(-2.5), -3.0);
  EXPECT_EQ(kiln::math::ceil_or_missing(kiln::frame::kMissingValue), kiln::frame::kMissingValue);
  EXPECT_EQ(kiln::math::floor_or_missing(-inf), kiln::frame::kMissingValue);
  EXPECT_EQ(kiln::math::ceil_or_missing(inf), kiln::frame::kMissingValue);
}

struct IntCase {
  double x;
  int nint, nint2, tint, nnint, last_nint, lnint;
};

TEST(MathRounding, IntegerFamilyWithTheirClamps) {
  const IntCase cases[] = {
      //  x              nint         nint2        tint         nnint        last_nint    lnint
      {2.5, 3, 2, 2, 3, 2, 2},
      {-2.5, -3, -3, -2, -2, -3, -3},
      {-2.0, -2, -3, -2, -2, -2, -2},
      {2.99999999999, 3, 2, 2, 3, 3, 3},
      {2.9999999999, 3, 2, 2, 3, 2, 3},  // the single-precision step makes it whole
      {2.9, 3, 2, 2, 3, 2, 2},
      {-2.3, -2, -3, -2, -2, -2, -3},  // last_nint truncates x + 0.5: not the floor below zero
      {3e9, 2147483647, 2147483647, 2147483600, 2147483600, 2147483600, 2147483600},
      {-3e9, -2147483647 - 1, -2147483647 - 1, -2147483600, -2147483600, -2147483600, -2147483600},
      {2147483646.7, 2147483647, 2147483646, 2147483600, 2147483600, 2147483600, 2147483600},
      {-2147483647.9, -2147483647 - 1, -2147483647 - 1, -2147483600, -2147483600, -2147483600, -2147483600},
  };
  for (const IntCase& c : cases) {
    EXPECT_EQ(nint(c.x), c.nint) << c.x;
    EXPECT_EQ(KILNUTIL_nint(c.x), c.nint) << c.x;
    EXPECT_EQ(nint2(c.x), c.nint2) << c.x;
    EXPECT_EQ(KILNUTIL_tint(c.x), c.tint) << c.x;
    EXPECT_EQ(KILNUTIL_nnint(c.x), c.nnint) << c.x;
    EXPECT_EQ(KILNUTIL_last_nint(c.x), c.last_nint) << c.x;
    EXPECT_EQ(KILNUTIL_lnint(c.x), c.lnint) << c.x;
  }
}

TEST(MathRounding, WideAndNonFiniteConversionsAreDefined) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const int lowest = std::numeric_limits<int>::min();
  EXPECT_EQ(KILNUTIL_nint64(-5e12 - 0.5), -5000000000001LL);
  EXPECT_EQ(KILNUTIL_nint64(3e9), 3000000000LL);  // no clamp at the 32-bit range
  EXPECT_EQ(KILNUTIL_nint64(1e19), std::numeric_limits<std::int64_t>::min());
  EXPECT_EQ(KILNUTIL_nint64(-1e19), std::numeric_limits<std::int64_t>::min());
  EXPECT_EQ(KILNUTIL_nint(nan), lowest);
  EXPECT_EQ(KILNUTIL_last_nint(nan), std::numeric_limits<int>::max());
  EXPECT_EQ(KILNUTIL_tint(nan), lowest);
}

}  // namespace
