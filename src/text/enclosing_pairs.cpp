// Stripping one enclosing pair ("(" ")", "{" "}", double quotes, "[" "]")
// off a term, in place.
#include "text/enclosing_pairs.h"

#include "text/exposed_search.h"
#include "text/trim.h"

#include <kilnutil/text.h>

namespace kiln::text {

namespace {

constexpr unsigned kTrimLeading = KILNUTIL_INSIDE_TRIM_LEADING;
constexpr unsigned kCloserAnywhere = KILNUTIL_INSIDE_CLOSER_ANYWHERE;
constexpr unsigned kCutLastCloser = KILNUTIL_INSIDE_CUT_LAST_CLOSER;
constexpr unsigned kSearchFlagBits = KILNUTIL_INSIDE_SEARCH_FLAG_BITS;

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

char* str_inside(char* text, unsigned options, int* kind) {
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

char* remove_enclosing_pairs(char* text, int* removed, unsigned options) {
  if (removed != nullptr) *removed = 0;
  int kind = 0;
  do {
    text = str_inside(text, options | kTrimLeading, &kind);
    if (kind >= 1 && removed != nullptr) *removed = 1;
  } while (kind >= 1);
  return text;
}

char* remove_enclosing_pairs_even_mismatch(char* text, int* removed) {
  return remove_enclosing_pairs(text, removed, kTrimLeading | kCutLastCloser);
}

}  // namespace kiln::text
