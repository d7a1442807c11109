// The F distribution.
#include <kilnutil/math.h>

#include "frame/missing_value.h"
#include "math/block_args.h"
#include "math/f_dist.h"

extern "C" {

double invf(double f, int df1, int df2) { return kiln::math::f_cdf(f, df1, df2); }

double Ftable(double p, unsigned int df1, unsigned int df2) { return kiln::math::f_quantile(p, df1, df2); }

double F_dist_export(const double* block) { return kiln::math::block_f_quantile(block); }

int F_dist_export_ptr(const double* block, double* out) {
  return kiln::math::write_through(out, kiln::math::block_f_quantile(block));
}

}  // extern "C"
