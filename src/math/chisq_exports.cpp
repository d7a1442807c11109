// The chi-square distribution.
#include <kilnutil/math.h>

#include "math/block_args.h"
#include "math/chisq.h"

namespace {

// A null block gives -1, the quantile's failure value.
double quantile_of_block(const double* block) {
  if (block == nullptr) return -1.0;
  return kiln::math::chisq_quantile(block[0], kiln::math::block_degrees_of_freedom(block[1]));
}

}  // namespace

extern "C" {

double invchisq(double x, unsigned int df) { return kiln::math::chisq_cdf(x, df); }

int chisquare_prob_Q_export_ptr(double* out, double x, double df) {
  return kiln::math::write_through(out, kiln::math::chisq_upper_tail(x, df));
}

double ChisqDist(double p, unsigned int df) { return kiln::math::chisq_quantile(p, df); }

double Chisqr_dist_export(const double* block) { return quantile_of_block(block); }

int Chisqr_dist_export_ptr(const double* block, double* out) {
  return kiln::math::write_through(out, quantile_of_block(block));
}

}  // extern "C"
