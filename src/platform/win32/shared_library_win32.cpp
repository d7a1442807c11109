// Dynamic loading by the Windows loader; the path is UTF-8.
#include "platform/shared_library.h"
#include "platform/win32/wide_text.h"

#include <windows.h>

namespace kiln::platform {

void* load_shared_library(const char* path) {
  const std::wstring wide_path = win32::wide_from_utf8(path);
  return wide_path.empty() ? nullptr : LoadLibraryW(wide_path.c_str());
}

void* find_exported_symbol(void* library, const char* name) {
  return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(library), name));
}

void unload_shared_library(void* library) { FreeLibrary(static_cast<HMODULE>(library)); }

}  // namespace kiln::platform
