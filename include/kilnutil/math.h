/* kilnutil math: special functions and distributions, rounding, random
 * numbers, sorting, matrix inversion, elementary functions, the Smith chart
 * and the script language's math function catalogue. Failures give the
 * missing value (KILNUTIL_NANUM) and set the process-wide math error code. */
#ifndef KILNUTIL_MATH_H
#define KILNUTIL_MATH_H

#include "kilnutil/export.h"

/* ---- The math error code (process-wide; most routines clear it on entry). */
#define KILNUTIL_MATH_ERR_NONE 0u             /* no error */
#define KILNUTIL_MATH_ERR_DOMAIN 1u           /* domain error or no convergence */
#define KILNUTIL_MATH_ERR_INVERF_PLUS_ONE 2u  /* inverse error function of +1 */
#define KILNUTIL_MATH_ERR_INVERF_MINUS_ONE 3u /* inverse error function of -1 */

KILNUTIL_BEGIN_C

KILNUTIL_API unsigned int get_error_code(void);
KILNUTIL_API unsigned int KILNUTIL_get_error_code(void);

/* ---- Special functions and distributions ----
 * Degrees of freedom: int where negative values are refused, unsigned where
 * they are not expected; inside an argument block they are doubles truncated
 * toward zero. A `_ptr` form writes its result through its pointer argument
 * (nothing for a null pointer) and always returns 0. */
KILNUTIL_API double gammaln(double x);       /* ln Gamma, five-term series */
KILNUTIL_API double gammln_export(double x); /* ln Gamma, six-term series */
KILNUTIL_API int ln_gamma_export_ptr(double x, double* out);
KILNUTIL_API double beta(double a, double b);                                  /* complete beta B(a, b) */
KILNUTIL_API int bico_export_ptr(unsigned int n, unsigned int k, double* out); /* n over k */
KILNUTIL_API double incgamma(double x, double a);                              /* P(a, x): x first */
KILNUTIL_API double incbeta(double x, double a, double b);                     /* I_x(a, b) */
KILNUTIL_API double incomp_beta_export(const double* block);                   /* {x, a, b} */
KILNUTIL_API int incomp_beta_export_ptr(const double* block, double* out);
KILNUTIL_API double error_func_export(double x); /* erf */
KILNUTIL_API int error_func_export_ptr(double* inout);
KILNUTIL_API double inverf(double y); /* inverse erf */
KILNUTIL_API double inv_erf_export(double y);
KILNUTIL_API double invncp(double p);           /* normal quantile, AS 241 */
KILNUTIL_API double invncp1(double p);          /* normal quantile, sqrt(2) inverf(2p - 1) */
KILNUTIL_API double invncp2(double p);          /* normal quantile, Acklam */
KILNUTIL_API double gauss_inv_export(double p); /* invncp2 */
KILNUTIL_API double prob(double x);             /* erf(x / sqrt(2)) */
KILNUTIL_API double cum_gauss_export(double x); /* prob without the missing-value test */
KILNUTIL_API int norm_prob_export_ptr(double x, double* out);
KILNUTIL_API double invprob(double p); /* invncp2((p + 1) / 2) */
KILNUTIL_API double inv_prob_export(double p);
KILNUTIL_API int inv_prob_export_ptr(double p, double* out);
KILNUTIL_API double KILNUTIL_cum_gauss_plus_one(double x); /* 1 + erf(x / sqrt(2)) */
KILNUTIL_API double KILNUTIL_cum_gauss(double x);          /* normal lower tail in percent */
KILNUTIL_API double KILNUTIL_percent_prob(double pct);     /* normal quantile of pct percent */
KILNUTIL_API double invt(double t, int df);                /* Student t lower tail */
KILNUTIL_API double probt(double t, int df);
KILNUTIL_API double tTable(double p, int df);           /* Student t quantile */
KILNUTIL_API double t_dist_export(const double* block); /* {p, df}: coarse quantile */
KILNUTIL_API int t_dist_export_ptr(const double* block, double* out);
KILNUTIL_API double invf(double f, int df1, int df2);                     /* F lower tail */
KILNUTIL_API double Ftable(double p, unsigned int df1, unsigned int df2); /* F quantile */
KILNUTIL_API double F_dist_export(const double* block);                   /* {p, df1, df2} */
KILNUTIL_API int F_dist_export_ptr(const double* block, double* out);
KILNUTIL_API double invchisq(double x, unsigned int df);                        /* chi-square lower tail */
KILNUTIL_API int chisquare_prob_Q_export_ptr(double* out, double x, double df); /* upper tail */
KILNUTIL_API double ChisqDist(double p, unsigned int df);                       /* chi-square quantile, -1 on failure */
KILNUTIL_API double Chisqr_dist_export(const double* block);                    /* {p, df} */
KILNUTIL_API int Chisqr_dist_export_ptr(const double* block, double* out);

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
KILNUTIL_API int nint(double x);                  /* half away from zero */
KILNUTIL_API int KILNUTIL_nint(double x);         /* same as nint */
KILNUTIL_API int nint2(double x);                 /* truncate, minus 1 when x < 0 */
KILNUTIL_API long long KILNUTIL_nint64(double x); /* half away from zero, 64-bit */
KILNUTIL_API int KILNUTIL_tint(double x);         /* truncate toward zero */
KILNUTIL_API int KILNUTIL_nnint(double x);        /* ceiling */
KILNUTIL_API int KILNUTIL_last_nint(double x);    /* floor tolerating 1e-10 */
KILNUTIL_API int KILNUTIL_lnint(double x);        /* the same, in single precision */

/* Remainders. A zero divisor sets code 1 and gives 0, 0, the missing value, x. */
KILNUTIL_API int mod(int a, int b);                      /* sign of the dividend */
KILNUTIL_API int mod2(int a, int b);                     /* sign of the divisor */
KILNUTIL_API double rmod(double x, double y);            /* fmod: sign of the dividend */
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
KILNUTIL_API double sqrt(double x);  /* x < 0: code 1 */
KILNUTIL_API double log10(double x); /* x <= 0: code 1 */
KILNUTIL_API double log1p(double x); /* x <= -1: code 1 */
KILNUTIL_API double expm1(double x);
KILNUTIL_API double acos(double x); /* |x| > 1: code 1 */
KILNUTIL_API double asin(double x); /* |x| > 1: code 1 */
KILNUTIL_API double cosh(double x);
KILNUTIL_API double sinh(double x);
KILNUTIL_API double tan(double x);
KILNUTIL_API double asinh(double x);
KILNUTIL_API double acosh(double x);           /* |x| < 1 or x <= -1: missing value */
KILNUTIL_API double atanh(double x);           /* |x| >= 1: missing value */
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
/* One process-wide uniform generator (three congruential generators shuffled
 * through a 97-entry table) and a normal generator on it that draws deviates
 * in pairs. A negative seed re-initialises the state and is overwritten with
 * 1; the first draw of a fresh generator initialises it from its seed. */
#define KILNUTIL_RANDOM_RESET_NORMAL 0x01u /* gasdevex_export: forget the saved deviate, return 0 */

KILNUTIL_API double ran1_export(int* seed);
KILNUTIL_API int ran1_dev_export_ptr(int seed, double* result);
KILNUTIL_API double gasdevex_export(int* seed, unsigned char reset);
KILNUTIL_API int norm_dev_export_ptr(int seed, double* result);
KILNUTIL_API double rnd(int n);
KILNUTIL_API double grnd(int n);

/* ---- Sorting and ordered insertion ---- */

/* KilnMath_Sort flags and results. Only the descending bit is read. */
#define KILNUTIL_SORT_DESCENDING 0x20u
#define KILNUTIL_SORT_OK 0
#define KILNUTIL_SORT_STACK_OVERFLOW 1 /* more than 25 pending ranges; the column is partly sorted */
/* The synchronized quicksort's largest record, main and companion alike. */
#define KILNUTIL_SORT_MAX_SYNC_RECORD 208

/* Negative when a sorts before b, 0 when equal, positive when after. */
typedef int (*KilnSortCompare)(const void* a, const void* b);
/* The same with the caller's opaque value passed through. */
typedef int (*KilnSortCompareUser)(const void* a, const void* b, long long user);

/* One companion array of the synchronized quicksort: its first element and
 * its element size in bytes. */
typedef struct KilnSortCompanion {
  void* data;
  int size;
} KilnSortCompanion;

/* Quicksort of keys[0..n-1] carrying index[] along; returns KILNUTIL_SORT_OK
 * or KILNUTIL_SORT_STACK_OVERFLOW. Ranges under 8 entries are stable. */
KILNUTIL_API int KilnMath_Sort(int n, unsigned int* index, double* keys, unsigned short flags);
/* Records lo..hi of `size` bytes; not stable. */
KILNUTIL_API void KILNUTIL_HopefullyFasterQuickSort(void* base, int lo, int hi, int size, KilnSortCompare compare);
/* Sorts records lo..hi and swaps the same elements of every companion array
 * (count entries, or none when companions is null). */
KILNUTIL_API void KILNUTIL_HopefullyFasterQuickSort_synchronized(void* base, int lo, int hi, int size,
                                                                 KilnSortCompareUser compare,
                                                                 const KilnSortCompanion* companions, int count,
                                                                 long long user);
/* Stable; does nothing when its scratch block cannot be allocated. */
KILNUTIL_API void KILNUTIL_MergeSort(void* base, int lo, int hi, int size, KilnSortCompare compare);
/* Stable. */
KILNUTIL_API void KILNUTIL_InsertionSort(void* base, int lo, int hi, int size, KilnSortCompare compare);
/* The slot where item belongs in the sorted (ascending or descending) range
 * lo..hi: after its equals when ascending, before them when descending. */
KILNUTIL_API int KILNUITL_locate(const void* base, const void* item, int lo, int hi, int size, long long user,
                                 KilnSortCompareUser compare);
/* Stores item at its located slot, moving the tail up one slot (the caller
 * owns room for element hi + 1); returns the slot. */
KILNUTIL_API int KILNUITL_insert_ordered(void* base, const void* item, int lo, int hi, int size, long long user,
                                         KilnSortCompareUser compare);

/* ---- Matrix inversion ---- */

#define KILNUTIL_INVERSE_MAX_ORDER 128
#define KILNUTIL_INVERSE_MODE_IN_PLACE 0u /* a singular matrix is left partly transformed */
#define KILNUTIL_INVERSE_MODE_COPY 1u     /* works on a copy; the input changes only on success */
#define KILNUTIL_INVERSE_OK 0
#define KILNUTIL_INVERSE_NO_ROOM 1  /* order above 128, or no memory for the copy */
#define KILNUTIL_INVERSE_SINGULAR 3 /* a pivot below 10^-exponent */
#define KILNUTIL_PIVOT_EXPONENT_GET 0
#define KILNUTIL_PIVOT_EXPONENT_SET 1
#define KILNUTIL_PIVOT_EXPONENT_DEFAULT 35.0

/* Inverts the n x n matrix a in place (row- or column-major alike). */
KILNUTIL_API int KilnMath_Inverse(unsigned short n, double* a, unsigned short mode);
/* set non-zero: the pivot exponent becomes *value; zero: *value receives it.
 * Always 0. */
KILNUTIL_API int gaussjordan_pivotmin_export_ptr(double* value, int set);

/* ---- Smith chart ---- */
/* Impedance r + jx to reflection coefficient u + jv = (z - 1)/(z + 1) and
 * back. The missing value in either argument gives the missing value (except
 * in KILNUTIL_smith_XY2UV, which is plain arithmetic). */
#define KILNUTIL_SMITH_INVERT 1u /* negative resistances reflected into the chart */

KILNUTIL_API void KILNUTIL_smith_XY2UV(double r, double x, double* u, double* v);
KILNUTIL_API double KILNUTIL_smith_x_real_space(double r, double x, unsigned char invert);
KILNUTIL_API double KILNUTIL_smith_y_real_space(double r, double x, unsigned char invert);
KILNUTIL_API double KILNUTIL_smith_x_real_inv_space(double u, double v);
KILNUTIL_API double KILNUTIL_smith_y_real_inv_space(double u, double v);

/* ---- Script math function catalogue ---- */
/* KilnMath_function(context, command, arguments, result, unit): the low 16
 * bits of command choose the operation; for the per-entry operations the
 * high 16 bits carry the catalogue index (KILNUTIL_MATHFN_COMMAND builds it).
 * arguments points to doubles (the name text for FIND, a 32-bit integer for
 * SEED); result to a double (an unsigned short index for FIND, a text buffer
 * of KILNUTIL_MATHFN_TEXT_SIZE chars for NAME, DESCRIPTION and HELP). */
#define KILNUTIL_MATHFN_COMMAND(operation, index) ((operation) | ((index)*0x10000u))

#define KILNUTIL_MATHFN_FIND 0u             /* name -> index; returns the argument count or 0 */
#define KILNUTIL_MATHFN_EVALUATE 1u         /* returns the math error code */
#define KILNUTIL_MATHFN_ARG_COUNT 2u        /* returns the argument count of the entry */
#define KILNUTIL_MATHFN_SEED 3u             /* non-zero: seed from the tick count, else 1 */
#define KILNUTIL_MATHFN_IS_SEEDED 4u        /* returns 1 when the dispatcher's seed is not 1 */
#define KILNUTIL_MATHFN_RND 10u             /* *arguments = rnd(trunc(*arguments)); normal reset */
#define KILNUTIL_MATHFN_UNIFORM 11u         /* uniform deviate with the dispatcher's seed */
#define KILNUTIL_MATHFN_NORMAL 12u          /* normal deviate with the dispatcher's seed */
#define KILNUTIL_MATHFN_POISSON 15u         /* Poisson deviate with mean *arguments */
#define KILNUTIL_MATHFN_PROB 20u            /* erf(x/sqrt 2); returns the math error code */
#define KILNUTIL_MATHFN_QUANTILE 21u        /* normal quantile of p; returns the math error code */
#define KILNUTIL_MATHFN_SIZE 25u            /* catalogue size with its end entry, as a double */
#define KILNUTIL_MATHFN_NAME 26u            /* name of the entry */
#define KILNUTIL_MATHFN_DESCRIPTION 27u     /* one-line description of the entry */
#define KILNUTIL_MATHFN_HELP 28u            /* help text of the entry */
#define KILNUTIL_MATHFN_PREC 100u           /* prec(arguments[0], arguments[1]); returns the error code */
#define KILNUTIL_MATHFN_UNKNOWN 0xFFFFFFFFu /* result of an unknown command */

#define KILNUTIL_MATHFN_UNIT_RADIANS 0u
#define KILNUTIL_MATHFN_UNIT_DEGREES 1u
#define KILNUTIL_MATHFN_UNIT_GRADIANS 2u

#define KILNUTIL_MATHFN_FLAG_ANGLE_ARG 0x01u      /* the argument is an angle in the caller's unit */
#define KILNUTIL_MATHFN_FLAG_ANGLE_RESULT 0x02u   /* the result is an angle in the caller's unit */
#define KILNUTIL_MATHFN_FLAG_NON_NEGATIVE 0x04u   /* the argument must not be negative */
#define KILNUTIL_MATHFN_FLAG_GENERAL 0x08u        /* category only */
#define KILNUTIL_MATHFN_FLAG_POSITIVE 0x10u       /* the argument must be positive */
#define KILNUTIL_MATHFN_FLAG_UNIT_RANGE 0x20u     /* the argument must lie in [-1, 1] */
#define KILNUTIL_MATHFN_FLAG_NO_DESCRIPTION 0x40u /* DESCRIPTION gives an empty text */
#define KILNUTIL_MATHFN_FLAG_HYPERBOLIC 0x80u     /* category only */

#define KILNUTIL_MATHFN_COUNT 65      /* functions in the catalogue */
#define KILNUTIL_MATHFN_TEXT_SIZE 520 /* chars of a NAME/DESCRIPTION/HELP buffer */

KILNUTIL_API unsigned int KilnMath_function(void* context, unsigned int command, void* arguments, void* result,
                                            unsigned short unit);

KILNUTIL_END_C

#endif /* KILNUTIL_MATH_H */
