// Chi-square quantile: a lognormal start value, then Newton steps on
// p - P(df/2, x/2) with the density f, falling back to x/10 whenever f
// underflows or the step would cross zero.
#include "math/chisq.h"

#include "frame/missing_value.h"
#include "math/gamma.h"
#include "math/incomplete_gamma.h"
#include "math/normal.h"

#include <cmath>

namespace kiln::math {

namespace {

constexpr double kFailed = -1.0;
constexpr double kTolerance = 1.4901006677402706e-08;  // √2.2204e-16
constexpr double kSmallestDensity = 1.7e-307;
constexpr double kLnTwo = 0.6931471805599453;

// The lognormal fit with mean m and variance 2m, except that the deviate is
// multiplied by ln(1 + 2/m) itself, not by its square root: the Newton search
// makes up for it.
double start_value(double p, double m) {
  const double z = normal_quantile_acklam(p);
  return std::exp(z * std::log(1 + 2 / m) + 2 * std::log(m) - 0.5 * std::log(m * m + 2 * m));
}

}  // namespace

double chisq_cdf(double x, unsigned df) { return incomplete_gamma(x / 2, static_cast<double>(df) / 2); }

double chisq_upper_tail(double x, double df) { return 1 - incomplete_gamma(x / 2, df / 2); }

double chisq_quantile(double p, unsigned df) {
  if (p >= 1 || p < 0 || df < 1) return kFailed;
  const double half_df = static_cast<double>(df) / 2;
  const double ln_gamma_half_df = ln_gamma_five_term(half_df);
  if (frame::is_missing(ln_gamma_half_df)) return kFailed;
  double x = start_value(p, df);
  if (std::fabs(x) * kTolerance >= 1) return x;
  int iteration = 0;
  double step;
  do {
    const double difference = p - incomplete_gamma(x / 2, half_df);
    const double density = std::exp((half_df - 1) * std::log(x) - (x / 2 + ln_gamma_half_df) - half_df * kLnTwo);
    if (density > kSmallestDensity && x + difference / density >= 0) {
      step = difference / density;
      x += step;
    } else {
      step = x / 10 - x;
      x /= 10;
    }
    ++iteration;
  } while (iteration < kChisqQuantileIterations && std::fabs(step) > std::fabs(x) * kTolerance);
  return iteration >= kChisqQuantileIterations ? kFailed : x;
}

}  // namespace kiln::math
