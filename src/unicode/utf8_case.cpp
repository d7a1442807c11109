// In-place case change of a UTF-8 string (or of one UTF-16 character).
#include "unicode/utf8_case.h"

#include "platform/case_mapping.h"
#include "platform/codepage.h"
#include "unicode/utf16_scratch.h"

#include <kilnutil/unicode.h>

#include <cstdint>
#include <cstring>
#include <memory>
#include <new>

namespace {

using kiln::platform::kCodePageUtf8;

void change_case(KILN_WCHAR* units, unsigned count, bool to_lower) {
  if (to_lower) {
    kiln::platform::lower_case_units(units, count);
  } else {
    kiln::platform::upper_case_units(units, count);
  }
}

// Converts `units` back to UTF-8 into p when the result fits in `capacity`
// bytes; otherwise leaves p as it is and returns false.
bool store_utf8(char* p, int capacity, const KILN_WCHAR* units, int count) {
  const int needed = kiln::platform::wide_to_multibyte(kCodePageUtf8, units, count, nullptr, 0);
  if (needed <= 0 || needed > capacity) return false;
  return kiln::platform::wide_to_multibyte(kCodePageUtf8, units, count, p, needed) == needed;
}

}  // namespace

namespace kiln::unicode {

char* change_case_in_place(char* p, bool to_lower, int len) {
  const int n = static_cast<int>(std::strlen(p));
  const int treated = (len >= 1 && len < n) ? len : n + 1;
  kiln::unicode::Utf16Scratch<4096> units(p, treated);  // 8,192 bytes on the stack
  if (!units.ok() || units.size() == 0) return p;
  change_case(units.data(), static_cast<unsigned>(units.size()), to_lower);
  if (!store_utf8(p, treated < n + 1 ? treated : n + 1, units.data(), units.size())) p[n] = '\0';
  return p;
}

}  // namespace kiln::unicode

extern "C" char* KILNUTIL_UNICODE_UTF8_to_upper_or_to_lower(char* p, int to_lower, int is_char, int len) {
  const auto value = reinterpret_cast<std::uintptr_t>(p);
  if (is_char != 0 && value < 0x10000) {
    // p carries one UTF-16 character, not an address.
    KILN_WCHAR character[2] = {static_cast<KILN_WCHAR>(value), 0};
    change_case(character, 2, to_lower != 0);
    return reinterpret_cast<char*>(static_cast<std::uintptr_t>(character[0]));
  }
  return kiln::unicode::change_case_in_place(p, to_lower != 0, len);
}
