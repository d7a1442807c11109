// KILNUTIL_strchr's pair nesting and text walk, shared with the token reader.
#pragma once

#include "text/char_class.h"

#include <kilnutil/text.h>

namespace kiln::text {

// One pair kind at a time (the begin_quote_class kinds: "(" ")", "{" "}",
// the double quote, "[" "]"); only the open kind's opener and closer count,
// the others are ordinary text inside it. No escapes.
struct PairNesting {
  int kind = 0;
  int depth = 0;

  void reset() { kind = depth = 0; }
  bool is_open() const { return depth != 0; }
  void open(int k) {
    kind = k;
    depth = 1;
  }
  // Follows c while a pair is open; true when c closed it. The closer is
  // tested first, so a double quote closes a double-quoted section.
  bool follow(unsigned c) {
    if (end_quote_class(c) == kind) {
      if (--depth == 0) kind = 0;
      return depth == 0;
    }
    if (begin_quote_class(c) == kind) ++depth;
    return false;
  }
};

// The modes of the character search shared by KILNUTIL_strchr and the
// narrow/wide StrChar template.
inline constexpr unsigned kStrCharPlain = KILNUTIL_STRCHR_PLAIN;                       // no pairs or quotes
inline constexpr unsigned kStrCharBackward = KILNUTIL_STRCHR_BACKWARD;                 // plain: the last hit
inline constexpr unsigned kStrCharSkipLeadingRun = KILNUTIL_STRCHR_AFTER_LEADING_RUN;  // plain: behind the run of c
inline constexpr unsigned kStrCharTrimmed = KILNUTIL_STRCHR_TRIMMED;         // plain: white space at both ends left out
inline constexpr unsigned kStrCharEitherCase = KILNUTIL_STRCHR_EITHER_CASE;  // c matches in either case

// The search itself, over any character width: `read` reads one character
// and moves past it, `matches` tests a character, `nesting` holds the pair
// state of the exposed search (reset here). Without 0x1, 0x4 and 0x10 the
// first match outside pairs and double quotes; otherwise the plain search.
template <class Ch, class Read, class Match>
const Ch* find_str_char(const Ch* text, const Match& matches, unsigned mode, Read read, PairNesting& nesting) {
  if (!(mode & (kStrCharPlain | kStrCharSkipLeadingRun | kStrCharTrimmed))) {
    nesting.reset();
    for (const Ch* p = text;;) {
      const Ch* at = p;
      const unsigned ch = read(p);
      if (ch == 0) return nullptr;
      if (nesting.is_open()) {
        nesting.follow(ch);
      } else if (matches(ch)) {
        return at;
      } else if (const int k = begin_quote_class(ch)) {
        nesting.open(k);
      }
    }
  }
  // Skips characters from p (to end, or the NUL when end is null) while `keep` holds.
  auto skip_while = [&read](const Ch* p, const Ch* end, auto&& keep) {
    while (end == nullptr || p < end) {
      const Ch* next = p;
      const unsigned ch = read(next);
      if (ch == 0 || !keep(ch)) break;
      p = next;
    }
    return p;
  };
  const Ch* begin = text;
  const Ch* end = nullptr;  // the terminating NUL
  if (mode & kStrCharTrimmed) {
    begin = skip_while(begin, nullptr, [](unsigned ch) { return is_space(ch); });
    end = begin;  // behind the last character that is not white space
    for (const Ch* p = begin;;) {
      const unsigned ch = read(p);
      if (ch == 0) break;
      if (!is_space(ch)) end = p;
    }
  }
  if (mode & kStrCharSkipLeadingRun) begin = skip_while(begin, end, matches);
  const Ch* last = nullptr;
  for (const Ch* p = begin; end == nullptr || p < end;) {
    const Ch* at = p;
    const unsigned ch = read(p);
    if (ch == 0) break;
    if (matches(ch)) {
      if (!(mode & kStrCharBackward)) return at;
      last = at;
    }
  }
  return last;
}

// The process-wide nesting of KILNUTIL_strchr, reset by every exposed search
// and by KILNUTIL_next_token, which reads tokens with it. A call works on a
// copy and stores the state it ended with.
PairNesting strchr_nesting();
void remember_strchr_nesting(const PairNesting& nesting);

// KILNUTIL_strchr and KILNUTIL_strchr_reverse: null for a null text or a c of
// 0 or below.
char* search_char(const char* text, int c, unsigned mode);
char* search_char_reverse(const char* text, int c, const char* from);

// Whether narrow text is walked byte by byte: the string-process code page
// (or the ANSI code page when none is set) is a Western one, 1200 to 1254.
bool walks_bytes();

}  // namespace kiln::text
