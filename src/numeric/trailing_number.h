// The exponent test and the number that ends a name ("Book12" is "Book" and
// 12), as the host numbers books, sheets and columns.
#pragma once

#include <kilnutil/numeric.h>

namespace kiln::numeric {

// Mode of split_trailing_number: the leading zeros of the number are skipped.
inline constexpr int kTrailingNumberSkipZeros = KILNUTIL_END_NUMBER_ZEROS_TO_PREFIX;

// Whether the first "E", "e" or "D" is followed by a sign and a digit.
bool has_signed_exponent(const char* text);

// The value of the digits that end the text (at most eight of them unless
// mode is -2; leading zeros skipped for mode -1), saturating at INT_MAX.
// prefix (may be null) receives the text before them, bounded to mode - 1
// bytes for a mode of 1 or more; *number_start (may be null) their start.
int split_trailing_number(char* prefix, char* text, char** number_start, int mode);

}  // namespace kiln::numeric
