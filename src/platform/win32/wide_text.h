// UTF-8 text (the library's paths and names) as the UTF-16 the wide Win32
// calls take, and back.
#pragma once

#include <string>

namespace kiln::platform::win32 {

// The UTF-8 text as UTF-16; empty for null or text that does not convert.
std::wstring wide_from_utf8(const char* text);

// The zero-terminated UTF-16 text as UTF-8.
std::string utf8_from_wide(const wchar_t* text);

}  // namespace kiln::platform::win32
