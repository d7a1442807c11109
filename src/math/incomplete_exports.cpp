// The regularised incomplete gamma and beta functions.
#include <kilnutil/math.h>

#include "frame/missing_value.h"
#include "math/block_args.h"
#include "math/incomplete_beta.h"
#include "math/incomplete_gamma.h"

namespace {

double incomplete_beta_of_block(const double* block) {
  if (block == nullptr) return kiln::frame::kMissingValue;
  return kiln::math::incomplete_beta(block[0], block[1], block[2]);
}

}  // namespace

extern "C" {

double incgamma(double x, double a) { return kiln::math::incomplete_gamma(x, a); }

double incbeta(double x, double a, double b) { return kiln::math::incomplete_beta(x, a, b); }

double incomp_beta_export(const double* block) { return incomplete_beta_of_block(block); }

int incomp_beta_export_ptr(const double* block, double* out) {
  return kiln::math::write_through(out, incomplete_beta_of_block(block));
}

}  // extern "C"
