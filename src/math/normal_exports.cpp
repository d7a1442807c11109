// The normal distribution: quantiles, probabilities and percentages.
#include <kilnutil/math.h>

#include "math/block_args.h"
#include "math/normal.h"

extern "C" {

double invncp(double p) { return kiln::math::normal_quantile_as241(p); }

double invncp1(double p) { return kiln::math::normal_quantile_via_inverf(p); }

double invncp2(double p) { return kiln::math::normal_quantile_acklam(p); }

double gauss_inv_export(double p) { return kiln::math::normal_quantile_acklam(p); }

double prob(double x) { return kiln::math::normal_probability(x); }

double cum_gauss_export(double x) { return kiln::math::normal_probability_unchecked(x); }

int norm_prob_export_ptr(double x, double* out) {
  return kiln::math::write_through(out, kiln::math::normal_probability_unchecked(x));
}

double invprob(double p) { return kiln::math::inverse_normal_probability(p); }

double inv_prob_export(double p) { return kiln::math::inverse_normal_probability_unchecked(p); }

int inv_prob_export_ptr(double p, double* out) {
  return kiln::math::write_through(out, kiln::math::inverse_normal_probability_unchecked(p));
}

double KILNUTIL_cum_gauss_plus_one(double x) { return kiln::math::normal_cdf_plus_one(x); }

double KILNUTIL_cum_gauss(double x) { return kiln::math::normal_cdf_percent(x); }

double KILNUTIL_percent_prob(double pct) { return kiln::math::normal_quantile_of_percent(pct); }

}  // extern "C"
