#include "platform/cpu_features.h"

namespace kiln::platform {

bool cpu_has_ssse3() {
#ifdef KILN_HAVE_X86_SIMD
  static const bool has_ssse3 = __builtin_cpu_supports("ssse3");
  return has_ssse3;
#else
  return false;
#endif
}

}  // namespace kiln::platform
