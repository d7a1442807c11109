// The elementary function wrappers: values against mpmath references, and
// each domain rule with whether it sets the error code.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <limits>
#include <map>
#include <string>

#include <kilnutil/math.h>

#include "frame/missing_value.h"
#include "math/elementary.h"
#include "math/error_code.h"

namespace {

namespace m = kiln::math;
constexpr double kMissing = kiln::frame::kMissingValue;
constexpr double kInf = std::numeric_limits<double>::infinity();

using Function = double (*)(double, double);

// Every wrapper as a function of (x, y); unary ones ignore y.
const std::map<std::string, Function>& functions() {
  static const std::map<std::string, Function> table = {
      {"sqrt", [](double x, double) { return m::script_sqrt(x); }},
      {"ln", [](double x, double) { return ln(x); }},
      {"log10", [](double x, double) { return m::script_log10(x); }},
      {"log1p", [](double x, double) { return m::script_log1p(x); }},
      {"expm1", [](double x, double) { return m::script_expm1(x); }},
      {"acos", [](double x, double) { return m::script_acos(x); }},
      {"asin", [](double x, double) { return m::script_asin(x); }},
      {"cosh", [](double x, double) { return m::script_cosh(x); }},
      {"sinh", [](double x, double) { return m::script_sinh(x); }},
      {"tan", [](double x, double) { return m::script_tan(x); }},
      {"asinh", [](double x, double) { return m::script_asinh(x); }},
      {"acosh", [](double x, double) { return m::script_acosh(x); }},
      {"atanh", [](double x, double) { return m::script_atanh(x); }},
      {"cot", [](double x, double) { return cot(x); }},
      {"acot", [](double x, double) { return acot(x); }},
      {"coth", [](double x, double) { return coth(x); }},
      {"acoth", [](double x, double) { return acoth(x); }},
      {"secant", [](double x, double) { return secant(x); }},
      {"csc", [](double x, double) { return csc(x); }},
      {"asec", [](double x, double) { return asec(x); }},
      {"acsc", [](double x, double) { return acsc(x); }},
      {"sech", [](double x, double) { return sech(x); }},
      {"csch", [](double x, double) { return csch(x); }},
      {"asech", [](double x, double) { return asech(x); }},
      {"acsch", [](double x, double) { return acsch(x); }},
      {"hypot", m::script_hypot},
      {"angle", angle},
      {"J0", [](double x, double) { return J0(x); }},
      {"J1", [](double x, double) { return J1(x); }},
      {"Jn", Jn},
      {"Y0", [](double x, double) { return Y0(x); }},
      {"Y1", [](double x, double) { return Y1(x); }},
      {"Yn", Yn},
  };
  return table;
}

struct Reference {
  const char* name;
  double x, y, value;
};

const Reference kReferences[] = {
#include "math/data/elementary_reference.inc"
};

TEST(MathElementary, ValuesMatchHighPrecisionReferences) {
  for (const Reference& r : kReferences) {
    const double actual = functions().at(r.name)(r.x, r.y);
    EXPECT_NEAR(actual, r.value, std::fabs(r.value) * 1e-13 + 1e-300) << r.name << "(" << r.x << ", " << r.y << ")";
  }
}

struct DomainCase {
  const char* name;
  double x, y;
  double expected;  // the missing value or an exact result
  unsigned code;    // the error code afterwards, from 0
};

TEST(MathElementary, DomainRulesAndWhichOnesSetTheCode) {
  const DomainCase cases[] = {
      {"sqrt", -1, 0, kMissing, 1},
      {"sqrt", kMissing, 0, kMissing, 1},
      {"ln", 0, 0, kMissing, 1},
      {"log10", -5, 0, kMissing, 1},
      {"log1p", -1, 0, kMissing, 1},
      {"log1p", 1e-20, 0, 1e-20, 0},
      {"expm1", 1e-17, 0, 1e-17, 0},
      {"acos", 1.0000001, 0, kMissing, 1},
      {"asin", -2, 0, kMissing, 1},
      {"hypot", -3, 4, kMissing, 1},
      {"hypot", 3, -0.0, 3, 0},
      {"angle", 0, 0, kMissing, 1},
      {"Y0", 0, 0, kMissing, 1},
      {"Y1", -1, 0, kMissing, 1},
      {"Yn", 2, 0, kMissing, 1},
      {"cosh", 711, 0, kMissing, 0},
      {"sinh", -711, 0, kMissing, 0},
      {"tan", kMissing, 0, kMissing, 0},
      {"asinh", kMissing, 0, kMissing, 0},
      {"acosh", 0.5, 0, kMissing, 0},
      {"acosh", -1, 0, kMissing, 0},
      {"acosh", -2, 0, kMissing, 0},
      {"atanh", 1, 0, kMissing, 0},
      {"cot", 0, 0, kMissing, 0},
      {"cot", 1e-300, 0, 1e300, 0},
      {"coth", 0, 0, kMissing, 0},
      {"acoth", 1, 0, kMissing, 0},
      {"acoth", kMissing, 0, kMissing, 0},
      {"csc", 0, 0, kMissing, 0},
      {"csch", -0.0, 0, kMissing, 0},
      {"asec", 0.5, 0, kMissing, 0},
      {"acsc", -0.5, 0, kMissing, 0},
      {"asech", 0, 0, kMissing, 0},
      {"asech", 1.5, 0, kMissing, 0},
      {"acsch", 0, 0, kMissing, 0},
      {"sech", 1000, 0, 0, 0},
      {"acot", kMissing, 0, kMissing, 0},
      {"secant", kMissing, 0, kMissing, 0},
      {"angle", 1, -1, 7 * std::numbers::pi / 4, 0},
      {"angle", -1, 0, std::numbers::pi, 0},
      {"angle", 0, -2, 4.71238898038469, 0},
      {"angle", 0, 3, std::numbers::pi / 2, 0},
  };
  for (const DomainCase& c : cases) {
    m::clear_error_code();
    EXPECT_DOUBLE_EQ(functions().at(c.name)(c.x, c.y), c.expected) << c.name << "(" << c.x << ", " << c.y << ")";
    EXPECT_EQ(m::error_code(), c.code) << c.name << "(" << c.x << ", " << c.y << ")";
  }
  m::clear_error_code();
}

// The setter returns the previous setting; the getter reads it (off at load).
TEST(MathElementary, LogarithmPassThroughSwitch) {
  EXPECT_EQ(KILNUTIL_GetLnNonPositivePassThrough(), 0);
  EXPECT_EQ(KILNUTIL_SetLnNonPositivePassThrough(5), 0);
  EXPECT_EQ(KILNUTIL_GetLnNonPositivePassThrough(), 1);
  m::clear_error_code();
  EXPECT_EQ(ln(0), -kInf);
  EXPECT_TRUE(std::isnan(ln(-1)));
  EXPECT_EQ(get_error_code(), 0u);
  EXPECT_EQ(m::script_log10(0), kMissing);  // the switch is ln's alone
  EXPECT_EQ(KILNUTIL_SetLnNonPositivePassThrough(0), 1);
  EXPECT_EQ(KILNUTIL_GetLnNonPositivePassThrough(), 0);
  EXPECT_EQ(ln(-1), kMissing);
  EXPECT_EQ(get_error_code(), 1u);
  m::clear_error_code();
}

TEST(MathElementary, UnsignedRounding) {
  const struct {
    double x;
    unsigned expected;
  } cases[] = {{4294967294.6, 4294967295u}, {-1.6, 4294967294u}, {2.5, 3u},
               {4294967293.4, 4294967293u}, {1e20, 4294967295u}, {-3e9, 2147483648u}};
  for (const auto& c : cases) EXPECT_EQ(nUINT(c.x), c.expected) << c.x;
}

}  // namespace
