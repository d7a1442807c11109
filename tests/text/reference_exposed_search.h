// A plain reference for the exposed search, written from its rules and not
// from the library's code, for differential tests and the text fuzz target.
// It covers ASCII text with numbers not skipped (flag 0x40), loc 0, the
// angle-bracket setting off and escapes honoured: one character at a time,
// quotes first, then one bracket kind at a time.
#pragma once

#include <cstring>

namespace reference {

inline bool is_white_space(char c) { return c == ' ' || (c >= 9 && c <= 13); }

// The first exposed target (0: any white space) of text; *status -1 when a
// quoted section is left open (and the result is null then), else 0.
inline const char* exposed_search(const char* text, int target, int* status) {
  static const char kOpeners[] = "({[";
  static const char kClosers[] = ")}]";
  *status = 0;
  int pair = -1;  // the open pair's index, -1 when none
  int depth = 0;
  for (const char* p = text; *p != '\0'; ++p) {
    const char c = *p;
    const bool match = target == 0 ? is_white_space(c) : c == target;
    if (match && pair < 0) return p;
    if (c == '"' || c == '\'') {
      const char* q = p + 1;
      for (bool escaped = false; *q != '\0' && (*q != c || escaped); ++q) escaped = *q == '\\' && !escaped;
      if (*q == '\0') {
        *status = -1;
        return nullptr;
      }
      p = q;  // behind the closing quote next
    } else if (pair >= 0) {
      if (c == kClosers[pair]) {
        if (--depth == 0) pair = -1;
      } else if (c == kOpeners[pair]) {
        ++depth;
      }
    } else if (const char* opener = std::strchr(kOpeners, c); opener != nullptr) {
      pair = static_cast<int>(opener - kOpeners);
      depth = 1;
    }
  }
  return nullptr;
}

}  // namespace reference
