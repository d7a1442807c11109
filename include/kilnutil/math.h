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


/* ---- Elementary function wrappers ---- */


/* ---- Random numbers ---- */


/* ---- Sorting and ordered insertion ---- */


/* ---- Matrix inversion ---- */


/* ---- Smith chart ---- */


/* ---- Script math function catalogue ---- */


KILNUTIL_END_C

#endif /* KILNUTIL_MATH_H */
