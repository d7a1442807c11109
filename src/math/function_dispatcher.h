// The script interpreter's one entry into the math function catalogue: the
// numbered commands of KilnMath_function (look-up, evaluation, catalogue
// queries, the dispatcher's random draws, normal probability and quantile).
#pragma once

#include <cstdint>

namespace kiln::math {

// Runs `command` (low 16 bits: KILNUTIL_MATHFN_*; high 16 bits: the catalogue
// index of the per-entry commands). What `arguments` and `result` point to
// depends on the command (see kilnutil/math.h); null pointers are never
// dereferenced. Unknown commands return KILNUTIL_MATHFN_UNKNOWN.
std::uint32_t run_math_function(std::uint32_t command, void* arguments, void* result, unsigned unit);

// The dispatcher's own seed, 1 at load (commands 3, 4, 11, 12 and 15).
std::int32_t dispatcher_seed();

}  // namespace kiln::math
