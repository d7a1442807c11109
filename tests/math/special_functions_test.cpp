// ln Γ, beta, the binomial coefficient, the incomplete gamma and beta
// functions, erf and its inverse, and the normal quantiles, against mpmath
// values (data/make_special.py) at each algorithm's accuracy.
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
constexpr double kInf = std::numeric_limits<double>::infinity();

// A call that must fail: the missing value and the given error code.
struct Failure {
  const char* what;
  double result;
  unsigned code;
};

void expect_failures(std::initializer_list<Failure> failures) {
  for (const Failure& f : failures) {
    EXPECT_EQ(f.result, KILNUTIL_NANUM) << f.what;
    EXPECT_EQ(f.code, KILNUTIL_MATH_ERR_DOMAIN) << f.what;
  }
}

TEST(MathSpecialGamma, SixTermSeriesIsGoodToTenDigits) {
  for (const Reference& r : special_test::kLnGammaRows) {
    EXPECT_TRUE(close_to(gammln_export(r.x), r.value, 5e-10, 1.0)) << "x=" << r.x;
    double out = 0;
    EXPECT_EQ(ln_gamma_export_ptr(r.x, &out), 0);
    EXPECT_EQ(out, gammln_export(r.x));
  }
}

// The five-term export keeps its shortened series: its own value, not ln Γ.
TEST(MathSpecialGamma, FiveTermSeriesKeepsItsOwnDigits) {
  for (const Reference& r : special_test::kFiveTermLnGammaRows) {
    EXPECT_TRUE(close_to(gammaln(r.x), r.value, 1e-13, 1.0)) << "x=" << r.x;
  }
  EXPECT_NE(gammaln(1), gammln_export(1));
  EXPECT_LT(std::fabs(gammaln(1)), 1e-7);
}

TEST(MathSpecialGamma, NonPositiveArgumentsAreDomainErrors) {
  expect_failures({{"gammaln(0)", gammaln(0), get_error_code()},
                   {"gammln_export(-2.5)", gammln_export(-2.5), get_error_code()},
                   {"gammaln(missing)", gammaln(KILNUTIL_NANUM), get_error_code()},
                   {"beta(-1, 2)", beta(-1, 2), get_error_code()}});
  EXPECT_EQ(KILNUTIL_get_error_code(), KILNUTIL_MATH_ERR_DOMAIN);  // the same code under its other name
}

TEST(MathSpecialBeta, CompleteBetaAndItsRangeTest) {
  for (const Reference& r : special_test::kBetaRows) {
    EXPECT_TRUE(close_to(beta(r.x, r.y), r.value, 1e-9)) << r.x << ", " << r.y;
  }
  // ln Γ(100) + ln Γ(100) + ln Γ(200) exceeds 665 although B(100, 100) is
  // about 1e-61: the range test is on that sum, and no error code is set.
  EXPECT_EQ(beta(100, 100), KILNUTIL_NANUM);
  EXPECT_EQ(get_error_code(), KILNUTIL_MATH_ERR_NONE);
}

TEST(MathSpecialBeta, BinomialCoefficient) {
  struct Case {
    unsigned n, k;
    double value;
  };
  const Case cases[] = {{5, 2, 10},       {1, 0, 1},           {0, 0, 1},
                        {52, 5, 2598960}, {30, 15, 155117520}, {60, 30, 118264581564861424.0},
                        {3, 5, 0}};
  for (const Case& c : cases) {
    double out = -1;
    EXPECT_EQ(bico_export_ptr(c.n, c.k, &out), 0);
    EXPECT_TRUE(close_to(out, c.value, 1e-9)) << c.n << " over " << c.k;
  }
  EXPECT_EQ(bico_export_ptr(5, 2, nullptr), 0);
}

TEST(MathSpecialIncompleteGamma, MatchesReference) {
  for (const Reference& r : special_test::kIncGammaRows) {
    EXPECT_TRUE(close_to(incgamma(r.x, r.y), r.value, 2e-9)) << "x=" << r.x << " a=" << r.y;
    EXPECT_EQ(get_error_code(), KILNUTIL_MATH_ERR_NONE);
  }
  EXPECT_EQ(incgamma(0, 2), 0.0);
}

// Arguments on which the stated loops would never settle return, with code 1.
TEST(MathSpecialIncompleteGamma, BadAndUnsettledArgumentsReturn) {
  expect_failures({{"x < 0", incgamma(-1, 2), get_error_code()},
                   {"a = 0", incgamma(1, 0), get_error_code()},
                   {"x NaN", incgamma(kNaN, 2), get_error_code()},
                   {"a NaN", incgamma(2, kNaN), get_error_code()},
                   {"x infinite", incgamma(kInf, 2), get_error_code()},
                   {"a + 1 == a", incgamma(1e17 - 16, 1e17), get_error_code()}});
}

TEST(MathSpecialIncompleteBeta, MatchesReferenceToTheFractionTolerance) {
  for (const Reference& r : special_test::kIncBetaRows) {
    EXPECT_TRUE(close_to(incbeta(r.x, r.y, r.z), r.value, 1e-6)) << r.x << ", " << r.y << ", " << r.z;
    const double block[] = {r.x, r.y, r.z};
    double out = 0;
    EXPECT_EQ(incomp_beta_export_ptr(block, &out), 0);
    EXPECT_EQ(out, incbeta(r.x, r.y, r.z));
  }
}

TEST(MathSpecialIncompleteBeta, EdgesAndFailures) {
  EXPECT_EQ(incbeta(0.3, 0, 2), 1.0);
  EXPECT_EQ(incbeta(1, 2, 3), 1.0);
  EXPECT_EQ(incbeta(0, 2, 3), 0.0);
  expect_failures({{"x = a = 0", incbeta(0, 0, 2), get_error_code()},
                   {"x < 0", incbeta(-0.1, 1, 1), get_error_code()},
                   {"x > 1", incbeta(1.5, 1, 1), get_error_code()},
                   {"b < 0", incbeta(0.5, 1, -1), get_error_code()},
                   {"79 iterations do not settle", incbeta(0.5, 1e6, 1e6), get_error_code()},
                   {"x NaN", incbeta(kNaN, 2, 2), get_error_code()}});
  EXPECT_EQ(incomp_beta_export(nullptr), KILNUTIL_NANUM);
}

TEST(MathSpecialErf, MatchesReference) {
  for (const Reference& r : special_test::kErfRows) {
    EXPECT_TRUE(close_to(error_func_export(r.x), r.value, 1e-10)) << "x=" << r.x;
    double inout = r.x;
    EXPECT_EQ(error_func_export_ptr(&inout), 0);
    EXPECT_EQ(inout, error_func_export(r.x));
  }
  EXPECT_EQ(error_func_export(KILNUTIL_NANUM), KILNUTIL_NANUM);
  EXPECT_EQ(error_func_export_ptr(nullptr), 0);
}

TEST(MathSpecialInverseErf, MatchesReferenceAfterOneHalleyStep) {
  for (const Reference& r : special_test::kInvErfRows) {
    EXPECT_TRUE(close_to(inverf(r.x), r.value, 1e-9)) << "y=" << r.x;
    EXPECT_EQ(inv_erf_export(r.x), inverf(r.x));
  }
  // At exactly ±0.7 no start value applies: one Halley step from 0 gives
  // ±0.7·√π/2, far from the true 0.7329.
  const double from_zero = 0.7 * std::sqrt(std::acos(-1.0)) / 2;
  EXPECT_TRUE(close_to(inverf(0.7), from_zero, 1e-15));
  EXPECT_TRUE(close_to(inverf(-0.7), -from_zero, 1e-15));
}

TEST(MathSpecialInverseErf, EndpointsSetTheirOwnCodes) {
  struct Case {
    double y;
    unsigned code;
  };
  const Case cases[] = {{1, KILNUTIL_MATH_ERR_INVERF_PLUS_ONE},
                        {-1, KILNUTIL_MATH_ERR_INVERF_MINUS_ONE},
                        {1.5, KILNUTIL_MATH_ERR_NONE},
                        {KILNUTIL_NANUM, KILNUTIL_MATH_ERR_NONE}};
  for (const Case& c : cases) {
    incgamma(-1, 1);  // leaves code 1: inverf must clear it first
    EXPECT_EQ(inverf(c.y), KILNUTIL_NANUM) << c.y;
    EXPECT_EQ(get_error_code(), c.code) << c.y;
  }
}

TEST(MathSpecialNormal, ThreeQuantilesAtTheirAccuracies) {
  for (const Reference& r : special_test::kNormalQuantileRows) {
    EXPECT_TRUE(close_to(invncp(r.x), r.value, 1e-14, 1e-16)) << "AS 241, p=" << r.x;
    EXPECT_TRUE(close_to(invncp2(r.x), r.value, 1.5e-9, 1e-16)) << "Acklam, p=" << r.x;
    if (r.x >= 1e-3 && r.x <= 0.999) {
      EXPECT_TRUE(close_to(invncp1(r.x), r.value, 1e-9, 1e-16)) << "via inverf, p=" << r.x;
    }
    EXPECT_EQ(gauss_inv_export(r.x), invncp2(r.x));
  }
}

TEST(MathSpecialNormal, QuantileEdges) {
  EXPECT_EQ(invncp(0.5), 0.0);
  EXPECT_FALSE(std::signbit(invncp(0.5)));
  EXPECT_TRUE(std::signbit(invncp2(0.5)));  // -0: negated for p <= 0.5
  inverf(-1);                               // code 3, which invncp leaves alone
  EXPECT_EQ(invncp(0), KILNUTIL_NANUM);
  EXPECT_EQ(invncp(1), KILNUTIL_NANUM);
  EXPECT_EQ(invncp1(1), KILNUTIL_NANUM);
  EXPECT_EQ(get_error_code(), KILNUTIL_MATH_ERR_INVERF_MINUS_ONE);
  expect_failures({{"invncp2(0)", invncp2(0), get_error_code()}, {"invncp2(1)", invncp2(1), get_error_code()}});
}

TEST(MathSpecialNormal, ProbabilitiesAndTheirInverse) {
  for (const Reference& r : special_test::kCumGaussPlusOneRows) {
    EXPECT_TRUE(close_to(KILNUTIL_cum_gauss_plus_one(r.x), r.value, 1e-9)) << "x=" << r.x;
    EXPECT_TRUE(close_to(KILNUTIL_cum_gauss(r.x), 50 * r.value, 1e-9)) << "x=" << r.x;
    EXPECT_TRUE(close_to(prob(r.x), r.value - 1, 1e-10, 1.0)) << "x=" << r.x;
    EXPECT_EQ(cum_gauss_export(r.x), prob(r.x));
    double written = 0;
    EXPECT_EQ(norm_prob_export_ptr(r.x, &written), 0);
    EXPECT_EQ(written, prob(r.x));
  }
  for (const double p : {-0.9, -0.2, 0.0, 0.5, 0.95}) {
    EXPECT_TRUE(close_to(prob(invprob(p)), p, 1e-8, 1e-8)) << "p=" << p;
    double out = 0;
    EXPECT_EQ(inv_prob_export_ptr(p, &out), 0);
    EXPECT_EQ(out, invncp2((p + 1) / 2));
    EXPECT_EQ(inv_prob_export(p), out);
  }
  EXPECT_EQ(inv_prob_export(1), KILNUTIL_NANUM);  // invncp2(1): outside the open interval
  EXPECT_EQ(get_error_code(), KILNUTIL_MATH_ERR_DOMAIN);
  EXPECT_EQ(norm_prob_export_ptr(1, nullptr), 0);
  EXPECT_EQ(prob(KILNUTIL_NANUM), KILNUTIL_NANUM);
  EXPECT_NE(cum_gauss_export(KILNUTIL_NANUM), KILNUTIL_NANUM);  // no missing-value test
  double written = KILNUTIL_NANUM;
  norm_prob_export_ptr(KILNUTIL_NANUM, &written);
  EXPECT_EQ(written, cum_gauss_export(KILNUTIL_NANUM));
  EXPECT_EQ(KILNUTIL_cum_gauss(KILNUTIL_NANUM), KILNUTIL_NANUM);
}

// Most routines clear the error code on entry; the five-term ln Γ and AS 241
// never touch it, so a caller reading it after them sees an older code.
TEST(MathSpecialErrorCode, WhichRoutinesClearIt) {
  struct Case {
    const char* what;
    double (*call)();
    unsigned code_after;
  };
  const Case cases[] = {
      {"beta", [] { return beta(2, 3); }, KILNUTIL_MATH_ERR_NONE},
      {"incgamma", [] { return incgamma(1, 2); }, KILNUTIL_MATH_ERR_NONE},
      {"incbeta", [] { return incbeta(0.5, 2, 3); }, KILNUTIL_MATH_ERR_NONE},
      {"erf", [] { return error_func_export(0.5); }, KILNUTIL_MATH_ERR_NONE},
      {"inverf", [] { return inverf(0.5); }, KILNUTIL_MATH_ERR_NONE},
      {"invncp2", [] { return invncp2(0.3); }, KILNUTIL_MATH_ERR_NONE},
      {"prob", [] { return prob(0.3); }, KILNUTIL_MATH_ERR_NONE},
      {"invt", [] { return invt(1, 3); }, KILNUTIL_MATH_ERR_NONE},
      {"tTable", [] { return tTable(0.9, 3); }, KILNUTIL_MATH_ERR_NONE},
      {"invf", [] { return invf(1, 3, 4); }, KILNUTIL_MATH_ERR_NONE},
      {"Ftable", [] { return Ftable(0.9, 3, 4); }, KILNUTIL_MATH_ERR_NONE},
      {"gammaln", [] { return gammaln(3); }, KILNUTIL_MATH_ERR_DOMAIN},
      {"gammln_export", [] { return gammln_export(3); }, KILNUTIL_MATH_ERR_DOMAIN},
      {"invncp", [] { return invncp(0.3); }, KILNUTIL_MATH_ERR_DOMAIN},
      {"cum_gauss_plus_one", [] { return KILNUTIL_cum_gauss_plus_one(0.3); }, KILNUTIL_MATH_ERR_DOMAIN},
  };
  for (const Case& c : cases) {
    gammaln(0);  // code 1
    EXPECT_NE(c.call(), KILNUTIL_NANUM) << c.what;
    EXPECT_EQ(get_error_code(), c.code_after) << c.what;
  }
}

TEST(MathSpecialNormal, PercentQuantile) {
  EXPECT_TRUE(close_to(KILNUTIL_percent_prob(97.5), 1.959963984540054, 1e-14));
  EXPECT_EQ(KILNUTIL_percent_prob(100), 1e290);
  EXPECT_EQ(KILNUTIL_percent_prob(0), -1e290);
  EXPECT_EQ(KILNUTIL_percent_prob(KILNUTIL_NANUM), KILNUTIL_NANUM);
}

}  // namespace
