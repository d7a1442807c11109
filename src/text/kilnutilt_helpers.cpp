// The KILNUTILT helpers the narrow/wide templates use beyond character
// stepping: the last character, upper-casing, bounded copy and length.
#include "platform/case_mapping.h"
#include "text/chars.h"
#include "unicode/utf8_case.h"

#include <kilnutil/frame.h>
#include <kilnutil/unicode.h>

#include <cstring>

namespace {

template <class Ch>
int units_in(const Ch* p) {
  if (p == nullptr) return 0;
  int n = 0;
  while (p[n] != 0) ++n;
  return n;
}

template <class Ch>
Ch* copy_bounded(Ch* dest, const Ch* src, int n) {
  if (dest == nullptr || n < 1) return dest;
  int i = 0;
  if (src != nullptr) {
    for (; i < n - 1 && src[i] != 0; ++i) dest[i] = src[i];
  }
  dest[i] = 0;
  return dest;
}

}  // namespace

const char* KILNUTILT::GetLastChar(const char* p) {
  if (p == nullptr || *p == '\0') return nullptr;
  // Bounded by the text's start, also when it begins with continuation bytes.
  return kiln::text::char_before(p, p + std::strlen(p));
}

char* KILNUTILT::GetLastChar(char* p) { return const_cast<char*>(GetLastChar(static_cast<const char*>(p))); }

const KILN_WCHAR* KILNUTILT::GetLastChar(const KILN_WCHAR* p) {
  if (p == nullptr || *p == 0) return nullptr;
  return p + units_in(p) - 1;
}

KILN_WCHAR* KILNUTILT::GetLastChar(KILN_WCHAR* p) {
  return const_cast<KILN_WCHAR*>(GetLastChar(static_cast<const KILN_WCHAR*>(p)));
}

char* KILNUTILT::CharUpper_(char* p) {
  if (p == nullptr) return nullptr;
  kiln::unicode::change_case_in_place(p, false, 0);
  return p;
}

KILN_WCHAR* KILNUTILT::CharUpper_(KILN_WCHAR* p) {
  if (p == nullptr) return nullptr;
  kiln::platform::upper_case_units(p, static_cast<unsigned>(units_in(p)));
  return p;
}

char* KILNUTILT::StrCpyN(char* dest, const char* src, int n) { return copy_bounded(dest, src, n); }

KILN_WCHAR* KILNUTILT::StrCpyN(KILN_WCHAR* dest, const KILN_WCHAR* src, int n) { return copy_bounded(dest, src, n); }

int KILNUTILT::StrLen(const char* p) { return units_in(p); }

int KILNUTILT::StrLen(const KILN_WCHAR* p) { return units_in(p); }
