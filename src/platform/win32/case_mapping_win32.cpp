// UTF-16 case mapping and the case-insensitive comparison by the system.
#include "platform/case_mapping.h"

#include <windows.h>

namespace kiln::platform {

unsigned upper_case_units(KILN_WCHAR* text, unsigned count) {
  return count == 0 ? 0 : static_cast<unsigned>(CharUpperBuffW(text, count));
}

unsigned lower_case_units(KILN_WCHAR* text, unsigned count) {
  return count == 0 ? 0 : static_cast<unsigned>(CharLowerBuffW(text, count));
}

int compare_ignoring_case(const KILN_WCHAR* a, const KILN_WCHAR* b) {
  const int order = lstrcmpiW(a, b);
  return order < 0 ? -1 : order > 0 ? 1 : 0;
}

}  // namespace kiln::platform
