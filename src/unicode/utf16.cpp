// UTF-16 companions of the UTF-8 primitives: stepping over a surrogate pair
// and encoding a code point as units.
#include <kilnutil/unicode.h>

extern "C" {

KILN_WCHAR* KILNUTIL_UNICODE_UTF16_adv_str(const KILN_WCHAR* s, unsigned int* pch) {
  const unsigned int unit = s[0];
  auto* position = const_cast<KILN_WCHAR*>(s);
  if (unit < 0xD800 || unit > 0xDFFF) {
    if (pch != nullptr) *pch = unit;
    return position + 1;
  }
  const unsigned int next = s[1];
  if (next < 0xDC00 || next > 0xDFFF) {
    // An unpaired surrogate: the step of -1 unit is the signal callers test.
    if (pch != nullptr) *pch = unit;
    return position - 1;
  }
  // Any surrogate, high or low, is taken as the first unit of a pair.
  if (pch != nullptr) *pch = unit * 1024u + next - 0x35FDC00u;
  return position + 2;
}

int KILNUTIL_UNICODE_UTF16_get_char_length(unsigned int cp, KILN_WCHAR* buf) {
  // The scratch buffer keeps a unit in front, which the out-of-range case zeroes.
  KILN_WCHAR scratch[4];
  KILN_WCHAR* out = buf != nullptr ? buf : scratch + 1;
  int units;
  if (cp < 0x10000) {
    out[0] = static_cast<KILN_WCHAR>(cp);
    units = 1;
  } else if (cp < 0x110000) {
    out[0] = static_cast<KILN_WCHAR>((cp >> 10) + 0xD7C0);
    out[1] = static_cast<KILN_WCHAR>((cp & 0x3FF) + 0xDC00);
    units = 2;
  } else {
    units = -1;
  }
  out[units] = 0;
  return units;
}

}  // extern "C"
