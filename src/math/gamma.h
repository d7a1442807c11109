// The logarithm of the gamma function in its two Lanczos forms, the complete
// beta function and the binomial coefficient built on it.
#pragma once

namespace kiln::math {

// ln Γ(x) by the five-coefficient series (the `gammaln` export). x <= 0
// sets error code 1 and gives the missing value; a non-positive series sum
// gives the missing value and leaves the code alone.
double ln_gamma_five_term(double x);

// ln Γ(x) by the six-coefficient series: the routine behind every
// distribution, the complete beta function and the binomial coefficient.
// Same failures as the five-term form. Good to about 1e-10.
double ln_gamma(double x);

// B(a, b) = exp(ln Γ(a) + ln Γ(b) - ln Γ(a + b)). Clears the error code; the
// range test is on ln Γ(a) + ln Γ(b) + ln Γ(a + b): below -665 gives 0, above
// 665 (or an error code) the missing value.
double complete_beta(double a, double b);

// ln B(a, b) = ln Γ(a) + ln Γ(b) - ln Γ(a + b) without range test, for
// a, b > 0 (the F quantile's density).
double ln_complete_beta(double a, double b);

// The binomial coefficient n over k rounded to the nearest integer; n - k
// wraps in unsigned arithmetic, so k > n gives 0.
double binomial_coefficient(unsigned n, unsigned k);

}  // namespace kiln::math
