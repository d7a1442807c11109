// Evaluation routines of the math function catalogue that are not simply
// another routine of the library: the catalogue's own rules (INT, FRAC, EXP),
// the runtime functions without domain rules, and the adapters from an
// argument array (script order, doubles) to the library's routines.
#pragma once

namespace kiln::math {

// One argument.
double absolute_value(double x);
double truncate_limited(double x);  // toward zero, limited to +-2^63
double fraction_part(double x);     // x minus its integer part; 0 outside the 32-bit range
double exp_limited(double x);       // exp(x); above 665 the missing value with error code 1
double nint2_value(double x);       // nint2 as a double
double sine(double x);
double cosine(double x);
double arc_tangent(double x);
double hyperbolic_tangent(double x);

// Argument arrays in script order; whole-number arguments are truncated.
double arc_tangent2(const double* yx);               // ATAN2(y, x)
double beta_of(const double* ab);                    // BETA(a, b)
double incomplete_gamma_of(const double* ax);        // INCGAMMA(a, x) = P(a, x)
double incomplete_beta_of(const double* xab);        // INCBETA(x, a, b)
double incomplete_f_upper(const double* f_df1_df2);  // INCF: upper tail of F
double incomplete_f_lower(const double* f_df1_df2);  // INVF: 1 - INCF
double f_table_of(const double* p_df1_df2);          // FTABLE(p, df1, df2)
double t_cdf_of(const double* t_df);                 // INVT(t, df)
double t_table_of(const double* p_df);               // TTABLE(p, df): the coarse quantile
double round_of(const double* x_places);             // ROUND(x, n)
double prec_of(const double* x_digits);              // PREC(x, n)
double mod_of(const double* ab);                     // MOD(a, b): sign of a
double mod2_of(const double* ab);                    // MOD2(a, b): sign of b
double rmod_of(const double* xy);                    // RMOD(x, y): fmod
double rmod2_of(const double* xy);                   // RMOD2(x, y): x - floor(x/y)*y
double angle_of(const double* xy);                   // ANGLE(x, y): polar angle in [0, 2 pi)
double bessel_jn_of(const double* nx);               // JN(n, x)
double bessel_yn_of(const double* nx);               // YN(n, x)

}  // namespace kiln::math
