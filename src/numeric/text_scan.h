// White space as the library's scanners see it: UTF-8 characters for which
// KILNUTIL_isspace holds (so a no-break space counts while that setting is
// on). Every parser here skips, trims and tests blanks through these.
#pragma once

#include <cstddef>

namespace kiln::numeric {

// A half-open byte range [begin, end) of a text.
struct TextRange {
  const char* begin;
  const char* end;
  std::size_t size() const { return static_cast<std::size_t>(end - begin); }
  bool empty() const { return begin == end; }
};

// Whether the character at p is blank; *length receives its byte count.
bool is_blank_character(const char* p, int* length);

inline bool is_blank_at(const char* p, int* length) {
  // Printable ASCII is never white space: the common case costs one test.
  const auto c = static_cast<unsigned char>(*p);
  if (c > 0x20 && c < 0x7F) {
    *length = 1;
    return false;
  }
  return is_blank_character(p, length);
}

// The first non-blank character at or after p (its terminating NUL at worst).
const char* skip_blanks_from(const char* p);
inline const char* skip_blanks(const char* p) {
  const auto c = static_cast<unsigned char>(*p);
  return c > 0x20 && c < 0x7F ? p : skip_blanks_from(p);
}
// True when only blanks remain from p to the terminating NUL.
inline bool only_blanks(const char* p) { return *p == '\0' || *skip_blanks(p) == '\0'; }
// The range without its leading and trailing blanks.
TextRange trim(TextRange range);
// The first blank inside the range, or its end.
const char* find_blank(TextRange range);

inline bool is_ascii_digit(char c) { return c >= '0' && c <= '9'; }

}  // namespace kiln::numeric
