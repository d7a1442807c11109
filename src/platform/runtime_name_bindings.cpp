// Inside the shared library, the linker sends every reference to a C runtime
// name that the library also exports (sqrt, pow, ...) to the forwarder
// __wrap_<name> below (see cmake/KilnutilRuntimeNames.cmake). Each forwarder
// calls the C math library's own definition through a version-tagged
// reference, so the library's use of the runtime never reaches its exports.
#include "platform/runtime_name_versions.h"

#define KILNUTIL_RUNTIME_STRINGIFY(x) #x
#define KILNUTIL_RUNTIME_SYMVER(name) \
  __asm__(".symver kilnutil_runtime_" #name ", " KILNUTIL_RUNTIME_STRINGIFY(name) "@" KILNUTIL_RUNTIME_VERSION_##name)

#define KILNUTIL_BIND_UNARY(name)                                     \
  double kilnutil_runtime_##name(double);                             \
  __attribute__((visibility("hidden"))) double __wrap_##name(double); \
  KILNUTIL_RUNTIME_SYMVER(name);                                      \
  double __wrap_##name(double x) { return kilnutil_runtime_##name(x); }

#define KILNUTIL_BIND_BINARY(name)                                            \
  double kilnutil_runtime_##name(double, double);                             \
  __attribute__((visibility("hidden"))) double __wrap_##name(double, double); \
  KILNUTIL_RUNTIME_SYMVER(name);                                              \
  double __wrap_##name(double x, double y) { return kilnutil_runtime_##name(x, y); }

extern "C" {

KILNUTIL_BIND_UNARY(acos)
KILNUTIL_BIND_UNARY(acosh)
KILNUTIL_BIND_UNARY(asin)
KILNUTIL_BIND_UNARY(asinh)
KILNUTIL_BIND_UNARY(atanh)
KILNUTIL_BIND_UNARY(ceil)
KILNUTIL_BIND_UNARY(cosh)
KILNUTIL_BIND_UNARY(expm1)
KILNUTIL_BIND_UNARY(floor)
KILNUTIL_BIND_BINARY(hypot)
KILNUTIL_BIND_UNARY(log10)
KILNUTIL_BIND_UNARY(log1p)
KILNUTIL_BIND_BINARY(pow)
KILNUTIL_BIND_UNARY(round)
KILNUTIL_BIND_UNARY(sinh)
KILNUTIL_BIND_UNARY(sqrt)
KILNUTIL_BIND_UNARY(tan)

}  // extern "C"
