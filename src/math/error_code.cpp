// Owner of the math error code (see docs/state.md).
#include "math/error_code.h"

#include <atomic>

namespace kiln::math {

namespace {
std::atomic<unsigned> g_error_code{KILNUTIL_MATH_ERR_NONE};
}  // namespace

unsigned error_code() { return g_error_code.load(std::memory_order_relaxed); }

void set_error_code(unsigned code) { g_error_code.store(code, std::memory_order_relaxed); }

}  // namespace kiln::math
