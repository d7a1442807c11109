#include "platform/win32/wide_text.h"

#include <windows.h>

namespace kiln::platform::win32 {

std::wstring wide_from_utf8(const char* text) {
  if (text == nullptr) return {};
  const int units = MultiByteToWideChar(CP_UTF8, 0, text, -1, nullptr, 0);
  if (units <= 0) return {};
  std::wstring wide(static_cast<size_t>(units), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text, -1, wide.data(), units);
  wide.resize(static_cast<size_t>(units - 1));
  return wide;
}

std::string utf8_from_wide(const wchar_t* text) {
  if (text == nullptr) return {};
  const int bytes = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
  if (bytes <= 0) return {};
  std::string narrow(static_cast<size_t>(bytes), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text, -1, narrow.data(), bytes, nullptr, nullptr);
  narrow.resize(static_cast<size_t>(bytes - 1));
  return narrow;
}

}  // namespace kiln::platform::win32
