// The guarded power and its zero-to-the-power-zero switch.
#pragma once

namespace kiln::math {

// base^exponent, or false for a domain error (0 to a negative power, 0^0
// with the switch off, a negative base with a fractional exponent) and for
// overflow. For base > 5 an exponent past +-307/log10(base) is decided
// without the runtime: overflow fails, underflow gives 0. Otherwise the
// runtime's pow is called and its result is written even when errno then
// reports a domain or range error (the call fails); the other failures leave
// *result unwritten.
bool power_checked(double base, double exponent, double* result);

// base^exponent, or the missing value when either argument is the missing
// value or power_checked fails.
double power_or_missing(double base, double exponent);

// The zero-to-the-power-zero switch (default off): whether 0^0 is 1.
bool zero_power_zero_allowed();
void set_zero_power_zero_allowed(bool allowed);

}  // namespace kiln::math
