// The real-number reader behind the KILNUTIL_cvtstr2real family.
#pragma once

namespace kiln::numeric {

// Flag of convert_real_text: the whole text must be the number.
inline constexpr unsigned kRealStrict = 1;

// KILNUTIL_cvtstr2real_ex: the number in text (flags 1: strict) into *value,
// with its integer part when it has one; a null value makes the call the
// decimal-separator setter.
unsigned convert_real_text(char* text, double* value, unsigned flags, int* integer_part);

}  // namespace kiln::numeric
