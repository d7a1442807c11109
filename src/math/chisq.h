// The chi-square distribution: both tails through the incomplete gamma
// function and the quantile by a damped Newton search.
#pragma once

namespace kiln::math {

// Newton iterations of the quantile search; reaching the limit gives -1.0.
inline constexpr int kChisqQuantileIterations = 1000;

// The lower tail at x (the `invchisq` export): P(df/2, x/2).
double chisq_cdf(double x, unsigned df);

// The upper tail at x: 1 - P(df/2, x/2).
double chisq_upper_tail(double x, double df);

// The quantile (the `Chisqr_dist_export` export). Every failure gives -1.0,
// never the missing value: p >= 1, p < 0, df < 1, a failed ln Γ(df/2), or
// the iteration limit.
double chisq_quantile(double p, unsigned df);

}  // namespace kiln::math
