// The process-wide math error code: 0 none, 1 a domain error or a failed
// convergence, 2 and 3 the inverse error function asked for +1 and -1.
// Most routines clear it on entry and turn a non-zero code found at their
// end into the missing value; nothing else clears it.
#pragma once

#include <kilnutil/math.h>

namespace kiln::math {

unsigned error_code();
void set_error_code(unsigned code);

// Clears the code: what most routines do on entry.
inline void clear_error_code() { set_error_code(KILNUTIL_MATH_ERR_NONE); }

}  // namespace kiln::math
