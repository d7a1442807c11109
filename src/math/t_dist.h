// Student's t distribution: the lower tail through the incomplete beta
// function and the quantile by bisection on it.
#pragma once

namespace kiln::math {

// Iterations of either quantile bisection.
inline constexpr int kTQuantileIterations = 80;

// The lower tail at t (the `invt` export): 1 - I/2 for t >= 0 and I/2 below,
// I = I_{df/(t²+df)}(df/2, 1/2). The missing value for t missing or df < 1;
// clears the error code and gives the missing value if it is set at the end.
double t_cdf(double t, int df);

// The same value by symmetry (the `probt` export): 1 - t_cdf(|t|, df) for
// t < 0. The missing value passes through.
double t_cdf_by_symmetry(double t, int df);

// The quantile (the `tTable` export): bisection on [0, 1e7] to the double
// epsilon, at most 80 steps, negated for p <= 0.5. p outside (0, 1) or
// df <= 0 give the missing value, as does an error in the incomplete beta.
double t_quantile(double p, int df);

// The coarse quantile (the `t_dist_export` export): bisection on [0, 636] to
// 3e-7, at most 80 steps, no argument checks and never the missing value.
double t_quantile_coarse(double p, unsigned df);

// The coarse quantile of a {p, df} argument block (the `t_dist_export`
// export); the missing value for no block.
double block_t_quantile_coarse(const double* block);

}  // namespace kiln::math
