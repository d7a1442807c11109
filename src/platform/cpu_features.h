// What the processor offers beyond the compiler's baseline, and how a function
// asks the compiler for those instructions. KILN_HAVE_X86_SIMD is defined
// where the SSE intrinsics and KILN_TARGET_SSSE3 are available.
#pragma once

#if defined(__x86_64__) && (defined(__GNUC__) || defined(__clang__))
#  define KILN_HAVE_X86_SIMD 1
#  define KILN_TARGET_SSSE3 __attribute__((target("ssse3")))
#endif

namespace kiln::platform {

// Whether SSSE3 instructions may run here (decided once per process).
bool cpu_has_ssse3();

}  // namespace kiln::platform
