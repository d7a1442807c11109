/* kilnutil math: special functions and distributions, rounding, random
 * numbers, sorting, matrix inversion, elementary functions, the Smith chart
 * and the script language's math function catalogue. Failures give the
 * missing value (KILNUTIL_NANUM) and set the process-wide math error code. */
#ifndef KILNUTIL_MATH_H
#define KILNUTIL_MATH_H

#include "kilnutil/export.h"

/* ---- The math error code (process-wide; most routines clear it on entry). */
#define KILNUTIL_MATH_ERR_NONE 0u            /* no error */
#define KILNUTIL_MATH_ERR_DOMAIN 1u          /* domain error or no convergence */
#define KILNUTIL_MATH_ERR_INVERF_PLUS_ONE 2u  /* inverse error function of +1 */
#define KILNUTIL_MATH_ERR_INVERF_MINUS_ONE 3u /* inverse error function of -1 */

KILNUTIL_BEGIN_C

KILNUTIL_API unsigned int get_error_code(void);
KILNUTIL_API unsigned int KILNUTIL_get_error_code(void);

/* ---- Special functions and distributions ---- */


/* ---- Rounding, precision and comparison ---- */
/* x rounded to n decimal places (n > 308: x unchanged) by the algorithm the
 * new-rounding switch selects; also exported as `round` (see below). */
KILNUTIL_API double KILNUTIL_mround(double x, int n);
/* x rounded to n significant digits; 10^n > 2147483647: missing value, code 1. */
KILNUTIL_API double prec(double x, int n);
/* The new-rounding switch (default 1): read and write through the pointer. */
KILNUTIL_API unsigned char* IsRoundNewAlgorithm(void);

/* Double to integer. nint, KILNUTIL_nint, nint2 clamp at the 32-bit range;
 * KILNUTIL_tint, KILNUTIL_nnint, KILNUTIL_last_nint, KILNUTIL_lnint at
 * +-2147483600; KILNUTIL_nint64 does not clamp. */
KILNUTIL_API int nint(double x);               /* half away from zero */
KILNUTIL_API int KILNUTIL_nint(double x);      /* same as nint */
KILNUTIL_API int nint2(double x);              /* truncate, minus 1 when x < 0 */
KILNUTIL_API long long KILNUTIL_nint64(double x); /* half away from zero, 64-bit */
KILNUTIL_API int KILNUTIL_tint(double x);      /* truncate toward zero */
KILNUTIL_API int KILNUTIL_nnint(double x);     /* ceiling */
KILNUTIL_API int KILNUTIL_last_nint(double x); /* floor tolerating 1e-10 */
KILNUTIL_API int KILNUTIL_lnint(double x);     /* the same, in single precision */

/* Remainders. A zero divisor sets code 1 and gives 0, 0, the missing value, x. */
KILNUTIL_API int mod(int a, int b);                    /* sign of the dividend */
KILNUTIL_API int mod2(int a, int b);                   /* sign of the divisor */
KILNUTIL_API double rmod(double x, double y);          /* fmod: sign of the dividend */
KILNUTIL_API double KILNUTIL_mrmod2(double x, double y); /* x - floor(x/y)*y */

/* Tolerant comparison: op is one of these; 0 stores a as the tolerance. */
#define KILNUTIL_COMPARE_SET_TOLERANCE 0
#define KILNUTIL_COMPARE_EQUAL 61     /* '=' */
#define KILNUTIL_COMPARE_NOT_EQUAL 33 /* '!' */
/* 0 or 1; tol equal to the missing value uses the default tolerance (1e-14). */
KILNUTIL_API int KILNUTIL_double_compare_ex(double a, double b, double tol, int op);
/* KILNUTIL_double_compare_ex with the is_equal tolerance (1e-14). */
KILNUTIL_API int is_equal(double a, double b, int op);
/* 1 for 0, the missing value and 0 < |x| < 1e-290. */
KILNUTIL_API int KILNUTIL_test_double_for_zero(double x);

/* Guarded power: 1 with *result written, 0 on failure. A null result with a
 * base pointer sets the zero-to-the-power-zero switch to (*base > 0) and
 * returns 1; with both null it returns the switch (default 0). */
KILNUTIL_API int KILNUTIL_safe_power(double* result, const double* base, const double* exponent);
/* base^exponent or the missing value (also exported as `pow`, see below). */
KILNUTIL_API double KILNUTIL_pow(double base, double exponent);
KILNUTIL_API double KILNUTIL_my_power(double base, double exponent);
/* a/b, or fallback when an argument is missing or the quotient would overflow. */
KILNUTIL_API double KILNUTIL_safe_double_divide(double a, double b, double fallback);
/* Common logarithm, or the missing value for x <= 0; see IsReduceErrorForLog10. */
KILNUTIL_API double KILNUTIL_mylog10(double x);
/* The exact-log10 switch (default 0: ln(x)/ln(10)); read and write through it. */
KILNUTIL_API unsigned char* IsReduceErrorForLog10(void);
/* x rounded to a multiple of |inc|: up toward +infinity, or down tolerating
 * 1e-10 of a step. */
#define KILNUTIL_ROUND_TO_INC_DOWN 0
#define KILNUTIL_ROUND_TO_INC_UP 1
KILNUTIL_API double KILNUTIL_round_to_inc(double x, double inc, int up);
/* get non-zero: *slot. Otherwise value is stored when below 101; returns *slot. */
#define KILNUTIL_PERCENTAGE_SET 0
#define KILNUTIL_PERCENTAGE_GET 1
KILNUTIL_API int KILNUTIL_percentage_value(short* slot, int get, int value);

/* Exported under C runtime names: round (same as KILNUTIL_mround), ceil and
 * floor (the missing value for the missing value and for an infinite result)
 * and pow (same as KILNUTIL_pow). These and the elementary functions below
 * that share a C runtime name are declared only when the including code
 * defines KILNUTIL_DECLARE_RUNTIME_NAMES, because they clash with <math.h>;
 * hosts usually reach them by name at run time, and a program that links the
 * library at build time and calls the C runtime's functions itself lists the
 * C math library ahead of this library. */
#if defined(KILNUTIL_DECLARE_RUNTIME_NAMES)
KILNUTIL_API double round(double x, int n);
KILNUTIL_API double ceil(double x);
KILNUTIL_API double floor(double x);
KILNUTIL_API double pow(double base, double exponent);
#endif


/* ---- Elementary function wrappers ---- */
/* Outside its domain a wrapper gives the missing value; those marked "code 1"
 * also set the math error code to 1. An infinite result of cosh, sinh and tan
 * gives the missing value. None of them clears the error code. */
#if defined(KILNUTIL_DECLARE_RUNTIME_NAMES)
KILNUTIL_API double sqrt(double x);   /* x < 0: code 1 */
KILNUTIL_API double log10(double x);  /* x <= 0: code 1 */
KILNUTIL_API double log1p(double x);  /* x <= -1: code 1 */
KILNUTIL_API double expm1(double x);
KILNUTIL_API double acos(double x);   /* |x| > 1: code 1 */
KILNUTIL_API double asin(double x);   /* |x| > 1: code 1 */
KILNUTIL_API double cosh(double x);
KILNUTIL_API double sinh(double x);
KILNUTIL_API double tan(double x);
KILNUTIL_API double asinh(double x);
KILNUTIL_API double acosh(double x);  /* |x| < 1 or x <= -1: missing value */
KILNUTIL_API double atanh(double x);  /* |x| >= 1: missing value */
KILNUTIL_API double hypot(double x, double y); /* a negative leg: code 1 */
#endif
/* x <= 0: code 1, unless the non-positive-logarithm switch is on; then the
 * runtime's result (an infinity or NaN). */
KILNUTIL_API double ln(double x);
KILNUTIL_API double cot(double x);    /* 1/tan x; tan x exactly 0: missing */
KILNUTIL_API double acot(double x);   /* pi/2 - atan x */
KILNUTIL_API double coth(double x);   /* 1/tanh x */
KILNUTIL_API double acoth(double x);  /* atanh(1/x); |x| <= 1: missing */
KILNUTIL_API double secant(double x); /* 1/cos x */
KILNUTIL_API double csc(double x);    /* 1/sin x */
KILNUTIL_API double asec(double x);   /* acos(1/x); |x| < 1: missing */
KILNUTIL_API double acsc(double x);   /* asin(1/x); |x| < 1: missing */
KILNUTIL_API double sech(double x);   /* 1/cosh x */
KILNUTIL_API double csch(double x);   /* 1/sinh x */
KILNUTIL_API double asech(double x);  /* x <= 0 or x > 1: missing */
KILNUTIL_API double acsch(double x);  /* x = 0: missing */
/* Polar angle of (x, y) in [0, 2pi); (0, 0): code 1. */
KILNUTIL_API double angle(double x, double y);
/* Bessel functions by the C runtime; the second kind needs x > 0 (code 1).
 * The order n is truncated toward zero. */
KILNUTIL_API double J0(double x);
KILNUTIL_API double J1(double x);
KILNUTIL_API double Jn(double n, double x);
KILNUTIL_API double Y0(double x);
KILNUTIL_API double Y1(double x);
KILNUTIL_API double Yn(double n, double x);
/* x rounded to an unsigned 32-bit integer: a negative x gives nint(x) read as
 * unsigned; x + 0.5 >= 4294967295 gives 4294967295. */
KILNUTIL_API unsigned int nUINT(double x);
/* The non-positive-logarithm switch (default 0): whether ln of x <= 0 passes
 * the runtime's result through instead of the missing value with code 1.
 * Set: stores (on != 0) and returns the previous value. Get: the value. */
KILNUTIL_API int KILNUTIL_SetLnNonPositivePassThrough(int on);
KILNUTIL_API int KILNUTIL_GetLnNonPositivePassThrough(void);


/* ---- Random numbers ---- */


/* ---- Sorting and ordered insertion ---- */


/* ---- Matrix inversion ---- */


/* ---- Smith chart ---- */


/* ---- Script math function catalogue ---- */


KILNUTIL_END_C

#endif /* KILNUTIL_MATH_H */
