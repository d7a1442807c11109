// Hexadecimal and binary integers, and the conversion between a number and
// its 64-bit hexadecimal text.
#pragma once

namespace kiln::numeric {

// The runtime's 32-bit strtoul of the text in base 16 or 2 (0 for null).
unsigned hex_text_value(const char* text);
unsigned binary_text_value(const char* text);

// The whole text as a 64-bit hexadecimal number; false (value untouched) for
// null arguments or anything left over behind the digits.
bool hex_text_to_bits(const char* text, unsigned long long* value);

// Whether every byte is a hexadecimal digit (an empty text is; null is not).
bool is_hex_text(const char* text);

// Width below 0: the number of `hex` (sixteen digits led by "F" are negative;
// unreadable text is the missing value), 0 back. Otherwise the number's
// 64-bit hex text, padded with "0" (or "F" when negative) to a width of 1..64:
// 0, 1 for the missing value (empty text), 2 when the digits exceed the width.
// -1 for a null argument.
int convert_hex_and_number(double* number, char* hex, int width);

}  // namespace kiln::numeric
