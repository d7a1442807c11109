// Poisson deviates: multiplication of uniforms for small means, transformed
// rejection with squeeze for large ones.
#include "math/poisson.h"

#include "frame/missing_value.h"
#include "math/error_code.h"
#include "math/random.h"

#include <cmath>

namespace kiln::math {

namespace {

constexpr double kRejectionFromMean = 10.0;

// Counts uniforms until their running product falls to e^-mean or below.
double poisson_by_multiplication(double mean, std::int32_t& seed) {
  const double limit = std::exp(-mean);
  double count = 0.0;
  double product = uniform_deviate(seed);
  while (product > limit) {
    count += 1.0;
    product *= uniform_deviate(seed);
  }
  return count;
}

// The transformed rejection with squeeze for mean >= 10: a hat built from the
// inverse of a transformed uniform, a quick acceptance region and an exact
// test against ln of the probability mass.
double poisson_by_rejection(double mean, std::int32_t& seed) {
  const double root = std::sqrt(mean);
  const double b = 0.931 + 2.53 * root;
  const double a = -0.059 + 0.02483 * b;
  const double log_inverse_alpha = std::log(1.1239 + 1.1328 / (b - 3.4));
  const double quick_accept = 0.9277 - 3.6224 / (b - 2.0);
  const double log_mean = std::log(mean);
  for (;;) {
    const double u = uniform_deviate(seed) - 0.5;
    const double v = uniform_deviate(seed);
    const double us = 0.5 - std::abs(u);
    const double k = std::floor((2.0 * a / us + b) * u + mean + 0.43);
    if (us >= 0.07 && v <= quick_accept) return k;
    if (k < 0.0 || (us < 0.013 && v > us)) continue;
    const double log_hat = std::log(v) + log_inverse_alpha - std::log(a / (us * us) + b);
    if (log_hat <= -mean + k * log_mean - std::lgamma(k + 1.0)) return k;
  }
}

bool usable_mean(double mean) { return !frame::is_missing(mean) && std::isfinite(mean) && mean >= 0.0; }

}  // namespace

double poisson_deviate(double mean, std::int32_t& seed) {
  if (!usable_mean(mean)) {
    set_error_code(KILNUTIL_MATH_ERR_DOMAIN);
    return frame::kMissingValue;
  }
  if (mean == 0.0) return 0.0;
  if (mean < kRejectionFromMean) return poisson_by_multiplication(mean, seed);
  return poisson_by_rejection(mean, seed);
}

}  // namespace kiln::math
