// Code pages through the system's national-language services. The Windows
// converters already map ASCII bytes to themselves in every code page and
// replace invalid input with flags 0, which is the behaviour the library
// promises on every platform.
#include "platform/codepage.h"

#include <windows.h>

namespace kiln::platform {

unsigned ansi_code_page() { return GetACP(); }

bool ansi_code_page_follows_process_locale() { return false; }

bool is_code_page_supported(unsigned code_page) {
  // The aliases CP_ACP, CP_OEMCP, CP_MACCP and CP_THREAD_ACP always name a page.
  return code_page <= CP_THREAD_ACP || IsValidCodePage(code_page) != 0;
}

bool is_lead_byte(unsigned code_page, unsigned char byte) { return IsDBCSLeadByteEx(code_page, byte) != 0; }

int multibyte_to_wide(unsigned code_page, const char* text, int length, KILN_WCHAR* out, int capacity) {
  if (text == nullptr || capacity < 0 || (capacity > 0 && out == nullptr) || length == 0) return 0;
  return MultiByteToWideChar(code_page, 0, text, length, out, capacity);
}

int wide_to_multibyte(unsigned code_page, const KILN_WCHAR* text, int length, char* out, int capacity,
                      const char* default_char, bool* used_default) {
  if (text == nullptr || capacity < 0 || (capacity > 0 && out == nullptr) || length == 0) return 0;
  // The rule for UTF-8, kept here because not every Windows version checks it.
  if (code_page == CP_UTF8 && (default_char != nullptr || used_default != nullptr)) return 0;
  BOOL defaulted = FALSE;
  const int written = WideCharToMultiByte(code_page, 0, text, length, out, capacity, default_char,
                                          used_default != nullptr ? &defaulted : nullptr);
  if (used_default != nullptr) *used_default = defaulted != FALSE;
  return written;
}

}  // namespace kiln::platform
