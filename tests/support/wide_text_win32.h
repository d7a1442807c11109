// UTF-8 and the system's UTF-16 strings, for the Windows support files.
#pragma once

#include <windows.h>

#include <string>

namespace kiln_test {

inline std::wstring wide_from_utf8(const std::string& utf8) {
  const int units = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()), nullptr, 0);
  std::wstring text(static_cast<size_t>(units), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()), text.data(), units);
  return text;
}

inline std::string utf8_from_wide(const std::wstring& text) {
  const int bytes =
      WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), nullptr, 0, nullptr, nullptr);
  std::string result(static_cast<size_t>(bytes), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), result.data(), bytes, nullptr, nullptr);
  return result;
}

}  // namespace kiln_test
