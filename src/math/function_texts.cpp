// The catalogue's description and help texts.
#include "math/function_texts.h"

#include <kilnutil/math.h>

#include <algorithm>
#include <array>
#include <iterator>

namespace kiln::math {

namespace {

constexpr FunctionText kTexts[] = {
    {30001, "abs(x)", "Absolute value of x."},
    {30002, "acos(x)", "Inverse cosine of x, an angle in the current angle unit."},
    {30003, "acosh(x)", "Inverse hyperbolic cosine of x (x >= 1)."},
    {30004, "acot(x)", "Inverse cotangent of x, an angle in the current angle unit."},
    {30005, "acoth(x)", "Inverse hyperbolic cotangent of x (|x| > 1)."},
    {30006, "acsc(x)", "Inverse cosecant of x (|x| >= 1), an angle in the current angle unit."},
    {30007, "acsch(x)", "Inverse hyperbolic cosecant of x (x not 0)."},
    {30008, "angle(x, y)", "Polar angle of the point (x, y) in radians, from 0 up to 2 pi."},
    {30009, "asec(x)", "Inverse secant of x (|x| >= 1), an angle in the current angle unit."},
    {30010, "asech(x)", "Inverse hyperbolic secant of x (0 < x <= 1)."},
    {30011, "asin(x)", "Inverse sine of x, an angle in the current angle unit."},
    {30012, "asinh(x)", "Inverse hyperbolic sine of x."},
    {30013, "atan(x)", "Inverse tangent of x, an angle in the current angle unit."},
    {30014, "atan2(y, x)", "Angle of the point (x, y) from -pi to pi, in the current angle unit."},
    {30015, "atanh(x)", "Inverse hyperbolic tangent of x (|x| < 1)."},
    {30016, "beta(a, b)", "Complete beta function B(a, b)."},
    {30017, "cos(x)", "Cosine of the angle x."},
    {30018, "cosh(x)", "Hyperbolic cosine of x."},
    {30019, "cot(x)", "Cotangent of the angle x."},
    {30020, "coth(x)", "Hyperbolic cotangent of x (x not 0)."},
    {30021, "csc(x)", "Cosecant of the angle x."},
    {30022, "csch(x)", "Hyperbolic cosecant of x (x not 0)."},
    {30023, "erf(x)", "Error function of x."},
    {30024, "exp(x)", "e raised to the power x (x up to 665)."},
    {30025, "expm1(x)", "e raised to the power x, minus 1, accurate for small x."},
    {30026, "frac(x)", "Fractional part of x, with the sign of x."},
    {30027, "ftable(p, df1, df2)", "F value whose lower-tail probability is p for df1 and df2 degrees of freedom."},
    {30028, "gammaln(x)", "Natural logarithm of the gamma function of x (x > 0)."},
    {30029, "incbeta(x, a, b)", "Regularised incomplete beta function I_x(a, b)."},
    {30030, "incf(F, df1, df2)", "Upper-tail probability of the F distribution at F."},
    {30031, "incgamma(a, x)", "Regularised lower incomplete gamma function P(a, x)."},
    {30032, "int(x)", "Integer part of x, truncated toward zero."},
    {30033, "int2(x)", "Integer below x: x truncated, minus 1 for negative x."},
    {30034, "inverf(x)", "Inverse error function of x (-1 < x < 1)."},
    {30035, "invf(F, df1, df2)", "Lower-tail probability of the F distribution at F."},
    {30036, "invprob(p)", "Normal deviate x whose two-sided probability prob(x) is p."},
    {30037, "invt(t, df)", "Lower-tail probability of Student's t distribution at t with df degrees of freedom."},
    {30038, "j0(x)", "Bessel function of the first kind of order 0."},
    {30039, "j1(x)", "Bessel function of the first kind of order 1."},
    {30040, "jn(n, x)", "Bessel function of the first kind of integer order n."},
    {30041, "ln(x)", "Natural logarithm of x."},
    {30042, "ln1p(x)", "Natural logarithm of 1 + x, accurate for small x."},
    {30043, "log(x)", "Common (base 10) logarithm of x."},
    {30044, "mod(a, b)", "Remainder of the whole numbers a and b, with the sign of a."},
    {30045, "mod2(a, b)", "Remainder of the whole numbers a and b, with the sign of b."},
    {30046, "nint(x)", "Nearest whole number to x, halves rounded away from zero."},
    {30047, "prec(x, n)", "x rounded to n significant digits."},
    {30048, "prob(x)", "Probability that a standard normal deviate lies between -x and x, with the sign of x."},
    {30049, "qcd2(n)", "Control-chart factor d2 for subgroups of n (2 to 25)."},
    {30050, "qcd3(n)", "Control-chart factor D3, the lower range limit, for subgroups of n (2 to 25)."},
    {30051, "qcd4(n)", "Control-chart factor D4, the upper range limit, for subgroups of n (2 to 25)."},
    {30052, "rmod(x, y)", "Remainder of x divided by y, with the sign of x."},
    {30053, "rmod2(x, y)", "Remainder of x divided by y, with the sign of y."},
    {30054, "round(x, n)", "x rounded to n decimal places (negative n rounds to tens, hundreds, ...)."},
    {30055, "secant(x)", "Secant of the angle x."},
    {30056, "sech(x)", "Hyperbolic secant of x."},
    {30057, "sin(x)", "Sine of the angle x."},
    {30058, "sinh(x)", "Hyperbolic sine of x."},
    {30059, "sqrt(x)", "Square root of x."},
    {30060, "tan(x)", "Tangent of the angle x."},
    {30061, "tanh(x)", "Hyperbolic tangent of x."},
    {30062, "ttable(p, df)", "Student's t value whose lower-tail probability is p, for df degrees of freedom."},
    {30063, "y0(x)", "Bessel function of the second kind of order 0 (x > 0)."},
    {30064, "y1(x)", "Bessel function of the second kind of order 1 (x > 0)."},
    {30065, "yn(n, x)", "Bessel function of the second kind of integer order n (x > 0)."},
};

struct FlagRule {
  unsigned flag;
  const char* text;
};

constexpr FlagRule kFlagRules[] = {
    {KILNUTIL_MATHFN_FLAG_ANGLE_ARG, "The argument is an angle in the current angle unit."},
    {KILNUTIL_MATHFN_FLAG_ANGLE_RESULT, "The result is an angle in the current angle unit."},
    {KILNUTIL_MATHFN_FLAG_NON_NEGATIVE, "The argument must not be negative."},
    {KILNUTIL_MATHFN_FLAG_POSITIVE, "The argument must be positive."},
    {KILNUTIL_MATHFN_FLAG_UNIT_RANGE, "The argument must lie between -1 and 1."},
};

}  // namespace

const FunctionText* find_function_text(std::uint16_t id) {
  const auto numbered = [id](const FunctionText& t) { return t.id == id; };
  const auto* found = std::find_if(std::begin(kTexts), std::end(kTexts), numbered);
  return found == std::end(kTexts) ? nullptr : found;
}

std::string function_help_text(std::uint16_t id, unsigned flags) {
  const FunctionText* text = find_function_text(id);
  if (text == nullptr) return {};
  std::string help = std::string(text->synopsis) + "\n" + text->description;
  for (const FlagRule& rule : kFlagRules) {
    if ((flags & rule.flag) != 0) help += std::string("\n") + rule.text;
  }
  constexpr unsigned kDomainFlags =
      KILNUTIL_MATHFN_FLAG_NON_NEGATIVE | KILNUTIL_MATHFN_FLAG_POSITIVE | KILNUTIL_MATHFN_FLAG_UNIT_RANGE;
  if ((flags & kDomainFlags) != 0) help += "\nAn argument outside the domain gives 0 and math error code 1.";
  return help;
}

}  // namespace kiln::math
