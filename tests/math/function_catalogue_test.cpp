// The math function catalogue through KilnMath_function: names, indices,
// argument counts and flags; the flag rules and angle units of evaluation;
// the return value of every command; the texts; the dispatcher's random draws.
#include <kilnutil/frame.h>
#include <kilnutil/math.h>

#include "math/function_catalogue.h"
#include "math/function_dispatcher.h"
#include "math/random.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace {

constexpr double kNanum = KILNUTIL_NANUM;

unsigned call(unsigned command, void* arguments, void* result, unsigned short unit = KILNUTIL_MATHFN_UNIT_RADIANS) {
  return KilnMath_function(nullptr, command, arguments, result, unit);
}

unsigned index_of(const char* name) {
  std::uint16_t index = 0xFFFF;
  std::vector<char> text(name, name + std::strlen(name) + 1);
  call(KILNUTIL_MATHFN_FIND, text.data(), &index);
  return index;
}

struct CatalogueRow {
  const char* name;
  unsigned argument_count;
  unsigned flags;
};

// Alphabetical order of the names is the script's function numbering.
constexpr CatalogueRow kCatalogue[] = {
    {"ABS", 1, 0x08},      {"ACOS", 1, 0x22},   {"ACOSH", 1, 0x80},   {"ACOT", 1, 0x02},    {"ACOTH", 1, 0x80},
    {"ACSC", 1, 0x02},     {"ACSCH", 1, 0x80},  {"ANGLE", 2, 0x08},   {"ASEC", 1, 0x02},    {"ASECH", 1, 0x80},
    {"ASIN", 1, 0x22},     {"ASINH", 1, 0x80},  {"ATAN", 1, 0x02},    {"ATAN2", 2, 0x02},   {"ATANH", 1, 0x80},
    {"BETA", 2, 0x08},     {"COS", 1, 0x01},    {"COSH", 1, 0x80},    {"COT", 1, 0x01},     {"COTH", 1, 0x80},
    {"CSC", 1, 0x01},      {"CSCH", 1, 0x80},   {"ERF", 1, 0x08},     {"EXP", 1, 0x00},     {"EXPM1", 1, 0x08},
    {"FRAC", 1, 0x08},     {"FTABLE", 3, 0x08}, {"GAMMALN", 1, 0x08}, {"INCBETA", 3, 0x08}, {"INCF", 3, 0x08},
    {"INCGAMMA", 2, 0x08}, {"INT", 1, 0x08},    {"INT2", 1, 0x08},    {"INVERF", 1, 0x08},  {"INVF", 3, 0x08},
    {"INVPROB", 1, 0x08},  {"INVT", 2, 0x08},   {"J0", 1, 0x08},      {"J1", 1, 0x08},      {"JN", 2, 0x08},
    {"LN", 1, 0x10},       {"LN1P", 1, 0x08},   {"LOG", 1, 0x10},     {"MOD", 2, 0x08},     {"MOD2", 2, 0x08},
    {"NINT", 1, 0x08},     {"PREC", 2, 0x08},   {"PROB", 1, 0x08},    {"QCD2", 1, 0x08},    {"QCD3", 1, 0x08},
    {"QCD4", 1, 0x08},     {"RMOD", 2, 0x08},   {"RMOD2", 2, 0x08},   {"ROUND", 2, 0x08},   {"SECANT", 1, 0x01},
    {"SECH", 1, 0x80},     {"SIN", 1, 0x01},    {"SINH", 1, 0x80},    {"SQRT", 1, 0x04},    {"TAN", 1, 0x01},
    {"TANH", 1, 0x80},     {"TTABLE", 2, 0x08}, {"Y0", 1, 0x08},      {"Y1", 1, 0x08},      {"YN", 2, 0x08},
};

TEST(MathCatalogue, NamesIndicesCountsAndFlags) {
  static_assert(std::size(kCatalogue) == KILNUTIL_MATHFN_COUNT);
  const auto entries = kiln::math::catalogue_with_end();
  ASSERT_EQ(entries.size(), std::size(kCatalogue) + 1);
  EXPECT_STREQ(entries.back().name, "0");
  for (unsigned i = 0; i < std::size(kCatalogue); ++i) {
    const CatalogueRow& row = kCatalogue[i];
    std::vector<char> name(row.name, row.name + std::strlen(row.name) + 1);
    std::uint16_t found = 0xFFFF;
    EXPECT_EQ(call(KILNUTIL_MATHFN_FIND, name.data(), &found), row.argument_count) << row.name;
    EXPECT_EQ(found, i) << row.name;
    EXPECT_EQ(call(KILNUTIL_MATHFN_COMMAND(KILNUTIL_MATHFN_ARG_COUNT, i), nullptr, nullptr), row.argument_count);
    char text[KILNUTIL_MATHFN_TEXT_SIZE];
    EXPECT_EQ(call(KILNUTIL_MATHFN_COMMAND(KILNUTIL_MATHFN_NAME, i), nullptr, text), 0u);
    EXPECT_STREQ(text, row.name);
    EXPECT_EQ(entries[i].flags, row.flags) << row.name;
    EXPECT_EQ(entries[i].help_id, 30001 + i) << row.name;
    EXPECT_EQ(call(KILNUTIL_MATHFN_COMMAND(KILNUTIL_MATHFN_DESCRIPTION, i), nullptr, text), 0u);
    EXPECT_GT(std::strlen(text), 10u) << row.name;
    EXPECT_EQ(call(KILNUTIL_MATHFN_COMMAND(KILNUTIL_MATHFN_HELP, i), nullptr, text), 0u);
    EXPECT_NE(std::strstr(text, "("), nullptr) << row.name;
  }
  EXPECT_EQ(index_of("SIN"), 56u);
}

TEST(MathCatalogue, LookUpComparesExactly) {
  const char* misses[] = {"sin", "Sin", "SIN ", "SINX", "", "0", "S"};
  for (const char* name : misses) {
    std::vector<char> text(name, name + std::strlen(name) + 1);
    std::uint16_t index = 777;
    EXPECT_EQ(call(KILNUTIL_MATHFN_FIND, text.data(), &index), 0u) << '"' << name << '"';
    EXPECT_EQ(index, 777) << "a miss writes no index";
  }
  EXPECT_EQ(call(KILNUTIL_MATHFN_FIND, nullptr, nullptr), 0u);
  // The remembered index must not make a different name match.
  EXPECT_EQ(index_of("TANH"), 60u);
  EXPECT_EQ(index_of("TAN"), 59u);
  EXPECT_EQ(index_of("TANH"), 60u);
}

struct EvaluationCase {
  const char* name;
  std::vector<double> arguments;
  unsigned short unit;
  double expected;
  unsigned code;  // returned and left as the math error code
};

TEST(MathCatalogue, FlagRulesAndAngleUnits) {
  const double pi = 3.141592653589793;
  const EvaluationCase cases[] = {
      {"SIN", {90}, KILNUTIL_MATHFN_UNIT_DEGREES, 1, 0},
      {"SIN", {450}, KILNUTIL_MATHFN_UNIT_DEGREES, 1, 0},  // reduced by a turn first
      {"SIN", {100}, KILNUTIL_MATHFN_UNIT_GRADIANS, 1, 0},
      {"COS", {-720}, KILNUTIL_MATHFN_UNIT_DEGREES, 1, 0},
      {"SIN", {pi / 2}, KILNUTIL_MATHFN_UNIT_RADIANS, 1, 0},
      {"SIN", {pi / 2}, 7, 1, 0},  // an unknown unit is radians
      {"ATAN", {1}, KILNUTIL_MATHFN_UNIT_DEGREES, 45, 0},
      {"ATAN", {1}, KILNUTIL_MATHFN_UNIT_GRADIANS, 50, 0},
      {"ATAN2", {1, 0}, KILNUTIL_MATHFN_UNIT_DEGREES, 90, 0},  // arguments plain, result in degrees
      {"ATAN2", {1, -1}, KILNUTIL_MATHFN_UNIT_RADIANS, 3 * pi / 4, 0},
      {"ACOS", {1.5}, KILNUTIL_MATHFN_UNIT_RADIANS, 0, 1},
      {"ASIN", {-1.0000001}, KILNUTIL_MATHFN_UNIT_DEGREES, 0, 1},
      {"SQRT", {-4}, KILNUTIL_MATHFN_UNIT_RADIANS, 0, 1},
      {"LN", {0}, KILNUTIL_MATHFN_UNIT_RADIANS, 0, 1},
      {"LOG", {-1}, KILNUTIL_MATHFN_UNIT_RADIANS, 0, 1},
      {"EXP", {1}, KILNUTIL_MATHFN_UNIT_DEGREES, std::exp(1.0), 0},
      {"EXP", {665}, KILNUTIL_MATHFN_UNIT_RADIANS, std::exp(665.0), 0},
      {"EXP", {665.5}, KILNUTIL_MATHFN_UNIT_RADIANS, kNanum, 1},
      {"EXP", {-700}, KILNUTIL_MATHFN_UNIT_RADIANS, 0, 0},
      {"ABS", {-2.5}, KILNUTIL_MATHFN_UNIT_RADIANS, 2.5, 0},
      {"INT", {-2.7}, KILNUTIL_MATHFN_UNIT_RADIANS, -2, 0},
      {"INT", {1e300}, KILNUTIL_MATHFN_UNIT_RADIANS, 9223372036854775808.0, 0},
      {"FRAC", {-2.75}, KILNUTIL_MATHFN_UNIT_RADIANS, -0.75, 0},
      {"FRAC", {3e9 + 0.5}, KILNUTIL_MATHFN_UNIT_RADIANS, 0, 0},
      {"NINT", {2.5}, KILNUTIL_MATHFN_UNIT_RADIANS, 3, 0},
      {"NINT", {-2.5}, KILNUTIL_MATHFN_UNIT_RADIANS, -3, 0},
      {"NINT", {-5e9 - 0.5}, KILNUTIL_MATHFN_UNIT_RADIANS, -5e9 - 1, 0},
      {"QCD2", {2}, KILNUTIL_MATHFN_UNIT_RADIANS, 1.12838, 0},
      {"QCD2", {25.9}, KILNUTIL_MATHFN_UNIT_RADIANS, 3.93063, 0},
      {"QCD3", {6}, KILNUTIL_MATHFN_UNIT_RADIANS, 0, 0},
      {"QCD3", {7}, KILNUTIL_MATHFN_UNIT_RADIANS, 0.076, 0},
      {"QCD4", {25}, KILNUTIL_MATHFN_UNIT_RADIANS, 1.541, 0},
      {"QCD4", {26}, KILNUTIL_MATHFN_UNIT_RADIANS, kNanum, 0},
      {"QCD4", {-1}, KILNUTIL_MATHFN_UNIT_RADIANS, kNanum, 0},
      {"ASIN", {1}, KILNUTIL_MATHFN_UNIT_GRADIANS, 100, 0},
      {"ACOS", {0}, KILNUTIL_MATHFN_UNIT_DEGREES, 90, 0},
      {"ASEC", {2}, KILNUTIL_MATHFN_UNIT_DEGREES, 60, 0},
      {"ACOT", {1}, KILNUTIL_MATHFN_UNIT_DEGREES, 45, 0},
      {"ASEC", {0.5}, KILNUTIL_MATHFN_UNIT_DEGREES, kNanum, 0},  // a missing result is not converted
      {"COT", {45}, KILNUTIL_MATHFN_UNIT_DEGREES, 1, 0},
      {"TAN", {50}, KILNUTIL_MATHFN_UNIT_GRADIANS, 1, 0},
      {"SECANT", {420}, KILNUTIL_MATHFN_UNIT_DEGREES, 2, 0},
      {"SINH", {1}, KILNUTIL_MATHFN_UNIT_DEGREES, std::sinh(1.0), 0},  // hyperbolic arguments are not angles
      {"SQRT", {6.25}, KILNUTIL_MATHFN_UNIT_RADIANS, 2.5, 0},
      {"LOG", {1000}, KILNUTIL_MATHFN_UNIT_RADIANS, 3, 0},
      {"LN1P", {1e-20}, KILNUTIL_MATHFN_UNIT_RADIANS, 1e-20, 0},
      {"ACOSH", {0.5}, KILNUTIL_MATHFN_UNIT_RADIANS, kNanum, 0},        // the routine's own failure, no code
      {"Y0", {0}, KILNUTIL_MATHFN_UNIT_RADIANS, kNanum, 1},             // the routine's own failure with code 1
      {"ANGLE", {1, -1}, KILNUTIL_MATHFN_UNIT_DEGREES, 7 * pi / 4, 0},  // no angle flag: radians
      {"JN", {1, 2.5}, KILNUTIL_MATHFN_UNIT_RADIANS, 0.49709410246427405, 0},
  };
  for (const auto& c : cases) {
    std::vector<double> arguments = c.arguments;
    double result = 12345;
    const unsigned command = KILNUTIL_MATHFN_COMMAND(KILNUTIL_MATHFN_EVALUATE, index_of(c.name));
    const unsigned returned = call(command, arguments.data(), &result, c.unit);
    EXPECT_EQ(returned, c.code) << c.name << '(' << c.arguments[0] << ") unit " << c.unit;
    EXPECT_EQ(get_error_code(), c.code) << c.name;
    if (c.expected == kNanum || c.expected == 0) {
      EXPECT_EQ(result, c.expected) << c.name << '(' << c.arguments[0] << ')';
    } else {
      EXPECT_NEAR(result, c.expected, 1e-14 * std::abs(c.expected)) << c.name << '(' << c.arguments[0] << ')';
    }
  }
  double result = 1;
  double minus_one = 1;
  EXPECT_EQ(call(KILNUTIL_MATHFN_COMMAND(KILNUTIL_MATHFN_EVALUATE, index_of("QCD2")), &minus_one, &result), 0u);
  EXPECT_TRUE(result == 0 && std::signbit(result)) << "subgroups of 1 give -0";
  EXPECT_EQ(call(KILNUTIL_MATHFN_COMMAND(KILNUTIL_MATHFN_EVALUATE, KILNUTIL_MATHFN_COUNT), &minus_one, &result), 1u);
  EXPECT_EQ(result, kNanum) << "the end entry is not a function";
}

// The routines behind the names, reached through the dispatcher with the
// arguments in script order (reference values from mpmath; the tolerance is
// each routine's own accuracy).
struct RoutineCase {
  const char* name;
  std::vector<double> arguments;
  double expected;
  double tolerance;  // relative
  unsigned code;
};

TEST(MathCatalogue, RoutinesInScriptOrder) {
  const RoutineCase cases[] = {
      {"INCGAMMA", {2, 1}, 0.26424111765711536, 1e-10, 0},  // (a, x), not the library's (x, a)
      {"INCBETA", {0.4, 2, 3}, 0.5248, 1e-6, 0},
      {"INCF", {2, 3, 10}, 0.17800740737517541, 1e-6, 0},
      {"INVF", {2, 3, 10}, 0.82199259262482459, 1e-6, 0},
      {"FTABLE", {0.95, 3.9, 10.2}, 3.7082648190468431, 1e-6, 0},  // degrees of freedom truncated
      {"TTABLE", {0.975, 10}, 2.2281388519862742, 1e-5, 0},
      {"INVT", {2, 5.7}, 0.94903026058507082, 1e-6, 0},
      {"BETA", {2.5, 1.5}, 0.19634954084936208, 1e-9, 0},
      {"GAMMALN", {4.5}, 2.4537365708424422, 1e-9, 0},
      {"PROB", {1}, 0.68268949213708590, 1e-10, 0},
      {"INVPROB", {0.68268949213708590}, 1, 1e-8, 0},
      {"ERF", {0}, 0, 0, 0},
      {"INVERF", {1}, kNanum, 0, KILNUTIL_MATH_ERR_INVERF_PLUS_ONE},
      {"ROUND", {2.675, 2.9}, 2.68, 0, 0},
      {"PREC", {0.000123456, 3}, 0.000123, 1e-15, 0},
      {"PREC", {5, 10}, kNanum, 0, 1},
      {"MOD", {-7.9, 3}, -1, 0, 0},
      {"MOD", {-2147483648.0, -1}, 0, 0, 0},  // the overflowing quotient is answered, not faulted
      {"MOD", {5, 0}, 0, 0, 1},
      {"MOD2", {-7, 3}, 2, 0, 0},
      {"RMOD", {-7, 3}, -1, 0, 0},
      {"RMOD2", {-7, 3}, 2, 0, 0},
      {"RMOD2", {5, 0}, 5, 0, 1},
      {"INT2", {-2}, -3, 0, 0},
  };
  for (const auto& c : cases) {
    std::vector<double> arguments = c.arguments;
    double result = 12345;
    const unsigned returned =
        call(KILNUTIL_MATHFN_COMMAND(KILNUTIL_MATHFN_EVALUATE, index_of(c.name)), arguments.data(), &result);
    EXPECT_EQ(returned, c.code) << c.name;
    EXPECT_NEAR(result, c.expected, c.tolerance * std::abs(c.expected)) << c.name;
  }
}

// Commands 20, 21 and 100 return the error code of their routine;
// KILNUTIL_percent_prob reaches the quantile through command 21.
TEST(MathCatalogue, ProbabilityQuantileAndPrecisionCommands) {
  double x = 1, result = 0;
  EXPECT_EQ(call(KILNUTIL_MATHFN_PROB, &x, &result), 0u);
  EXPECT_NEAR(result, 0.68268949213708590, 1e-10);
  x = 0.975;
  EXPECT_EQ(call(KILNUTIL_MATHFN_QUANTILE, &x, &result), 0u);
  EXPECT_NEAR(result, 1.9599639845400539, 1e-14);
  EXPECT_EQ(KILNUTIL_percent_prob(97.5), result);
  double digits[] = {1234.5678, 2};
  EXPECT_EQ(call(KILNUTIL_MATHFN_PREC, digits, &result), 0u);
  EXPECT_EQ(result, 1200);
  digits[1] = 11;
  EXPECT_EQ(call(KILNUTIL_MATHFN_PREC, digits, &result), 1u);
  EXPECT_EQ(result, kNanum);
}

TEST(MathCatalogue, CommandReturns) {
  double value = 0;
  EXPECT_EQ(call(KILNUTIL_MATHFN_SIZE, nullptr, &value), 0u);
  EXPECT_EQ(value, 66.0);
  const unsigned unknown[] = {5, 9, 13, 14, 16, 19, 22, 24, 29, 99, 101, 0xFFFF, KILNUTIL_MATHFN_COMMAND(101, 3)};
  for (const unsigned command : unknown) {
    EXPECT_EQ(call(command, &value, &value), KILNUTIL_MATHFN_UNKNOWN) << command;
  }
  EXPECT_EQ(call(KILNUTIL_MATHFN_COMMAND(KILNUTIL_MATHFN_ARG_COUNT, 65), nullptr, nullptr), 0u);
  EXPECT_EQ(call(KILNUTIL_MATHFN_COMMAND(KILNUTIL_MATHFN_ARG_COUNT, 0xFFFF), nullptr, nullptr), 0u);
  char text[KILNUTIL_MATHFN_TEXT_SIZE] = "untouched";
  EXPECT_EQ(call(KILNUTIL_MATHFN_COMMAND(KILNUTIL_MATHFN_HELP, 900), nullptr, text), 0u);
  EXPECT_STREQ(text, "");

  std::int32_t clock_seed = 1;
  EXPECT_EQ(call(KILNUTIL_MATHFN_SEED, &clock_seed, nullptr), 0u);
  const int seeded_from_clock = kiln::math::dispatcher_seed();
  EXPECT_GE(seeded_from_clock, 0);
  EXPECT_LT(seeded_from_clock, 54773);
  std::int32_t no_clock = 0;
  EXPECT_EQ(call(KILNUTIL_MATHFN_SEED, &no_clock, nullptr), 0u);
  EXPECT_EQ(call(KILNUTIL_MATHFN_IS_SEEDED, nullptr, nullptr), 0u);
}

// Command 10 seeds like rnd(n) and writes rnd's value back; the following
// draws of commands 11 and 12 continue the shared generators.
TEST(MathCatalogue, DispatcherDraws) {
  std::int32_t no_clock = 0;
  call(KILNUTIL_MATHFN_SEED, &no_clock, nullptr);
  double argument = 5.9;
  EXPECT_EQ(call(KILNUTIL_MATHFN_RND, &argument, nullptr), 0u);
  EXPECT_EQ(argument, 0.0);
  std::vector<double> from_dispatcher(6);
  for (double& v : from_dispatcher) EXPECT_EQ(call(KILNUTIL_MATHFN_UNIFORM, nullptr, &v), 0u);
  rnd(5);
  for (const double v : from_dispatcher) EXPECT_EQ(v, rnd(0));

  grnd(3);  // leaves no saved deviate
  const double first = grnd(0);
  double saved = 0;
  argument = 3;
  call(KILNUTIL_MATHFN_RND, &argument, nullptr);  // re-seeds and drops the saved deviate
  EXPECT_EQ(call(KILNUTIL_MATHFN_NORMAL, nullptr, &saved), 0u);
  EXPECT_EQ(saved, first);

  argument = 0;  // rnd(0): the next uniform deviate is written back
  call(KILNUTIL_MATHFN_RND, &argument, nullptr);
  EXPECT_GT(argument, 0.0);
  EXPECT_LT(argument, 1.0);
}

// Sample mean and variance of Poisson deviates for both methods (below and
// from a mean of 10), within five standard errors.
TEST(MathCatalogue, PoissonMeanAndVariance) {
  rnd(2024);
  const double means[] = {0.3, 4, 9.99, 10, 37.5, 1000, 1e6};
  constexpr int kDraws = 20000;
  for (const double mean : means) {
    double sum = 0, sum_squares = 0;
    for (int i = 0; i < kDraws; ++i) {
      double argument = mean, k = -1;
      ASSERT_EQ(call(KILNUTIL_MATHFN_POISSON, &argument, &k), 0u);
      ASSERT_EQ(k, std::floor(k));
      ASSERT_GE(k, 0.0);
      sum += k;
      sum_squares += k * k;
    }
    const double sample_mean = sum / kDraws;
    const double sample_variance = (sum_squares - sum * sample_mean) / (kDraws - 1);
    EXPECT_NEAR(sample_mean, mean, 5 * std::sqrt(mean / kDraws)) << mean;
    EXPECT_NEAR(sample_variance, mean, 5 * std::sqrt((mean + 2 * mean * mean) / kDraws)) << mean;
  }
  double bad = -1, k = 0;
  call(KILNUTIL_MATHFN_POISSON, &bad, &k);
  EXPECT_EQ(k, kNanum);
  bad = 0;
  call(KILNUTIL_MATHFN_POISSON, &bad, &k);
  EXPECT_EQ(k, 0.0);
}

// Pearson's chi-square of the Poisson counts against the exact probabilities,
// cells with fewer than 5 expected counts pooled into the tails; the critical
// value is the 0.1% point (Wilson-Hilferty).
TEST(MathCatalogue, PoissonChiSquare) {
  rnd(77);
  constexpr int kDraws = 50000;
  for (const double mean : {2.5, 8.0, 12.0, 150.0}) {
    const int top = static_cast<int>(mean + 12 * std::sqrt(mean) + 20);
    std::vector<double> observed(static_cast<std::size_t>(top) + 1, 0.0);
    for (int i = 0; i < kDraws; ++i) {
      double argument = mean, k = 0;
      call(KILNUTIL_MATHFN_POISSON, &argument, &k);
      observed[static_cast<std::size_t>(std::min(k, double(top)))] += 1;
    }
    double chi_square = 0, pooled_observed = 0, pooled_expected = 0;
    int cells = 0;
    double expected_so_far = 0;
    for (int k = 0; k <= top; ++k) {
      const double p = std::exp(k * std::log(mean) - mean - std::lgamma(k + 1.0)) * kDraws;
      const double expected = k == top ? kDraws - expected_so_far : p;
      expected_so_far += expected;
      pooled_observed += observed[static_cast<std::size_t>(k)];
      pooled_expected += expected;
      if (pooled_expected >= 5 && kDraws - expected_so_far >= 5) {
        chi_square += (pooled_observed - pooled_expected) * (pooled_observed - pooled_expected) / pooled_expected;
        ++cells;
        pooled_observed = pooled_expected = 0;
      }
    }
    chi_square += (pooled_observed - pooled_expected) * (pooled_observed - pooled_expected) / pooled_expected;
    ++cells;
    const double df = cells - 1;
    const double z = 3.0902;  // upper 0.1% point of the standard normal
    const double critical = df * std::pow(1 - 2 / (9 * df) + z * std::sqrt(2 / (9 * df)), 3);
    EXPECT_LT(chi_square, critical) << "mean " << mean << " cells " << cells;
  }
}

}  // namespace
