/* kilnutil datetime: date values, date systems, calendar arithmetic, Julian
 * conversions, durations, date increments and tick rounding.
 *
 * A date value is a double: the integer part counts days, the fraction is the
 * time of day (0.5 is 12:00). It is the number of days since 1899-12-30 00:00
 * (proleptic Gregorian) plus the offset of the active date system, 2415018.0
 * by default. Valid day numbers (without offset) run from -657435 to 2958465
 * (9999-12-31). */
#ifndef KILNUTIL_DATETIME_H
#define KILNUTIL_DATETIME_H

#include "kilnutil/export.h"
#include "kilnutil/platform.h"

#ifndef __cplusplus
#  include <stdbool.h>
#endif

/* The broken-down time record: the standard layout with a full year. */
typedef struct KilnTm {
  int tm_sec;
  int tm_min;
  int tm_hour;
  int tm_mday; /* 1..31 */
  int tm_mon;  /* 0..11 */
  int tm_year; /* full year, 0..9999 */
  int tm_wday; /* 0 = Sunday */
  int tm_yday; /* 0..365 */
  int tm_isdst;
} KilnTm;

/* A signed duration split into days and time of day; every field but
 * `negative` holds a magnitude. */
#ifdef __cplusplus
struct KILNUTIL_API stTime {
  int negative; /* 1 when the duration is negative */
  unsigned int days;
  int hours;           /* 0..23 */
  int minutes;         /* 0..59 */
  int seconds;         /* 0..59 */
  double milliseconds; /* 0 <= ms < 1000, may hold a fraction */

  /* Signed whole hours: days x 24 + hours. */
  long long GetHours() const;
  /* GetHours() x 60 + signed minutes. */
  long long GetMinutes() const;
  /* GetMinutes() x 60 + signed seconds. */
  long long GetSeconds() const;
  /* GetSeconds() x 1000 + signed milliseconds. */
  double GetMilliSecs() const;
};
#else
typedef struct stTime {
  int negative;
  unsigned int days;
  int hours;
  int minutes;
  int seconds;
  double milliseconds;
} stTime;
#endif

KILNUTIL_BEGIN_C

/* ---- Date systems. Codes: 0 "Vela-JulianDate" (offset 2415018.0, default),
 * 1 "JulianDate" (2415018.5), 100 "6PM" (today 18:00 local time is 1.0),
 * 101 "1899-12-30" (0.0), 1900..2099 a year (its 1 January 00:00 is 0.0),
 * -1 "Active". */

/* mode 0, code >= 0: the offset of system code. mode 1: makes code the active
 * system and returns its offset. Otherwise, and for unknown codes: the active
 * offset. */
KILNUTIL_API double DateTime_DateSys(int mode, int code);
/* What to add to a value of system from_name to get the same instant in
 * to_name (names ignore case); 0.0 for the same system, the missing value for
 * an unknown name. */
KILNUTIL_API double GetDateOffset(const char* from_name, const char* to_name);

/* ---- Conversions. */
/* SYSTEMTIME to a date value of the active system; milliseconds, when given,
 * replaces the record's milliseconds. 1, or 0 for invalid fields (value then
 * holds 2451323.4653704). */
KILNUTIL_API int SystemTimeToJulianDate(double* value, const SYSTEMTIME* time, const double* milliseconds);
/* Date value of the active system to SYSTEMTIME (day of week 1 = Sunday ..
 * 7); the time is rounded to `decimals` places of the second when
 * milliseconds is given (which receives them with their fraction), else to
 * whole milliseconds. 0 (time untouched) for a value out of range. */
KILNUTIL_API int JulianDateToSystemTime(const double* value, SYSTEMTIME* time, double* milliseconds, int decimals);
/* The local time now as a date value; date_only: midnight of today. */
KILNUTIL_API double get_current_date(bool date_only);
/* Milliseconds since the tick count start (one less when the counter wrapped). */
KILNUTIL_API unsigned int get_time_duration(unsigned int start);
/* 1 when 2415019.0 < v < 2473459.0 (a default-system date value between
 * 1899-12-31 and 2060-01-01), else 0. */
KILNUTIL_API int is_JulianDays(double v);

/* ---- Calendar rules. */
KILNUTIL_API int KILNUTIL_IsLeapYear(unsigned short year);
/* month 0-based; above 11 gives 0. February: year >= 1 by the leap rule,
 * year 0 gives 28, a negative year 29. */
KILNUTIL_API int KILNUTIL_GetNumDaysInMonth(unsigned short month, int year);
/* month <= 0: day; otherwise KILNUTIL_GetNumDaysInMonth(month, year) x month
 * + day (the length of that one month times its index). */
KILNUTIL_API int KILNUTIL_GetDayOfYearFromMonthAndDayOfMonth(int year, int month, int day);
/* 0-based month and day of month of a day of the year (1..366). */
KILNUTIL_API void KILNUTIL_get_month_and_day_from_days_of_year(int year, int day_of_year, int* month, int* day);

/* ---- Differences of two dates (second minus first), snapped to a whole
 * number when within a quarter second of it. */
KILNUTIL_API int KILNUTIL_GetDifferenceInDays(const SYSTEMTIME* first, const SYSTEMTIME* second);
KILNUTIL_API int KILNUTIL_GetDifferenceInHours(const SYSTEMTIME* first, const SYSTEMTIME* second);
KILNUTIL_API int KILNUTIL_GetDifferenceInMinutes(const SYSTEMTIME* first, const SYSTEMTIME* second);
KILNUTIL_API int KILNUTIL_GetDifferenceInSeconds(const SYSTEMTIME* first, const SYSTEMTIME* second);

/* ---- Durations and records. */
/* Splits a signed number of days; decimals >= 0 rounds the milliseconds to
 * that many places of the second (a carry to 24:00:00 starts the next day).
 * Returns 0. */
KILNUTIL_API int extract_time(double value, stTime* out, int decimals);
/* flags bit 0: fill the record with the local time now, return 1. Otherwise
 * replace a bad month (0..11), day (1..31) or year (0..9999) with today's and
 * return 0 when any was bad, else 1. Flag 16 also clears the time of day. */
KILNUTIL_API int DateTime_CheckDate(KilnTm* record, int flags);
/* Zeroes seconds, minutes, hours and tm_isdst. */
KILNUTIL_API void DateTime_ResetTimeOfDay(KilnTm* record);

/* ---- Increments and ticks. Units: 'd' day, 'm' month, 'q' quarter, 'y' year. */
/* Steps *value forward by n units; a month step clamps the day to the new
 * month's length and keeps the time to the second. false for a null value,
 * n < 1, another unit or a result that does not convert. */
KILNUTIL_API bool increment_date_val(double* value, char unit, int n);
/* For a value counted in years: adds (forward) or subtracts n/360 for 'd',
 * n/12 for 'm', n/4 for 'q', n for 'y'. */
KILNUTIL_API bool increment_years_type_date_val(double* value, char unit, int n, bool forward);
/* Rounds *value to the start of the calendar unit that increment_days implies
 * (above 60 days a year, above 31 a quarter, above 7 a month) when it lies
 * within tolerance percent of the increment; reserved must be 0. */
KILNUTIL_API bool calendar_round_to_inc(double* value, double increment_days, int tolerance, int reserved);
/* The tick value is drawn at: the nearest multiple of increment (or the
 * calendar rounding) when within tolerance percent, else value itself. */
KILNUTIL_API double KILNUTIL_chk_round_tick(double value, double increment, int tolerance, bool calendar);
/* Date-editing operations on *value. Unknown operations (8, 12 and above)
 * return 0 and change nothing. */
#define KILNUTIL_DATEINC_ADD 0              /* adds the argument */
#define KILNUTIL_DATEINC_CALENDAR_STEP 1    /* whole calendar units */
#define KILNUTIL_DATEINC_DIVIDE_INCREMENT 2 /* divides an increment */
#define KILNUTIL_DATEINC_FRACTIONAL_STEP 3  /* fractional calendar step */
#define KILNUTIL_DATEINC_SNAP_INCREMENT 4   /* snaps an increment */
#define KILNUTIL_DATEINC_QUERY 5            /* answers a query (below) */
#define KILNUTIL_DATEINC_MOVE_TO_WEEKDAY 6
#define KILNUTIL_DATEINC_SET_FROM_TEXT 7 /* day, weekday or date text */
#define KILNUTIL_DATEINC_MOVE_TO_DAY_ROUNDING_AT_17 9
#define KILNUTIL_DATEINC_MOVE_TO_FIRST_ROUNDING_AT_15 10
#define KILNUTIL_DATEINC_IS_LEAP_DAY 11 /* tests for 29 February */
/* The questions of KILNUTIL_DATEINC_QUERY, in the low 16 bits of *inout. */
#define KILNUTIL_DATEINC_QUERY_DAY_OF_WEEK 16u
#define KILNUTIL_DATEINC_QUERY_DAY_OF_MONTH 32u
KILNUTIL_API int KILNUTIL_dateinc(double* value, double* argument, unsigned short operation, unsigned int* inout);

/* ---- Date text. */
/* "yyyy-mm-dd", optionally followed by " hh:mm", ":ss" and ".fff" (or "T"
 * for the blank), as a date value of the active system; the missing value
 * when the text is not such a date. */
KILNUTIL_API double KILNUTIL_str2date(const char* text);

KILNUTIL_END_C

#endif /* KILNUTIL_DATETIME_H */
