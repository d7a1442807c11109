// Student t, F and chi-square: tails and quantiles against mpmath values
// (data/make_special.py), the block entry points, and the searches that
// must end even where they cannot settle.
#include <kilnutil/frame.h>
#include <kilnutil/math.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "math/special_reference.h"

namespace {

using special_test::close_to;
using special_test::Reference;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

int df(double value) { return static_cast<int>(value); }
unsigned udf(double value) { return static_cast<unsigned>(value); }

TEST(MathDistT, TailsAgreeWithReferenceAndBySymmetry) {
  for (const Reference& r : special_test::kTCdfRows) {
    EXPECT_TRUE(close_to(invt(r.x, df(r.y)), r.value, 1e-6)) << "t=" << r.x << " df=" << r.y;
    EXPECT_TRUE(close_to(probt(r.x, df(r.y)), invt(r.x, df(r.y)), 1e-12)) << "t=" << r.x;
  }
  EXPECT_EQ(invt(KILNUTIL_NANUM, 5), KILNUTIL_NANUM);
  EXPECT_EQ(probt(KILNUTIL_NANUM, 5), KILNUTIL_NANUM);
  EXPECT_EQ(invt(1, 0), KILNUTIL_NANUM);
}

TEST(MathDistT, QuantileBisection) {
  for (const Reference& r : special_test::kTQuantileRows) {
    EXPECT_TRUE(close_to(tTable(r.x, df(r.y)), r.value, 2e-6)) << "p=" << r.x << " df=" << r.y;
  }
  // The median comes out as the last midpoint, negated: tiny and negative.
  const double median = tTable(0.5, 7);
  EXPECT_LT(median, 0.0);
  EXPECT_GT(median, -1e-6);
  for (const double bad_p : {0.0, 1.0, -0.5, KILNUTIL_NANUM}) EXPECT_EQ(tTable(bad_p, 5), KILNUTIL_NANUM) << bad_p;
  EXPECT_EQ(tTable(0.9, 0), KILNUTIL_NANUM);
}

// The coarse block form stops at 3e-7 on [0, 636]: its own midpoints.
TEST(MathDistT, CoarseBlockQuantileKeepsItsMidpoints) {
  for (const Reference& r : special_test::kTCoarseRows) {
    const double block[] = {r.x, r.y + 0.75};  // df is truncated
    EXPECT_TRUE(close_to(t_dist_export(block), r.value, 1e-15)) << "p=" << r.x << " df=" << r.y;
    double out = 0;
    EXPECT_EQ(t_dist_export_ptr(block, &out), 0);
    EXPECT_EQ(out, t_dist_export(block));
  }
  const double no_checks[] = {1.5, -3};  // no argument checks, still a number
  EXPECT_NE(t_dist_export(no_checks), KILNUTIL_NANUM);
  EXPECT_EQ(t_dist_export_ptr(nullptr, nullptr), 0);
}

TEST(MathDistF, TailAndQuantile) {
  for (const Reference& r : special_test::kFCdfRows) {
    EXPECT_TRUE(close_to(invf(r.x, df(r.y), df(r.z)), r.value, 1e-6)) << r.x << ", " << r.y << ", " << r.z;
  }
  for (const Reference& r : special_test::kFQuantileRows) {
    EXPECT_TRUE(close_to(Ftable(r.x, udf(r.y), udf(r.z)), r.value, 2e-6)) << r.x << ", " << r.y << ", " << r.z;
    const double block[] = {r.x, r.y + 0.9, r.z + 0.1};
    EXPECT_EQ(F_dist_export(block), Ftable(r.x, udf(r.y), udf(r.z)));
  }
  EXPECT_EQ(invf(-1, 2, 2), KILNUTIL_NANUM);
  EXPECT_EQ(invf(1, 2, 0), KILNUTIL_NANUM);
}

TEST(MathDistF, QuantileFailures) {
  struct Case {
    double p;
    unsigned df1, df2;
  };
  const Case cases[] = {{0, 2, 2}, {1, 2, 2}, {0.5, 0, 2}, {0.5, 2, 0}, {kNaN, 3, 3}};
  for (const Case& c : cases) {
    EXPECT_EQ(Ftable(c.p, c.df1, c.df2), KILNUTIL_NANUM) << c.p << ", " << c.df1 << ", " << c.df2;
    EXPECT_EQ(get_error_code(), KILNUTIL_MATH_ERR_DOMAIN);
  }
  const double block[] = {0.5, 0.99, 4};  // df1 truncates to 0
  double out = 0;
  EXPECT_EQ(F_dist_export_ptr(block, &out), 0);
  EXPECT_EQ(out, KILNUTIL_NANUM);
}

// Newton's method cycles across the incomplete beta's branch point at
// p = 0.5, df1 = df2 = 2; the capped search ends with code 1.
TEST(MathDistF, CyclingSearchEnds) {
  EXPECT_EQ(Ftable(0.5, 2, 2), KILNUTIL_NANUM);
  EXPECT_EQ(get_error_code(), KILNUTIL_MATH_ERR_DOMAIN);
  EXPECT_NE(Ftable(0.5, 3000000000u, 3000000000u), 0.0);  // density far below the doubles: ends too
}

TEST(MathDistChisq, TailsMatchReference) {
  for (const Reference& r : special_test::kChisqCdfRows) {
    EXPECT_TRUE(close_to(invchisq(r.x, udf(r.y)), r.value, 2e-9)) << "x=" << r.x << " df=" << r.y;
    double upper = 0;
    EXPECT_EQ(chisquare_prob_Q_export_ptr(&upper, r.x, r.y), 0);
    EXPECT_TRUE(close_to(upper, 1 - r.value, 1e-8, 1e-3)) << "x=" << r.x << " df=" << r.y;
  }
}

TEST(MathDistChisq, QuantileAndItsMinusOneFailures) {
  for (const Reference& r : special_test::kChisqQuantileRows) {
    EXPECT_TRUE(close_to(ChisqDist(r.x, udf(r.y)), r.value, 1e-7)) << "p=" << r.x << " df=" << r.y;
    const double block[] = {r.x, r.y};
    double out = 0;
    EXPECT_EQ(Chisqr_dist_export_ptr(block, &out), 0);
    EXPECT_EQ(out, ChisqDist(r.x, udf(r.y)));
  }
  struct Case {
    double p, df;
  };
  const Case failures[] = {{1, 3}, {-0.1, 3}, {0.5, 0}, {0.5, 0.5}};
  for (const Case& c : failures) {
    const double block[] = {c.p, c.df};
    EXPECT_EQ(Chisqr_dist_export(block), -1.0) << c.p << ", " << c.df;
  }
  EXPECT_EQ(Chisqr_dist_export(nullptr), -1.0);
  // From about 6.7e7 degrees of freedom the start value is the result.
  for (const Reference& r : special_test::kChisqStartRows) {
    EXPECT_TRUE(close_to(ChisqDist(r.x, udf(r.y)), r.value, 1e-12)) << "p=" << r.x << " df=" << r.y;
  }
  EXPECT_TRUE(std::isnan(ChisqDist(kNaN, 3)));  // a NaN step ends the search
}

}  // namespace
