// The DLL's entry point: the library's process-attach work and the window
// class of the script window, at process attach only (nothing at detach).
#include "platform/library_load.h"

#include <windows.h>

namespace kiln::platform {
namespace {

constexpr wchar_t kScriptWindowClass[] = L"KilnText";

HMODULE this_module() {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<LPCWSTR>(&this_module), &module);
  return module;
}

// The script window's class; its window procedure is the system's default
// until the host subclasses the window.
bool register_script_window_class(HINSTANCE instance) {
  WNDCLASSW window_class{};
  window_class.style = CS_DBLCLKS;
  window_class.lpfnWndProc = DefWindowProcW;
  window_class.hInstance = instance;
  window_class.hIcon = LoadIconW(nullptr, MAKEINTRESOURCEW(32512));  // IDI_APPLICATION
  window_class.hCursor = LoadCursorW(nullptr, MAKEINTRESOURCEW(32513));  // IDC_IBEAM
  window_class.lpszClassName = kScriptWindowClass;
  return RegisterClassW(&window_class) != 0 || GetLastError() == ERROR_CLASS_ALREADY_EXISTS;
}

}  // namespace

void* library_base_address() { return this_module(); }

bool load_hook_runs_when_linked_statically() { return false; }

}  // namespace kiln::platform

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID reserved);

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID /*reserved*/) {
  if (reason != DLL_PROCESS_ATTACH) return TRUE;
  kiln::platform::register_script_window_class(instance);
  return kiln::platform::on_process_attach() ? TRUE : FALSE;
}
