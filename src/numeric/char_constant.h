// Quoted character constants ('a', '\n', '\x41') and the special integer
// forms that script code accepts where a number is expected.
#pragma once

namespace kiln::numeric {

// Expands the C escapes of the text where it stands: the number expanded.
int expand_escapes_in_place(char* text);

// A text starting with a quote is a character constant: *value (may be null)
// receives its value, -1 when the closing quote is missing, -2 for more than
// one character. False for any other text.
bool read_character_constant(const char* text, int* value);

// "0x" and hexadecimal digits, or a character constant: *value receives the
// number, and *error -1 for a character outside -128..127 or unterminated.
bool read_special_integer(const char* text, int* value, int* error);

}  // namespace kiln::numeric
