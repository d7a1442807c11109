// The missing value inside the library: the one double that stands for
// "no value" as an argument and as a result.
#pragma once

#include <kilnutil/frame.h>

namespace kiln::frame {

inline constexpr double kMissingValue = KILNUTIL_NANUM;

// Exact comparison, no tolerance: only the missing value itself is missing.
constexpr bool is_missing(double v) { return v == kMissingValue; }

}  // namespace kiln::frame
