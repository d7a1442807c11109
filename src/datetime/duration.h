// The split of a day count into days and time of day, and the switch that
// decides whether a time rounded up to 24:00:00 stays on its day.
#pragma once

#include <kilnutil/datetime.h>

namespace kiln::datetime {

// false (the default): 24:00:00 becomes 00:00:00 of the next day.
bool keep_rounded_midnight_as_2400();
void set_keep_rounded_midnight_as_2400(bool keep);

// A day count split into whole days (32 bits), hours, minutes, seconds and
// milliseconds, the sign apart; decimals >= 0 rounds the milliseconds to that
// many places of the second (not a number or infinite: all zero).
void split_duration(double value, stTime* out, int decimals);

}  // namespace kiln::datetime
