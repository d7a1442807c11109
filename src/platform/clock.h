// Local time and the tick count (GetLocalTime, GetTickCount).
#pragma once

#include <kilnutil/platform.h>

#include <cstdint>

namespace kiln::platform {

// The local date and time with milliseconds, in the SYSTEMTIME layout.
SYSTEMTIME local_time();

// Milliseconds from a monotonic clock, cut to 32 bits (wraps after ~49.7 days).
std::uint32_t tick_count();

}  // namespace kiln::platform
