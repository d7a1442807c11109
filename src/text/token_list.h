// Splitting text into a list of tokens at an exposed separator: the narrow
// and wide token-list template. It steps through the text with the KILNUTILT
// character helpers and the exposed search of the template family.
#pragma once

#include "text/exposed_search.h"
#include "text/trim.h"

#include <kilnutil/frame.h>
#include <kilnutil/text.h>

namespace kiln::text {

// max -1: no limit, and the single quote is ordinary. max 60000: a limit, and
// the single quote is ordinary too. Any other max: the single quote quotes,
// and a max above 0 is a limit. Numbers are never skipped and "<" ">" are
// never brackets.
inline unsigned token_list_flags(int max) {
  constexpr unsigned kOrdinarySingleQuote = kNoSingleQuote | kNoAngleBrackets | kKeepNumbers;
  constexpr unsigned kQuotingSingleQuote = kNoAngleBrackets | kKeepNumbers;
  return max == KILNUTIL_TOKENS_NO_LIMIT || max == KILNUTIL_TOKENS_LIMIT_60000 ? kOrdinarySingleQuote
                                                                               : kQuotingSingleQuote;
}

// Splits text at each exposed sep (0: ","; -1: white space, and the white
// space after each separator is skipped too), up to max separators when max
// is above 0. With list given, each token is cut out and stored trimmed. The
// result is the number of tokens; when the limit was reached, the number of
// separators, and the rest of the text is no token.
template <class Ch>
int separate_str_to_token_list(Ch* text, Ch** list, int sep, int max) {
  if (text == nullptr || KILNUTILT::GetTwo(text) == 0) return 0;
  const int target = sep == KILNUTIL_TOKENS_SEP_COMMA ? ',' : sep == KILNUTIL_TOKENS_SEP_WHITE_SPACE ? 0 : sep;
  const unsigned flags = token_list_flags(max);
  const bool limited = max > 0;
  int found = 0;
  Ch* p = text;
  for (;;) {
    if (limited && found >= max) return found;
    Ch* separator = mutable_pos(exposed_char_pos(static_cast<const Ch*>(p), target, flags, nullptr));
    if (separator == nullptr) break;
    Ch* next = separator;
    KILNUTILT::GetTwoAdv(next);
    if (list != nullptr) {
      *separator = 0;
      list[found] = trim_both(p);
    }
    ++found;
    if (target == 0) {
      while (KILNUTILT::GetTwo(next) != 0 && is_space(KILNUTILT::GetTwo(next))) KILNUTILT::GetTwoAdv(next);
    }
    p = next;
  }
  if (list != nullptr) list[found] = trim_both(p);
  return found + 1;
}

}  // namespace kiln::text
