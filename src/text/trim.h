// Trimming white space (KILNUTIL_isspace) off text, in place, for narrow and
// wide text.
#pragma once

#include "text/char_class.h"
#include "text/chars.h"

#include <string>

namespace kiln::text {

// The start of the character before p, never before begin.
inline const char* step_back(const char* begin, const char* p) { return char_before(begin, p); }
inline const KILN_WCHAR* step_back(const KILN_WCHAR*, const KILN_WCHAR* p) { return KILNUTILT::GoBack(p); }

// The first character that is not white space.
template <class Ch>
Ch* trim_left(Ch* p) {
  while (is_space(char_at(p))) p = mutable_pos(after_char(p));
  return p;
}

// Overwrites the trailing white space with NULs (each character at its
// first unit) and returns text.
template <class Ch>
Ch* trim_right(Ch* text) {
  const Ch* end = text + std::char_traits<Ch>::length(text);
  while (end > text) {
    const Ch* last = step_back(text, end);
    if (!is_space(char_at(last))) break;
    *mutable_pos(last) = 0;
    end = last;
  }
  return text;
}

template <class Ch>
Ch* trim_both(Ch* text) {
  return trim_right(trim_left(text));
}

// The position behind the text's white space (for read-only text).
template <class Ch>
const Ch* skip_spaces(const Ch* p) {
  while (is_space(char_at(p))) p = after_char(p);
  return p;
}

}  // namespace kiln::text
