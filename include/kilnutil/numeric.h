/* kilnutil numeric: numbers read from text (decimal reals with a settable
 * decimal separator, decimal, hexadecimal and binary integers, quoted
 * character constants, trailing numbers of names) and the missing-value text.
 *
 * Every parser is a pure function of its text and of three process-wide
 * settings: the decimal separator, the fraction switch
 * (KILNUTIL_str2real_use_atof, kilnutil/frame.h) and the missing-value text.
 * None allocates memory. */
#ifndef KILNUTIL_NUMERIC_H
#define KILNUTIL_NUMERIC_H

#include "kilnutil/export.h"

#ifndef __cplusplus
#  include <stdbool.h>
#endif

KILNUTIL_BEGIN_C

/* ---- Reals. Result codes: 0 not a number, 1 an integer, 2 a number with a
 * decimal separator and no exponent, 4 a number with an exponent. */

/* Parses text (writable: separators are cut temporarily and put back; a text
 * the fraction conversion rejects is left with "." for the separator and a NUL
 * after the fraction digits). flags bit 0: strict, only white space may follow
 * the number. integer_part, when given, receives the signed integer part.
 * With value null the call sets the decimal separator to the first non-blank
 * character of text and returns the previous one (0 and no change for a blank
 * text). */
KILNUTIL_API unsigned int KILNUTIL_cvtstr2real_ex(char* text, double* value, unsigned int flags, int* integer_part);
/* Strict parse: KILNUTIL_cvtstr2real_ex(text, value, 1, null). */
KILNUTIL_API unsigned int KILNUTIL_cvtstr2real(char* text, double* value);
/* The number, or the missing value when text is not one. */
KILNUTIL_API double KILNUTIL_str2real(char* text);
/* The number, or 0.0 when text is not one. */
KILNUTIL_API double KILNUTIL_dbStr2Real(char* text);

/* ---- Decimal integers. The integer rule: one leading "+" may be skipped; all
 * zeros (or nothing after the "+") is 0; otherwise decimal digits, optionally
 * after one "-", whose 32-bit value is not 0 (so "-0" is refused). */

/* Text shorter than 40 bytes, trimmed; blank gives 0. 1 and *value, or 0. */
KILNUTIL_API int KILNUTIL_cvtstr2int(const char* text, int* value);
/* The value, or 0 when text is not an integer. */
KILNUTIL_API int KILNUTIL_str2int(const char* text);
/* 1 and *value when the whole untrimmed text follows the integer rule, else 0. */
KILNUTIL_API int is_str_numeric_integer(const char* text, unsigned int* value);
/* With separator in text: cuts text there, the trimmed part before it must be
 * an integer, and the trimmed text after it (the arguments) is returned.
 * Without it: the whole text must be an integer and its terminating NUL is
 * returned. Null when the integer part fails. */
KILNUTIL_API char* is_str_numeric_integer_with_args(char* text, unsigned int* value, char separator);
/* True for a non-empty text of the digits 0-9 only. */
KILNUTIL_API bool is_str_digits_only(const char* text);
/* 1 when text begins with "0" followed by a digit ("007"), else 0. */
KILNUTIL_API int KILNUTIL_is_str_lead_zero_numbers(const char* text);

/* ---- Hexadecimal and binary. The 32-bit runtime conversion: leading white
 * space, a sign and (base 16) "0x" allowed, stops at the first other
 * character; overflow gives 4294967295, "-" negates in 32 bits. */
KILNUTIL_API unsigned int KILNUTIL_hexstr2int(const char* text);
KILNUTIL_API unsigned int Hex2Dec(const char* text);
KILNUTIL_API unsigned int KILNUTIL_binstr2int(const char* text);
/* 0 and *value when the whole text converts in base 16 (64-bit); -1 when
 * value is null or characters are left over. */
KILNUTIL_API int KILNUTIL_hexstr2int64(const char* text, unsigned long long* value);
/* 1 when every character is a hexadecimal digit (an empty text too), else 0. */
KILNUTIL_API int is_hex_string(const char* text);
/* width < 0: hex to *number (16 digits led by "F", or "0x" and 16 digits led
 * by "F", read as signed 64-bit; the missing value when hex does not convert);
 * returns 0. width >= 0: *number to upper-case hex, padded on the left to
 * width (1..64) with "F" for a negative number and "0" otherwise; returns 2
 * when the text is longer than width, 1 (empty hex) for the missing value,
 * else 0. hex holds 65 bytes. -1 for a null pointer. */
KILNUTIL_API int hex_dec_convert(double* number, char* hex, int width);

/* ---- Character constants. */
/* Expands backslash escapes in place: \n \t \r \a \b \f \v \\ \' \" \?, octal
 * \ooo (one to three digits) and hexadecimal \xhh (one or two digits).
 * Escapes that name the NUL character and unknown escapes are left as they
 * stand. Returns the number of escapes expanded (0 for null). */
KILNUTIL_API int KILNUTIL_expand_C_escape_codes(char* text);
/* 0 when text does not begin with "'". Otherwise 1 with *value: the
 * character between the quotes (escapes expanded), 0 for "\0", -2 for more
 * than one character, -1 for an unterminated or too short text. */
KILNUTIL_API int KILNUTIL_is_str_ascii_char(const char* text, int* value);
/* "0x" and hexadecimal digits: their value, returns 1. Otherwise as
 * KILNUTIL_is_str_ascii_char; *error = -1 for a value outside -128..127 or an
 * unterminated quote. */
KILNUTIL_API int KILNUTIL_cvt_special_str_to_int(const char* text, int* value, int* error);

/* ---- Exponents and trailing numbers. */
/* 1 when the first "E", "e" or "D" is followed by a sign and a digit or ".". */
KILNUTIL_API int KILNUTIL_is_str_has_exponent(const char* text);
/* The value of the digits that end text; the text before them goes to prefix
 * (when given) and *number_start points at them (when given). mode -2: any
 * number of digits; otherwise at most 8; mode -1 also moves leading zeros of
 * the run into the prefix (keeping one digit); mode n >= 1: prefix holds n
 * bytes. Without trailing digits: 0, the whole text as prefix. */
#define KILNUTIL_END_NUMBER_ANY_LENGTH (-2)
#define KILNUTIL_END_NUMBER_ZEROS_TO_PREFIX (-1)
KILNUTIL_API int KILNUTIL_End_Number_ex(char* prefix, char* text, char** number_start, int mode);
/* KILNUTIL_End_Number_ex(prefix, text, null, skip_zeros ? -1 : 0). */
KILNUTIL_API int string_to_prefix_end_number(char* prefix, char* text, bool skip_zeros);

/* ---- Missing-value text and separator styles. */
/* Null: the current missing-value text; otherwise sets it (at most 24 bytes
 * of text kept) and returns it. Default "--". */
KILNUTIL_API char* KILNUTIL_get_missing_as_text(const char* text);
/* Selector: mode when mode >= 0, else bit value 2 of the real-to-text
 * options. 0: out (25 bytes) receives the missing-value text, returns 0;
 * otherwise out becomes empty and the result is 1. */
KILNUTIL_API int KILNUTIL_get_missing_as_str(char* out, int mode);
/* Decimal and grouping characters of a style: 1 "." ",", 2 "," ".",
 * 3 "," " ", 4 "." "'", 5 "." " ". 1 for those, 0 (outputs untouched) for
 * any other style or a null output. */
KILNUTIL_API int get_numeric_separators(int style, char* decimal, char* grouping);

KILNUTIL_END_C

#endif /* KILNUTIL_NUMERIC_H */
