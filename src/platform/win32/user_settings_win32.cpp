// The registry key of the application below HKEY_CURRENT_USER\Software, and
// the thread's user-interface language.
#include "platform/user_settings.h"
#include "platform/win32/wide_text.h"

#include <windows.h>

#include <vector>

namespace kiln::platform {
namespace {

constexpr wchar_t kApplicationKey[] = L"Software\\kilnutil";

}  // namespace

bool has_settings_store() { return true; }

bool read_setting(const char* name, std::string& value) {
  HKEY key = nullptr;
  if (RegOpenKeyExW(HKEY_CURRENT_USER, kApplicationKey, 0, KEY_QUERY_VALUE, &key) != ERROR_SUCCESS) return false;
  const std::wstring wide_name = win32::wide_from_utf8(name);
  DWORD type = 0;
  DWORD bytes = 0;
  bool found = RegQueryValueExW(key, wide_name.c_str(), nullptr, &type, nullptr, &bytes) == ERROR_SUCCESS &&
               type == REG_SZ;
  if (found) {
    std::vector<wchar_t> text(bytes / sizeof(wchar_t) + 1, L'\0');
    found = RegQueryValueExW(key, wide_name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(text.data()), &bytes) ==
            ERROR_SUCCESS;
    if (found) value = win32::utf8_from_wide(text.data());
  }
  RegCloseKey(key);
  return found;
}

bool write_setting(const char* name, const std::string& value) {
  HKEY key = nullptr;
  if (RegCreateKeyExW(HKEY_CURRENT_USER, kApplicationKey, 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_SET_VALUE, nullptr,
                      &key, nullptr) != ERROR_SUCCESS) {
    return false;
  }
  const std::wstring text = win32::wide_from_utf8(value.c_str());
  const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
  const bool written = RegSetValueExW(key, win32::wide_from_utf8(name).c_str(), 0, REG_SZ,
                                      reinterpret_cast<const BYTE*>(text.c_str()), bytes) == ERROR_SUCCESS;
  RegCloseKey(key);
  return written;
}

unsigned short user_ui_language() { return GetUserDefaultUILanguage(); }

unsigned short thread_ui_language() { return GetThreadUILanguage(); }

unsigned short set_thread_ui_language(unsigned short language) { return SetThreadUILanguage(language); }

}  // namespace kiln::platform
