// The environment of the process as the system keeps it: read by
// GetEnvironmentVariableW, changed by the runtime's _wputenv_s, which updates
// the runtime's copy (getenv) and the system's (GetTempPathW) together.
#include "support/environment.h"

#include "support/wide_text_win32.h"

#include <windows.h>

#include <cstdlib>

namespace kiln_test {

std::optional<std::string> environment_variable(const char* name) {
  const std::wstring wide_name = wide_from_utf8(name);
  const DWORD size = GetEnvironmentVariableW(wide_name.c_str(), nullptr, 0);
  if (size == 0) return std::nullopt;
  std::wstring value(size, L'\0');
  value.resize(GetEnvironmentVariableW(wide_name.c_str(), value.data(), size));
  return utf8_from_wide(value);
}

void set_environment_variable(const char* name, const std::string& value) {
  _wputenv_s(wide_from_utf8(name).c_str(), wide_from_utf8(value).c_str());
}

void unset_environment_variable(const char* name) { _wputenv_s(wide_from_utf8(name).c_str(), L""); }

const char* temporary_folder_variable() { return "TMP"; }

}  // namespace kiln_test
