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


/* ---- Elementary function wrappers ---- */


/* ---- Random numbers ---- */


/* ---- Sorting and ordered insertion ---- */


/* ---- Matrix inversion ---- */


/* ---- Smith chart ---- */


/* ---- Script math function catalogue ---- */


KILNUTIL_END_C

#endif /* KILNUTIL_MATH_H */
