// The narrow/wide token templates of text import: character search, fixed
// separators, token lists, lines and fields, and the detection of the column
// separator of delimited text. One body serves UTF-8 (char) and UTF-16
// (KILN_WCHAR) text; characters are read whole, so a multi-byte character never
// matches an ASCII separator.
#pragma once

#include "text/char_class.h"
#include "text/chars.h"
#include "text/exposed_search.h"
#include "text/letter_case.h"
#include "text/strchr.h"
#include "text/token_list.h"
#include "text/trim.h"

#include <kilnutil/frame.h>

namespace kiln::text {

inline constexpr int kTab = '\t';
inline constexpr int kLineFeed = '\n';
inline constexpr int kCarriageReturn = '\r';

inline constexpr int kNoLimit = -1;

// The process-wide separator-exclusion character: a separator that
// separator detection must not pick (the decimal separator in use, say).
int separator_exclusion_char();
int set_separator_exclusion_char(int c);

// ---- Character search.

// Mode 0x1: plain search (with 0x2 the last hit); 0x4: the leading run of c
// is skipped first; 0x10: white space at both ends is left out first; 0x20: c
// matches in either case. Without 0x1, 0x4 and 0x10: the exposed search.
template <class Ch>
Ch* str_char(const Ch* text, int c, unsigned mode) {
  if (text == nullptr || c <= 0) return nullptr;
  const auto target = static_cast<unsigned>(c);
  const unsigned other_form = (mode & kStrCharEitherCase) != 0 ? other_case(target) : target;
  const auto matches = [target, other_form](unsigned ch) { return ch == target || ch == other_form; };
  PairNesting nesting;  // the template keeps no state between calls
  return mutable_pos(find_str_char(
      text, matches, mode, [](const Ch*& p) { return read_char(p); }, nesting));
}

// The first exposed target (0: any white space), template-family rules.
template <class Ch>
Ch* exposed_pos(const Ch* text, int target, unsigned flags, int* status) {
  return mutable_pos(exposed_char_pos(text, target, flags, status));
}

// ---- Fixed separators.

// Copies characters until NUL or either of the two separators, at most
// size - 1 units, whole characters only; terminates dest. Returns the position
// behind the separator, the NUL's position when the text ended, or the next
// character when dest was full. With size below 2 nothing is copied and the
// result is the position before text (callers must avoid this).
template <class Ch>
Ch* next_token(Ch* dest, const Ch* text, const Ch* separators, int size) {
  if (text == nullptr) return nullptr;
  if (size < 2) {
    if (dest != nullptr && size == 1) *dest = 0;
    return mutable_pos(text) - 1;
  }
  const unsigned sep0 = separators != nullptr ? char_at(separators) : 0;
  const unsigned sep1 = sep0 != 0 ? char_at(after_char(separators)) : 0;
  int used = 0;
  const Ch* p = text;
  for (;;) {
    const Ch* at = p;
    const unsigned c = read_char(p);
    if (c == 0) {
      p = at;
      break;
    }
    if (c == sep0 || c == sep1) break;
    const auto units = static_cast<int>(p - at);
    if (used + units > size - 1) {
      p = at;
      break;
    }
    if (dest != nullptr) {
      for (int i = 0; i < units; ++i) dest[used + i] = at[i];
    }
    used += units;
  }
  if (dest != nullptr) dest[used] = 0;
  return mutable_pos(p);
}

// ---- Lines and fields.

// The first line feed, found as the token splitter would see it.
template <class Ch>
Ch* line_end(Ch* text) {
  return exposed_pos(text, kLineFeed, token_list_flags(kNoLimit), nullptr);
}

// Tokens in the first line (ending at its line feed, or at a carriage return
// just before it); *feed receives that line feed, or null at the text's end.
template <class Ch>
int first_line_tokens(Ch* text, int sep, Ch** feed) {
  Ch* line_feed = line_end(text);
  if (feed != nullptr) *feed = line_feed;
  Ch* cut = line_feed;
  if (cut != nullptr && cut > text && cut[-1] == kCarriageReturn) --cut;
  const Ch saved = cut != nullptr ? *cut : Ch{0};
  if (cut != nullptr) *cut = 0;
  const int n = separate_str_to_token_list(text, static_cast<Ch**>(nullptr), sep, kNoLimit);
  if (cut != nullptr) *cut = saved;
  return n;
}

template <class Ch>
int first_line_tokens(Ch* text, int sep) {
  return text != nullptr ? first_line_tokens(text, sep, static_cast<Ch**>(nullptr)) : 0;
}

// Line feeds plus one; a line feed ending the text opens no further line.
template <class Ch>
int line_count(const Ch* text) {
  if (text == nullptr) return 0;
  int lines = 1;
  for (const Ch* p = text; *p != 0; ++p) {
    if (*p == kLineFeed && p[1] != 0) ++lines;
  }
  return lines;
}

// Tabs before the first line feed, plus one.
template <class Ch>
int words_in_line(const Ch* text) {
  if (text == nullptr) return 0;
  int fields = 1;
  for (const Ch* p = text; *p != 0 && *p != kLineFeed; ++p) fields += *p == kTab;
  return fields;
}

// The start of the line after the one at p, or null.
template <class Ch>
const Ch* next_plain_line(const Ch* p) {
  while (*p != 0 && *p != kLineFeed) ++p;
  return *p == kLineFeed ? p + 1 : nullptr;
}

// The largest field count of the first lines lines.
template <class Ch>
int num_words_in_lines(const Ch* text, int lines) {
  if (text == nullptr || lines < 1) return 0;
  int most = 0;
  const Ch* line = text;
  for (int i = 0; i < lines && line != nullptr; ++i, line = next_plain_line(line)) {
    const int n = words_in_line(line);
    if (n > most) most = n;
  }
  return most;
}

// The token count the first lines lines agree on: -1 for lines below 1, or
// for a separator other than tab when the text ends before the lines do; -2
// for a line of fewer than two tokens (not tab); -3 for lines that disagree
// (not tab: the tab count is the largest seen). A count reaching enough
// (above 0) is the answer at once.
template <class Ch>
int count_consistent_tokens(Ch* text, int sep, int enough, int lines) {
  if (lines < 1 || text == nullptr) return -1;
  const bool tab = sep == kTab;
  int reference = 0;
  Ch* line = text;
  for (int i = 0; i < lines; ++i) {
    Ch* feed = nullptr;
    const int n = first_line_tokens(line, sep, &feed);
    if (!tab && n < 2) return -2;
    if (enough > 0 && n >= enough) return n;
    if (i == 0 || (tab && n > reference)) {
      reference = n;
    } else if (!tab && n != reference) {
      return -3;
    }
    if (feed == nullptr) return tab ? reference : -1;
    line = feed + 1;
  }
  return reference;
}

// 9 (tab), 44 (",") or 59 (";") by the first lines of text, or -1.
template <class Ch>
int find_separator(Ch* text, int enough, int lines) {
  constexpr int kTabCheckLines = 6;
  if (first_line_tokens(text, kTab) > 1) return kTab;
  if (lines < 1) lines = 3;
  if (count_consistent_tokens(text, kTab, enough, kTabCheckLines) > 1) return kTab;
  if (separator_exclusion_char() != ',' && count_consistent_tokens(text, ',', enough, lines) > 1) return ',';
  return count_consistent_tokens(text, ';', enough, lines) >= 2 ? ';' : -1;
}

}  // namespace kiln::text
