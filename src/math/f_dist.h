// The F distribution: the lower tail through the incomplete beta function and
// the quantile by Newton's method on it.
#pragma once

namespace kiln::math {

// Newton steps after which the F quantile gives up (error code 1 and the
// missing value). The search has no limit of its own and can cycle between
// the two sides of the incomplete beta's branch point, e.g. for
// p = 0.5, df1 = df2 = 2.
inline constexpr int kFQuantileIterationCap = 10000;

// The lower tail at F (the `invf` export): 1 - I_{df2/(df1·F+df2)}(df2/2, df1/2).
// F < 0, df1 < 1 or df2 < 1 give the missing value; clears the error code and
// gives the missing value if it is set at the end.
double f_cdf(double f, int df1, int df2);

// The quantile (the `Ftable` export). p outside (0, 1) or a zero df set error
// code 1 and give the missing value; otherwise the code is cleared and the
// missing value is the result whenever it is set at the end.
double f_quantile(double p, unsigned df1, unsigned df2);

// The quantile of a {p, df1, df2} argument block (the `F_dist_export`
// export); the missing value for no block.
double block_f_quantile(const double* block);

}  // namespace kiln::math
