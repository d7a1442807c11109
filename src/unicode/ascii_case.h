// Comparing texts with the ASCII letters A-Z and a-z taken as equal; every
// other byte (UTF-8 sequences included) must match exactly. Independent of
// the C locale.
#pragma once

#include <cstddef>

namespace kiln::unicode {

inline char ascii_lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

// Whether the first `limit` bytes of a and b (fewer when both end earlier at
// the same NUL) match.
inline bool equal_ignoring_ascii_case(const char* a, const char* b, std::size_t limit) {
  for (std::size_t i = 0; i < limit; ++i) {
    if (ascii_lower(a[i]) != ascii_lower(b[i])) return false;
    if (a[i] == '\0') return true;
  }
  return true;
}

// Whether the NUL-terminated texts match.
inline bool equal_ignoring_ascii_case(const char* a, const char* b) {
  for (;; ++a, ++b) {
    if (ascii_lower(*a) != ascii_lower(*b)) return false;
    if (*a == '\0') return true;
  }
}

}  // namespace kiln::unicode
