// The standard normal distribution: three quantile approximations, the
// two-sided probability erf(x/√2) and the cumulative forms built on the
// incomplete gamma expansions.
#pragma once

namespace kiln::math {

// Quantile by Wichura's AS 241 (about 1e-16). p <= 0 or p >= 1 give the
// missing value; the error code is never touched.
double normal_quantile_as241(double p);

// Quantile as √2 · inverse_error_function(2p - 1); p <= 0 or p >= 1 give the
// missing value.
double normal_quantile_via_inverf(double p);

// Quantile by Acklam's rational approximation (about 1.2e-9), evaluated on
// x = max(p, 1 - p) and negated for p <= 0.5 (p = 0.5 gives -0). Clears the
// error code; p <= 0 or p >= 1 set code 1 and give the missing value.
double normal_quantile_acklam(double p);

// erf(x/√2) (the `prob` export): the missing value passes through, and an
// error code at the end gives the missing value.
double normal_probability(double x);

// erf(x/√2) without the missing-value test (the `cum_gauss_export` export).
double normal_probability_unchecked(double x);

// The inverse of normal_probability: normal_quantile_acklam((p + 1)/2),
// with (`invprob`) or without (`inv_prob_export`) the final error check.
double inverse_normal_probability(double p);
double inverse_normal_probability_unchecked(double p);

// 1 + erf(x/√2), twice the lower tail, straight from the series (x²/2 < 1.5)
// or the continued fraction (x²/2 >= 1.5) so the far tail keeps its digits.
double normal_cdf_plus_one(double x);

// The lower tail in percent, 50 · normal_cdf_plus_one(x); the missing value
// passes through.
double normal_cdf_percent(double x);

// The quantile of a percentage by AS 241: the missing value passes through,
// pct >= 100 gives 1e290 and pct <= 0 gives -1e290.
double normal_quantile_of_percent(double pct);

}  // namespace kiln::math
