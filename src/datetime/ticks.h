// Shared pieces of the increment and tick functions: the nearest integer of
// the rounding functions, the tolerance test and the tick-unit classifier.
#pragma once

namespace kiln::datetime {

// Half away from zero, clamped to the 32-bit range (a NaN gives the lowest
// value, as the processor's conversion does).
int nearest_int(double x);

// Whether a lies within `tolerance` percent of increment of b.
bool within_tolerance(double a, double b, double increment, int tolerance);

// The calendar unit of a tick spacing in days: above 60 'y', above 31 'q',
// above 7 'm', above 1 'w', else 'h'. Deliberately coarse.
char tick_unit(double increment_days);

}  // namespace kiln::datetime
