// Wine's ntdll exports wine_get_version; Windows' does not.
#include "platform/host_system.h"

#include <windows.h>

namespace kiln::platform {

bool runs_under_wine() {
  const HMODULE ntdll = GetModuleHandleW(L"ntdll.dll");
  return ntdll != nullptr && GetProcAddress(ntdll, "wine_get_version") != nullptr;
}

}  // namespace kiln::platform
