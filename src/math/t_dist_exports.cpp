// Student's t distribution.
#include <kilnutil/math.h>

#include "frame/missing_value.h"
#include "math/block_args.h"
#include "math/t_dist.h"

extern "C" {

double invt(double t, int df) { return kiln::math::t_cdf(t, df); }

double probt(double t, int df) { return kiln::math::t_cdf_by_symmetry(t, df); }

double tTable(double p, int df) { return kiln::math::t_quantile(p, df); }

double t_dist_export(const double* block) { return kiln::math::block_t_quantile_coarse(block); }

int t_dist_export_ptr(const double* block, double* out) {
  return kiln::math::write_through(out, kiln::math::block_t_quantile_coarse(block));
}

}  // extern "C"
