/* kilnutil unicode: UTF-8 and UTF-16 primitives.
 *
 * Narrow text is a NUL-terminated UTF-8 byte string, wide text a
 * zero-terminated string of UTF-16 units. The stepping functions never reject
 * malformed input: they walk it by one fixed, lenient rule (a lead byte's bits
 * 0x20 and 0x10 decide the length, a NUL always ends the character), so no walk
 * can pass the terminating NUL whatever the bytes are. */
#ifndef KILNUTIL_UNICODE_H
#define KILNUTIL_UNICODE_H

#include "kilnutil/export.h"

KILNUTIL_BEGIN_C

/* ---- UTF-8 primitives. */
/* Position of the next character. */
KILNUTIL_API char* KILNUTIL_UNICODE_UTF8_adv_str(const char* s);
/* Given the position just past a character, the position of its first byte.
 * Never call it at the start of a string: there is no lower bound check. */
KILNUTIL_API char* KILNUTIL_UNICODE_UTF8_go_back_in_str(const char* p);
/* Code point of the character at s (no check for overlong or surrogate forms). */
KILNUTIL_API unsigned int KILNUTIL_UNICODE_UTF8_get_char(const char* s);
/* Code point at *ps; *ps moves past the character (onto a NUL that cuts it short). */
KILNUTIL_API unsigned int KILNUTIL_UNICODE_UTF8_get_char_adv_str(const char** ps);
/* Writes the UTF-8 form of cp (no NUL) and returns the position behind it;
 * cp >= 0x110000 writes nothing. */
KILNUTIL_API char* KILNUTIL_UNICODE_UTF8_setc(char* out, unsigned int cp);
/* Bytes in cp's UTF-8 form (0 for cp >= 0x110000), written into buf when given. */
KILNUTIL_API int KILNUTIL_UNICODE_UTF8_get_char_length(unsigned int cp, char* buf);
/* Number of characters; 0 for null. */
KILNUTIL_API int KILNUTIL_UNICODE_UTF8_StrLength(const char* s);
/* Byte offset of character number n (number first, string second). */
KILNUTIL_API int KILNUTIL_UNICODE_UTF8_StrCharToIndex(int n, const char* s);
/* Index of the character at or after byte offset b (offset first, string second). */
KILNUTIL_API int KILNUTIL_UNICODE_UTF8_StrIndexToChar(int b, const char* s);
/* Copies whole characters of src into dst within `budget` bytes, then a NUL
 * (dst holds budget + 1 bytes); returns the number of characters copied. */
KILNUTIL_API int KILNUTIL_UNICODE_UTF8_copy_n_bytes(char* dst, int budget, const char* src);
/* Walks the whole string; returns the position of its terminating NUL. */
KILNUTIL_API char* KILNUTIL_UNICODE_UTF8_ASSERT_VALID(const char* s);
/* -1, 0 or 1, ordered by UTF-16 code units. */
KILNUTIL_API int KILNUTIL_UNICODE_UTF8_Compare(const char* a, const char* b);
/* Negative, 0 or positive, ignoring case by the user's locale rules. */
KILNUTIL_API int KILNUTIL_UNICODE_UTF8_CompareI(const char* a, const char* b);
/* In-place case change of a UTF-8 string (at most len bytes when
 * 1 <= len < its length), never growing it; with is_char non-zero and p below
 * 0x10000, p is one UTF-16 character and the converted character is returned. */
KILNUTIL_API char* KILNUTIL_UNICODE_UTF8_to_upper_or_to_lower(char* p, int to_lower, int is_char, int len);
/* Position of the last character (its code point into *pch when given); null
 * and *pch = 0 for an empty string. */
KILNUTIL_API char* KILNUTIL_UTF8_get_ptr_to_last_char(const char* s, unsigned int* pch);
/* Code point of the last character, 0 for an empty string. */
KILNUTIL_API unsigned int KILNUTIL_UTF8_get_last_char(const char* s);

/* ---- UTF-16 companions. */
/* Position of the next character, its code point into *pch when given. An
 * unpaired surrogate steps back one unit (the result is s - 1): test for it. */
KILNUTIL_API KILN_WCHAR* KILNUTIL_UNICODE_UTF16_adv_str(const KILN_WCHAR* s, unsigned int* pch);
/* Units in cp's UTF-16 form (1, 2, or -1 from 0x110000 up), written into buf
 * (or a scratch buffer) followed by a zero unit at index = the result; for -1
 * that zeroes the unit before buf. */
KILNUTIL_API int KILNUTIL_UNICODE_UTF16_get_char_length(unsigned int cp, KILN_WCHAR* buf);

KILNUTIL_END_C

#endif /* KILNUTIL_UNICODE_H */
