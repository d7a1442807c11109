// KILNUTILT: the character steps of the narrow/wide text templates. Narrow
// text is UTF-8 (through the lenient walk), wide text UTF-16 units.
#include "unicode/utf8.h"

#include <kilnutil/frame.h>

namespace {

unsigned short narrow_char_at(const char* p) {
  int length;
  return static_cast<unsigned short>(kiln::unicode::utf8_decode(reinterpret_cast<const unsigned char*>(p), &length));
}

template <typename Char>
unsigned short narrow_char_advance(Char*& p) {
  int length;
  const auto cp = kiln::unicode::utf8_decode(reinterpret_cast<const unsigned char*>(p), &length);
  p += length;
  return static_cast<unsigned short>(cp);
}

}  // namespace

unsigned short KILNUTILT::GetTwo(const char* p) { return narrow_char_at(p); }
unsigned short KILNUTILT::GetTwo(const KILN_WCHAR* p) { return *p; }

unsigned short KILNUTILT::GetTwoAdv(const char*& p) { return narrow_char_advance(p); }
unsigned short KILNUTILT::GetTwoAdv(char*& p) { return narrow_char_advance(p); }
unsigned short KILNUTILT::GetTwoAdv(const KILN_WCHAR*& p) { return *p++; }
unsigned short KILNUTILT::GetTwoAdv(KILN_WCHAR*& p) { return *p++; }

const char* KILNUTILT::GoBack(const char* p) { return p != nullptr ? kiln::unicode::utf8_go_back(p) : nullptr; }
char* KILNUTILT::GoBack(char* p) { return p != nullptr ? const_cast<char*>(kiln::unicode::utf8_go_back(p)) : nullptr; }
const KILN_WCHAR* KILNUTILT::GoBack(const KILN_WCHAR* p) { return p != nullptr ? p - 1 : nullptr; }
KILN_WCHAR* KILNUTILT::GoBack(KILN_WCHAR* p) { return p != nullptr ? p - 1 : nullptr; }
