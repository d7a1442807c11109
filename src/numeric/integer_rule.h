// The library's rule for a decimal integer in text, and the trimmed short-text
// form that the integer, exponent and digit-run conversions share.
#pragma once

#include "numeric/text_scan.h"

#include <cstdint>

namespace kiln::numeric {

// One leading "+" may be skipped; nothing or all zeros after it is 0;
// otherwise digits, optionally after one "-", read by the runtime's 32-bit
// strtoul, and a value of 0 there fails. So "+", "0" and "+0" are 0 while
// "-0" is refused: callers rely on that asymmetry.
bool follows_integer_rule(const char* text, std::uint32_t* value);

// Longest text the trimmed-integer conversion takes (bytes, without the NUL).
inline constexpr std::size_t kShortIntegerLimit = 39;

// The range (at most kShortIntegerLimit bytes) copied, trimmed and, when
// cut_at_blank, cut at its first blank, must be empty (value 0, *digits 0)
// or follow the integer rule. *digits receives the length after trimming.
bool convert_trimmed_integer(TextRange range, bool cut_at_blank, std::uint32_t* value, std::size_t* digits = nullptr);

// KILNUTIL_cvtstr2int: a text of at most kShortIntegerLimit bytes, trimmed,
// by the integer rule; *value (may be null) only on success.
bool convert_integer_text(const char* text, int* value);

}  // namespace kiln::numeric
