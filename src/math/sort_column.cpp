// KilnMath_Sort's algorithm for doubles, one instantiation per direction.
#include "math/sort_column.h"

namespace kiln::math {

int sort_column(int n, std::uint32_t* index, double* keys, bool descending) {
  using sort_column_detail::quicksort_column;
  if (descending) return quicksort_column(n, index, keys, [](double x, double y) { return x > y; });
  return quicksort_column(n, index, keys, [](double x, double y) { return x < y; });
}

}  // namespace kiln::math
