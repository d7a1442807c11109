// Reading script text one character at a time. Narrow text is UTF-8 walked
// by the library's lenient rule (full code points, so a character above
// U+FFFF never reads as an ASCII one); wide text is read one UTF-16 unit at a
// time through the KILNUTILT helpers.
#pragma once

#include "unicode/utf8.h"

#include <kilnutil/frame.h>

namespace kiln::text {

// The character at p; p moves past it. The NUL reads as 0 and p moves onto
// the byte behind it, so callers stop on 0 before reading again.
inline unsigned read_char(const char*& p) {
  const auto lead = static_cast<unsigned char>(*p);
  if (lead < 0x80) {
    ++p;
    return lead;
  }
  int length;
  const unsigned cp = unicode::utf8_decode(reinterpret_cast<const unsigned char*>(p), &length);
  p += length;
  return cp;
}

inline unsigned read_char(const KILN_WCHAR*& p) { return KILNUTILT::GetTwoAdv(p); }

template <class Ch>
unsigned char_at(const Ch* p) {
  return read_char(p);
}

template <class Ch>
const Ch* after_char(const Ch* p) {
  read_char(p);
  return p;
}

// Reading byte by byte: the walk used on systems whose code page is a
// Western single-byte one.
inline unsigned read_byte(const char*& p) { return static_cast<unsigned char>(*p++); }

// The start of the character before p, never before begin: the UTF-8 step
// back of unicode/utf8.h, bounded.
inline const char* char_before(const char* begin, const char* p) { return unicode::utf8_go_back_within(p, begin); }

template <class Ch>
Ch* mutable_pos(const Ch* p) {
  return const_cast<Ch*>(p);
}

}  // namespace kiln::text
