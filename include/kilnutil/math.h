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
#define KILNUTIL_INVERSE_NO_ROOM 1   /* order above 128, or no memory for the copy */
#define KILNUTIL_INVERSE_SINGULAR 3  /* a pivot below 10^-exponent */
#define KILNUTIL_PIVOT_EXPONENT_GET 0
#define KILNUTIL_PIVOT_EXPONENT_SET 1
#define KILNUTIL_PIVOT_EXPONENT_DEFAULT 35.0

/* Inverts the n x n matrix a in place (row- or column-major alike). */
KILNUTIL_API int KilnMath_Inverse(unsigned short n, double* a, unsigned short mode);
/* set non-zero: the pivot exponent becomes *value; zero: *value receives it.
 * Always 0. */
KILNUTIL_API int gaussjordan_pivotmin_export_ptr(double* value, int set);

/* ---- Smith chart ---- */


/* ---- Script math function catalogue ---- */


KILNUTIL_END_C

#endif /* KILNUTIL_MATH_H */
