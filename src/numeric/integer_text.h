// Decimal integers in text: the whole-text test, its form with trailing
// arguments, and two small digit tests.
#pragma once

namespace kiln::numeric {

// The whole text by the integer rule; *value (may be null) only on success.
bool read_whole_integer(const char* text, unsigned* value);

// The integer before the first `separator` (the whole text without one), both
// sides trimmed in place: the trimmed text behind the separator (the text's
// end without one), or null when the integer does not follow the rule.
char* read_integer_before_arguments(char* text, unsigned* value, char separator);

// Whether the text is one or more ASCII digits and nothing else.
bool is_digits_only(const char* text);

// Whether the text starts with "0" followed by a digit.
bool has_leading_zero(const char* text);

}  // namespace kiln::numeric
