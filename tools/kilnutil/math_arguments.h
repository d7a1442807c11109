// Number arguments of the math commands (fn, random, smith).
#pragma once

#include <optional>

namespace kilnutil_cli {

// The whole argument read as a number by the library's strict parser.
std::optional<double> parse_real(const char* argument);

// The whole argument as a decimal integer in the 32-bit range.
std::optional<int> parse_int32(const char* argument);

// A double with 17 significant digits, or the missing-value text.
void print_value(double value);

}  // namespace kilnutil_cli
