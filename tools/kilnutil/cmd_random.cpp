// kilnutil random [--seed N] [--normal|--poisson MEAN] [COUNT]: deviates from
// the library's generators, one a line; the same seed gives the same numbers
// on every machine.
#include "commands.h"
#include "math_arguments.h"

#include <kilnutil/math.h>

#include <cstring>
#include <string>

namespace kilnutil_cli {

namespace {

enum class Distribution { kUniform, kNormal, kPoisson };

struct RandomRequest {
  int seed = 0;  // 0: the generator's first sequence (seed 1 of a fresh generator)
  Distribution distribution = Distribution::kUniform;
  double mean = 0;
  int count = 10;
};

double poisson(double mean) {
  double value = 0;
  KilnMath_function(nullptr, KILNUTIL_MATHFN_POISSON, &mean, &value, KILNUTIL_MATHFN_UNIT_RADIANS);
  return value;
}

double draw(const RandomRequest& request) {
  switch (request.distribution) {
    case Distribution::kNormal: return grnd(0);
    case Distribution::kPoisson: return poisson(request.mean);
    default: return rnd(0);
  }
}

// Fills the request from the arguments; returns an error message or "".
std::string parse_request(Args args, RandomRequest& request) {
  bool have_count = false;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string word = args[i];
    const bool has_value = i + 1 < args.size();
    if (word == "--seed") {
      const std::optional<int> seed = has_value ? parse_int32(args[++i]) : std::nullopt;
      if (!seed || *seed < 1) return "random: --seed takes a whole number from 1 to 2147483647";
      request.seed = *seed;
    } else if (word == "--normal") {
      request.distribution = Distribution::kNormal;
    } else if (word == "--poisson") {
      const std::optional<double> mean = has_value ? parse_real(args[++i]) : std::nullopt;
      if (!mean || !(*mean >= 0)) return "random: --poisson takes a mean of 0 or more";
      request.distribution = Distribution::kPoisson;
      request.mean = *mean;
    } else if (!have_count) {
      const std::optional<int> count = parse_int32(args[i]);
      if (!count || *count < 0) return "random: COUNT must be a whole number of 0 or more";
      request.count = *count;
      have_count = true;
    } else {
      return "random: unexpected argument '" + word + "'";
    }
  }
  return {};
}

}  // namespace

int run_random(Args args) {
  RandomRequest request;
  const std::string error = parse_request(args, request);
  if (!error.empty()) return usage_error(error);
  if (request.seed >= 1) grnd(request.seed);  // seeds the uniform generator and drops a saved normal deviate
  for (int i = 0; i < request.count; ++i) print_value(draw(request));
  return kOk;
}

}  // namespace kilnutil_cli
