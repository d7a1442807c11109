// ln Γ in both forms, the complete beta function and the binomial coefficient.
#include <kilnutil/math.h>

#include "math/block_args.h"
#include "math/gamma.h"

extern "C" {

double gammaln(double x) { return kiln::math::ln_gamma_five_term(x); }

double gammln_export(double x) { return kiln::math::ln_gamma(x); }

int ln_gamma_export_ptr(double x, double* out) { return kiln::math::write_through(out, kiln::math::ln_gamma(x)); }

double beta(double a, double b) { return kiln::math::complete_beta(a, b); }

int bico_export_ptr(unsigned int n, unsigned int k, double* out) {
  return kiln::math::write_through(out, kiln::math::binomial_coefficient(n, k));
}

}  // extern "C"
