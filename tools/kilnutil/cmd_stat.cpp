// kilnutil stat FUNCTION ARG...: one special function, distribution or
// rounding of the library, printed to 17 significant digits; or the missing
// value with the math error code and a reason (exit 1). kilnutil stat --list
// lists the functions and their arguments.
#include "commands.h"

#include <kilnutil/frame.h>
#include <kilnutil/math.h>
#include <kilnutil/numeric.h>

#include <cerrno>
#include <climits>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <span>
#include <string>

namespace kilnutil_cli {

namespace {

constexpr std::size_t kMostArguments = 3;

// How a function's argument is read: a real, or an integer that must fit an
// int or an unsigned int.
enum class ArgumentKind { kReal, kInt, kUnsigned };

struct StatFunction {
  const char* name;
  const char* arguments;  // names, one per argument, e.g. "P DF"
  ArgumentKind kinds[kMostArguments];
  std::size_t count;
  double (*evaluate)(const double* args);
  const char* summary;
  bool minus_one_fails = false;  // the chi-square quantile reports failure as -1
};

int as_int(double v) { return static_cast<int>(v); }
unsigned as_unsigned(double v) { return static_cast<unsigned>(v); }

constexpr ArgumentKind R = ArgumentKind::kReal;
constexpr ArgumentKind I = ArgumentKind::kInt;
constexpr ArgumentKind U = ArgumentKind::kUnsigned;

const StatFunction kFunctions[] = {
    {"gammaln", "X", {R}, 1, [](const double* a) { return gammaln(a[0]); }, "ln Gamma(x), five-term series"},
    {"lngamma", "X", {R}, 1, [](const double* a) { return gammln_export(a[0]); }, "ln Gamma(x), six-term series"},
    {"beta", "A B", {R, R}, 2, [](const double* a) { return beta(a[0], a[1]); }, "complete beta B(a, b)"},
    {"binomial",
     "N K",
     {U, U},
     2,
     [](const double* a) {
       double out = 0;
       bico_export_ptr(as_unsigned(a[0]), as_unsigned(a[1]), &out);
       return out;
     },
     "binomial coefficient n over k"},
    {"incgamma",
     "X A",
     {R, R},
     2,
     [](const double* a) { return incgamma(a[0], a[1]); },
     "regularised lower incomplete gamma P(a, x)"},
    {"incbeta",
     "X A B",
     {R, R, R},
     3,
     [](const double* a) { return incbeta(a[0], a[1], a[2]); },
     "regularised incomplete beta I_x(a, b)"},
    {"erf", "X", {R}, 1, [](const double* a) { return error_func_export(a[0]); }, "error function"},
    {"inverf", "Y", {R}, 1, [](const double* a) { return inverf(a[0]); }, "inverse error function"},
    {"normal-cdf",
     "X",
     {R},
     1,
     [](const double* a) { return KILNUTIL_cum_gauss_plus_one(a[0]) / 2; },
     "standard normal lower tail"},
    {"normal-quantile", "P", {R}, 1, [](const double* a) { return invncp(a[0]); }, "normal quantile (AS 241)"},
    {"normal-quantile-acklam",
     "P",
     {R},
     1,
     [](const double* a) { return invncp2(a[0]); },
     "normal quantile (Acklam, about 1e-9)"},
    {"normal-quantile-inverf",
     "P",
     {R},
     1,
     [](const double* a) { return invncp1(a[0]); },
     "normal quantile as sqrt(2) inverf(2p - 1)"},
    {"prob", "X", {R}, 1, [](const double* a) { return prob(a[0]); }, "two-sided normal probability erf(x/sqrt(2))"},
    {"t-cdf", "T DF", {R, I}, 2, [](const double* a) { return invt(a[0], as_int(a[1])); }, "Student t lower tail"},
    {"t-quantile", "P DF", {R, I}, 2, [](const double* a) { return tTable(a[0], as_int(a[1])); }, "Student t quantile"},
    {"f-cdf",
     "F DF1 DF2",
     {R, I, I},
     3,
     [](const double* a) { return invf(a[0], as_int(a[1]), as_int(a[2])); },
     "F lower tail"},
    {"f-quantile",
     "P DF1 DF2",
     {R, U, U},
     3,
     [](const double* a) { return Ftable(a[0], as_unsigned(a[1]), as_unsigned(a[2])); },
     "F quantile"},
    {"chisq-cdf",
     "X DF",
     {R, U},
     2,
     [](const double* a) { return invchisq(a[0], as_unsigned(a[1])); },
     "chi-square lower tail"},
    {"chisq-upper",
     "X DF",
     {R, R},
     2,
     [](const double* a) {
       double out = 0;
       chisquare_prob_Q_export_ptr(&out, a[0], a[1]);
       return out;
     },
     "chi-square upper tail"},
    {"chisq-quantile",
     "P DF",
     {R, U},
     2,
     [](const double* a) { return ChisqDist(a[0], as_unsigned(a[1])); },
     "chi-square quantile",
     true},
    {"round",
     "X N",
     {R, I},
     2,
     [](const double* a) { return KILNUTIL_mround(a[0], as_int(a[1])); },
     "x rounded to n decimal places"},
    {"prec",
     "X N",
     {R, I},
     2,
     [](const double* a) { return prec(a[0], as_int(a[1])); },
     "x rounded to n significant digits"},
};

const StatFunction* find_function(const char* name) {
  for (const StatFunction& f : kFunctions) {
    if (std::strcmp(f.name, name) == 0) return &f;
  }
  return nullptr;
}

// The whole text as a number of the given kind; false if it is not one.
bool parse_argument(const char* text, ArgumentKind kind, double& value) {
  if (*text == '\0') return false;
  char* end = nullptr;
  errno = 0;
  if (kind == ArgumentKind::kReal) {
    value = std::strtod(text, &end);
    return *end == '\0';
  }
  const long long integer = std::strtoll(text, &end, 10);
  if (*end != '\0' || errno == ERANGE) return false;
  const long long lowest = kind == ArgumentKind::kInt ? INT_MIN : 0;
  const long long highest = kind == ArgumentKind::kInt ? INT_MAX : UINT_MAX;
  if (integer < lowest || integer > highest) return false;
  value = static_cast<double>(integer);
  return true;
}

const char* error_reason(unsigned code) {
  switch (code) {
    case KILNUTIL_MATH_ERR_NONE: return "argument out of range";
    case KILNUTIL_MATH_ERR_DOMAIN: return "domain error or no convergence";
    case KILNUTIL_MATH_ERR_INVERF_PLUS_ONE: return "inverse error function of +1";
    case KILNUTIL_MATH_ERR_INVERF_MINUS_ONE: return "inverse error function of -1";
    default: return "unknown error";
  }
}

int list_functions() {
  for (const StatFunction& f : kFunctions) {
    const std::string synopsis = std::string(f.name) + " " + f.arguments;
    std::printf("  %-28s %s\n", synopsis.c_str(), f.summary);
  }
  return kOk;
}

}  // namespace

int run_stat(Args args) {
  if (args.size() == 1 && std::strcmp(args[0], "--list") == 0) return list_functions();
  if (args.empty()) return usage_error("stat takes a function and its arguments (see 'kilnutil stat --list')");
  const StatFunction* function = find_function(args[0]);
  if (function == nullptr) {
    return usage_error("stat: unknown function '" + std::string(args[0]) + "' (see 'kilnutil stat --list')");
  }
  const std::string usage = std::string("stat ") + function->name + " " + function->arguments;
  if (args.size() - 1 != function->count)
    return usage_error(usage + ": takes " + std::to_string(function->count) + " argument(s)");
  double values[kMostArguments] = {};
  for (std::size_t i = 0; i < function->count; ++i) {
    if (!parse_argument(args[i + 1], function->kinds[i], values[i])) {
      const char* expected = function->kinds[i] == ArgumentKind::kReal ? "a number" : "an integer in range";
      return usage_error(usage + ": '" + args[i + 1] + "' is not " + expected);
    }
  }
  const double result = function->evaluate(values);
  const bool failed = result == KILNUTIL_NANUM || std::isnan(result) || (function->minus_one_fails && result == -1.0);
  if (!failed) {
    std::printf("%.17g\n", result);
    return kOk;
  }
  const unsigned code = get_error_code();
  std::printf("%s\n", KILNUTIL_get_missing_as_text(nullptr));
  const std::string reason = std::isnan(result)         ? "not a number"
                             : result == KILNUTIL_NANUM ? error_reason(code)
                                                        : "argument out of range or no convergence";
  return input_error(std::string("stat ") + function->name + ": no value, math error code " + std::to_string(code) +
                     " (" + reason + ")");
}

}  // namespace kilnutil_cli
