#include "math/block_args.h"

#include <cmath>
#include <limits>

namespace kiln::math {

unsigned block_degrees_of_freedom(double value) {
  constexpr double kAboveLargest = 4294967296.0;
  if (!(value > -1)) return 0;
  if (value >= kAboveLargest) return std::numeric_limits<unsigned>::max();
  return static_cast<unsigned>(value);
}

}  // namespace kiln::math
