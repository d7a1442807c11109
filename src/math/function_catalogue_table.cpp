// The catalogue itself: 65 functions in alphabetical order of their names
// (the index is the script's function number), then the end entry "0".
#include "math/function_catalogue.h"

#include <kilnutil/math.h>

#include "math/catalogue_routines.h"
#include "math/control_chart.h"
#include "math/elementary.h"
#include "math/error_function.h"
#include "math/gamma.h"
#include "math/normal.h"
#include "math/rounding.h"

#include <array>

namespace kiln::math {

namespace {

constexpr std::uint8_t kNone = 0;
constexpr std::uint8_t kAngleArg = KILNUTIL_MATHFN_FLAG_ANGLE_ARG;
constexpr std::uint8_t kAngleResult = KILNUTIL_MATHFN_FLAG_ANGLE_RESULT;
constexpr std::uint8_t kNonNegative = KILNUTIL_MATHFN_FLAG_NON_NEGATIVE;
constexpr std::uint8_t kGeneral = KILNUTIL_MATHFN_FLAG_GENERAL;
constexpr std::uint8_t kPositive = KILNUTIL_MATHFN_FLAG_POSITIVE;
constexpr std::uint8_t kUnitRange = KILNUTIL_MATHFN_FLAG_UNIT_RANGE;
constexpr std::uint8_t kHyperbolic = KILNUTIL_MATHFN_FLAG_HYPERBOLIC;

constexpr std::array<CatalogueEntry, KILNUTIL_MATHFN_COUNT + 1> kCatalogue = {{
    {"ABS", 1, kGeneral, absolute_value, nullptr, 30001},
    {"ACOS", 1, kUnitRange | kAngleResult, script_acos, nullptr, 30002},
    {"ACOSH", 1, kHyperbolic, script_acosh, nullptr, 30003},
    {"ACOT", 1, kAngleResult, script_acot, nullptr, 30004},
    {"ACOTH", 1, kHyperbolic, script_acoth, nullptr, 30005},
    {"ACSC", 1, kAngleResult, script_acsc, nullptr, 30006},
    {"ACSCH", 1, kHyperbolic, script_acsch, nullptr, 30007},
    {"ANGLE", 2, kGeneral, nullptr, angle_of, 30008},
    {"ASEC", 1, kAngleResult, script_asec, nullptr, 30009},
    {"ASECH", 1, kHyperbolic, script_asech, nullptr, 30010},
    {"ASIN", 1, kUnitRange | kAngleResult, script_asin, nullptr, 30011},
    {"ASINH", 1, kHyperbolic, script_asinh, nullptr, 30012},
    {"ATAN", 1, kAngleResult, arc_tangent, nullptr, 30013},
    {"ATAN2", 2, kAngleResult, nullptr, arc_tangent2, 30014},
    {"ATANH", 1, kHyperbolic, script_atanh, nullptr, 30015},
    {"BETA", 2, kGeneral, nullptr, beta_of, 30016},
    {"COS", 1, kAngleArg, cosine, nullptr, 30017},
    {"COSH", 1, kHyperbolic, script_cosh, nullptr, 30018},
    {"COT", 1, kAngleArg, script_cot, nullptr, 30019},
    {"COTH", 1, kHyperbolic, script_coth, nullptr, 30020},
    {"CSC", 1, kAngleArg, script_csc, nullptr, 30021},
    {"CSCH", 1, kHyperbolic, script_csch, nullptr, 30022},
    {"ERF", 1, kGeneral, error_function, nullptr, 30023},
    {"EXP", 1, kNone, exp_limited, nullptr, 30024},
    {"EXPM1", 1, kGeneral, script_expm1, nullptr, 30025},
    {"FRAC", 1, kGeneral, fraction_part, nullptr, 30026},
    {"FTABLE", 3, kGeneral, nullptr, f_table_of, 30027},
    {"GAMMALN", 1, kGeneral, ln_gamma, nullptr, 30028},
    {"INCBETA", 3, kGeneral, nullptr, incomplete_beta_of, 30029},
    {"INCF", 3, kGeneral, nullptr, incomplete_f_upper, 30030},
    {"INCGAMMA", 2, kGeneral, nullptr, incomplete_gamma_of, 30031},
    {"INT", 1, kGeneral, truncate_limited, nullptr, 30032},
    {"INT2", 1, kGeneral, nint2_value, nullptr, 30033},
    {"INVERF", 1, kGeneral, inverse_error_function, nullptr, 30034},
    {"INVF", 3, kGeneral, nullptr, incomplete_f_lower, 30035},
    {"INVPROB", 1, kGeneral, inverse_normal_probability, nullptr, 30036},
    {"INVT", 2, kGeneral, nullptr, t_cdf_of, 30037},
    {"J0", 1, kGeneral, script_bessel_j0, nullptr, 30038},
    {"J1", 1, kGeneral, script_bessel_j1, nullptr, 30039},
    {"JN", 2, kGeneral, nullptr, bessel_jn_of, 30040},
    {"LN", 1, kPositive, script_ln, nullptr, 30041},
    {"LN1P", 1, kGeneral, script_log1p, nullptr, 30042},
    {"LOG", 1, kPositive, script_log10, nullptr, 30043},
    {"MOD", 2, kGeneral, nullptr, mod_of, 30044},
    {"MOD2", 2, kGeneral, nullptr, mod2_of, 30045},
    {"NINT", 1, kGeneral, nint_any, nullptr, 30046},
    {"PREC", 2, kGeneral, nullptr, prec_of, 30047},
    {"PROB", 1, kGeneral, normal_probability_unchecked, nullptr, 30048},
    {"QCD2", 1, kGeneral, control_chart_d2, nullptr, 30049},
    {"QCD3", 1, kGeneral, control_chart_d3, nullptr, 30050},
    {"QCD4", 1, kGeneral, control_chart_d4, nullptr, 30051},
    {"RMOD", 2, kGeneral, nullptr, rmod_of, 30052},
    {"RMOD2", 2, kGeneral, nullptr, rmod2_of, 30053},
    {"ROUND", 2, kGeneral, nullptr, round_of, 30054},
    {"SECANT", 1, kAngleArg, script_secant, nullptr, 30055},
    {"SECH", 1, kHyperbolic, script_sech, nullptr, 30056},
    {"SIN", 1, kAngleArg, sine, nullptr, 30057},
    {"SINH", 1, kHyperbolic, script_sinh, nullptr, 30058},
    {"SQRT", 1, kNonNegative, script_sqrt, nullptr, 30059},
    {"TAN", 1, kAngleArg, script_tan, nullptr, 30060},
    {"TANH", 1, kHyperbolic, hyperbolic_tangent, nullptr, 30061},
    {"TTABLE", 2, kGeneral, nullptr, t_table_of, 30062},
    {"Y0", 1, kGeneral, script_bessel_y0, nullptr, 30063},
    {"Y1", 1, kGeneral, script_bessel_y1, nullptr, 30064},
    {"YN", 2, kGeneral, nullptr, bessel_yn_of, 30065},
    {"0", 0, kNone, nullptr, nullptr, 0},
}};

}  // namespace

std::span<const CatalogueEntry> catalogue_with_end() { return kCatalogue; }

}  // namespace kiln::math
