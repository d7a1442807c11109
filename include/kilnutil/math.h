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


/* ---- Matrix inversion ---- */


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
#define KILNUTIL_MATHFN_COMMAND(operation, index) \
  ((operation) | ((index) * 0x10000u))

#define KILNUTIL_MATHFN_FIND 0u         /* name -> index; returns the argument count or 0 */
#define KILNUTIL_MATHFN_EVALUATE 1u     /* returns the math error code */
#define KILNUTIL_MATHFN_ARG_COUNT 2u    /* returns the argument count of the entry */
#define KILNUTIL_MATHFN_SEED 3u         /* non-zero: seed from the tick count, else 1 */
#define KILNUTIL_MATHFN_IS_SEEDED 4u    /* returns 1 when the dispatcher's seed is not 1 */
#define KILNUTIL_MATHFN_RND 10u         /* *arguments = rnd(trunc(*arguments)); normal reset */
#define KILNUTIL_MATHFN_UNIFORM 11u     /* uniform deviate with the dispatcher's seed */
#define KILNUTIL_MATHFN_NORMAL 12u      /* normal deviate with the dispatcher's seed */
#define KILNUTIL_MATHFN_POISSON 15u     /* Poisson deviate with mean *arguments */
#define KILNUTIL_MATHFN_PROB 20u        /* erf(x/sqrt 2); returns the math error code */
#define KILNUTIL_MATHFN_QUANTILE 21u    /* normal quantile of p; returns the math error code */
#define KILNUTIL_MATHFN_SIZE 25u        /* catalogue size with its end entry, as a double */
#define KILNUTIL_MATHFN_NAME 26u        /* name of the entry */
#define KILNUTIL_MATHFN_DESCRIPTION 27u /* one-line description of the entry */
#define KILNUTIL_MATHFN_HELP 28u        /* help text of the entry */
#define KILNUTIL_MATHFN_PREC 100u       /* prec(arguments[0], arguments[1]); returns the error code */
#define KILNUTIL_MATHFN_UNKNOWN 0xFFFFFFFFu /* result of an unknown command */

#define KILNUTIL_MATHFN_UNIT_RADIANS 0u
#define KILNUTIL_MATHFN_UNIT_DEGREES 1u
#define KILNUTIL_MATHFN_UNIT_GRADIANS 2u

#define KILNUTIL_MATHFN_FLAG_ANGLE_ARG 0x01u    /* the argument is an angle in the caller's unit */
#define KILNUTIL_MATHFN_FLAG_ANGLE_RESULT 0x02u /* the result is an angle in the caller's unit */
#define KILNUTIL_MATHFN_FLAG_NON_NEGATIVE 0x04u /* the argument must not be negative */
#define KILNUTIL_MATHFN_FLAG_GENERAL 0x08u      /* category only */
#define KILNUTIL_MATHFN_FLAG_POSITIVE 0x10u     /* the argument must be positive */
#define KILNUTIL_MATHFN_FLAG_UNIT_RANGE 0x20u   /* the argument must lie in [-1, 1] */
#define KILNUTIL_MATHFN_FLAG_NO_DESCRIPTION 0x40u /* DESCRIPTION gives an empty text */
#define KILNUTIL_MATHFN_FLAG_HYPERBOLIC 0x80u   /* category only */

#define KILNUTIL_MATHFN_COUNT 65         /* functions in the catalogue */
#define KILNUTIL_MATHFN_TEXT_SIZE 520    /* chars of a NAME/DESCRIPTION/HELP buffer */

KILNUTIL_API unsigned int KilnMath_function(void* context, unsigned int command, void* arguments, void* result,
                                            unsigned short unit);


KILNUTIL_END_C

#endif /* KILNUTIL_MATH_H */
