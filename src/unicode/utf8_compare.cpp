// Comparing UTF-8 strings through their UTF-16 form: by code units, or
// ignoring case by the user's locale rules.
#include "platform/case_mapping.h"
#include "unicode/utf16_scratch.h"

#include <kilnutil/unicode.h>

namespace {

// About 2 KB of each string stays on the stack.
using CompareScratch = kiln::unicode::Utf16Scratch<1024>;

int compare_units(const KILN_WCHAR* a, const KILN_WCHAR* b) {
  while (*a != 0 && *a == *b) {
    ++a;
    ++b;
  }
  if (*a == *b) return 0;
  return *a < *b ? -1 : 1;
}

}  // namespace

extern "C" {

int KILNUTIL_UNICODE_UTF8_Compare(const char* a, const char* b) {
  CompareScratch wide_a(a, -1);
  CompareScratch wide_b(b, -1);
  if (!wide_a.ok() || !wide_b.ok()) return 0;
  return compare_units(wide_a.data(), wide_b.data());
}

int KILNUTIL_UNICODE_UTF8_CompareI(const char* a, const char* b) {
  CompareScratch wide_a(a, -1);
  CompareScratch wide_b(b, -1);
  if (!wide_a.ok() || !wide_b.ok()) return 0;
  return kiln::platform::compare_ignoring_case(wide_a.data(), wide_b.data());
}

}  // extern "C"
