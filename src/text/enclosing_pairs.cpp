// Stripping one enclosing pair ("(" ")", "{" "}", double quotes, "[" "]")
// off a term, in place.
#include "text/exposed_search.h"
#include "text/trim.h"

#include <kilnutil/text.h>

using namespace kiln::text;

namespace {

constexpr unsigned kTrimLeading = 0x1;
constexpr unsigned kCloserAnywhere = 0x2;
constexpr unsigned kCutLastCloser = 0x1000;
constexpr unsigned kSearchFlagBits = 0xFF000000;

constexpr int kKindCutLastCloser = -1;
constexpr int kKindCloserOnly = -2;

// The position of the last character of a non-empty text.
char* last_char(char* text) {
  char* last = text;
  for (const char* p = text; *p != '\0';) {
    last = mutable_pos(p);
    p = after_char(p);
  }
  return last;
}

}  // namespace

char* KILNUTIL_str_inside_ex(char* text, unsigned int options, int* kind) {
  int own_kind = 0;
  if (kind == nullptr) kind = &own_kind;
  *kind = 0;
  if (text == nullptr) return nullptr;
  char* p = (options & kTrimLeading) ? trim_left(text) : text;
  if (*p == '\0') return p;
  const int pair = begin_quote_class(static_cast<unsigned char>(*p));
  if (pair == 0) {
    if (end_quote_class(char_at(last_char(p))) != 0) *kind = kKindCloserOnly;
    return p;
  }
  trim_right(p);
  char* last = last_char(p);
  const char closer = closer_of_class(pair);
  const unsigned flags = (options & kSearchFlagBits) | kNoAngleBrackets;
  const char* found = exposed_char(p + 1, closer, flags, nullptr, true);
  if (found != nullptr && (found == last || (options & kCloserAnywhere))) {
    *mutable_pos(found) = '\0';
    *kind = pair;
    return p + 1;
  }
  if ((options & kCutLastCloser) && last != p && *last == closer) {
    *last = '\0';
    *kind = kKindCutLastCloser;
    return p + 1;
  }
  return p;
}

char* KILNUTIL_str_inside(char* text, unsigned int options) { return KILNUTIL_str_inside_ex(text, options, nullptr); }

char* KILNUTIL_text_inside_remove_quotes_ex(char* text, int* removed, unsigned int options) {
  if (removed != nullptr) *removed = 0;
  int kind = 0;
  do {
    text = KILNUTIL_str_inside_ex(text, options | kTrimLeading, &kind);
    if (kind >= 1 && removed != nullptr) *removed = 1;
  } while (kind >= 1);
  return text;
}

char* KILNUTIL_text_inside_remove_quotes(char* text, int* removed) {
  return KILNUTIL_text_inside_remove_quotes_ex(text, removed, 0);
}

char* KILNUTIL_text_inside_remove_quotes_even_mismatch(char* text, int* removed) {
  return KILNUTIL_text_inside_remove_quotes_ex(text, removed, kTrimLeading | kCutLastCloser);
}
