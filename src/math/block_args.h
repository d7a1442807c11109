// Reading the argument blocks of the script-language entry points: arrays of
// doubles whose degrees of freedom become unsigned integers.
#pragma once

namespace kiln::math {

// Truncation toward zero to an unsigned 32-bit value. Values the truncation
// cannot represent saturate: NaN and everything at or below -1 give 0,
// everything at or above 2^32 gives 4294967295.
unsigned block_degrees_of_freedom(double value);

// What every `_ptr` entry point does with its result: writes it through a
// non-null pointer and returns 0 whatever happened.
inline int write_through(double* out, double value) {
  if (out != nullptr) *out = value;
  return 0;
}

}  // namespace kiln::math
