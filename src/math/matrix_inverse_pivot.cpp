// The pivot exponent of the matrix inversion: one process-wide setting.
#include "math/matrix_inverse.h"

#include <atomic>

namespace kiln::math {

namespace {

std::atomic<double> g_pivot_exponent{KILNUTIL_PIVOT_EXPONENT_DEFAULT};

}  // namespace

double pivot_exponent() { return g_pivot_exponent.load(std::memory_order_relaxed); }

void set_pivot_exponent(double exponent) { g_pivot_exponent.store(exponent, std::memory_order_relaxed); }

}  // namespace kiln::math
