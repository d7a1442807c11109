// Evaluation routines of the math function catalogue that are not simply
// another routine of the library: the catalogue's own rules (INT, FRAC, EXP,
// NINT), the runtime functions without domain rules, and the adapters from an
// argument array (script order, doubles) to the library's routines.
#pragma once

namespace kiln::math {

// One argument.
double absolute_value(double x);
double truncate_limited(double x);  // toward zero, limited to +-2^63
double fraction_part(double x);     // x minus its integer part; 0 outside the 32-bit range
double exp_limited(double x);       // exp(x); above 665 the missing value with error code 1
double nearest_integer(double x);   // half away from zero, 64-bit outside the 32-bit range
double sine(double x);
double cosine(double x);
double arc_tangent(double x);
double hyperbolic_tangent(double x);

// Argument arrays in script order.
double arc_tangent2(const double* yx);              // ATAN2(y, x)
double incomplete_f_upper(const double* f_df1_df2);  // INCF: upper tail of F
double incomplete_f_lower(const double* f_df1_df2);  // INVF: 1 - INCF

// Placeholders for routines that are not part of this build yet: they give
// the missing value with math error code 1.
double routine_unavailable(double x);
double routine_unavailable_array(const double* arguments);

}  // namespace kiln::math
