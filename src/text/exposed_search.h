// The exposed search: the first occurrence of a character outside quoted
// sections, outside brackets and outside numeric literals. One body serves
// narrow (UTF-8) and wide (UTF-16) text and any notion of "the character
// looked for" (a Match predicate).
#pragma once

#include "text/char_class.h"
#include "text/chars.h"
#include "text/letter_case.h"

#include <kilnutil/text.h>

#include <cstdint>
#include <initializer_list>

namespace kiln::text {

// Search flags.
inline constexpr unsigned kKeepNumbers = KILNUTIL_EXPOSED_KEEP_NUMBERS;
inline constexpr unsigned kCaseBlind = KILNUTIL_EXPOSED_CASE_BLIND;
inline constexpr unsigned kSingleQuoteFirstOnly = KILNUTIL_EXPOSED_SINGLE_QUOTE_FIRST_ONLY;
inline constexpr unsigned kNoParentheses = KILNUTIL_EXPOSED_NO_PARENTHESES;
inline constexpr unsigned kNoAngleBrackets = KILNUTIL_EXPOSED_NO_ANGLE_BRACKETS;
inline constexpr unsigned kNoSingleQuote = KILNUTIL_EXPOSED_NO_SINGLE_QUOTE;
inline constexpr unsigned kNoDoubleQuote = KILNUTIL_EXPOSED_NO_DOUBLE_QUOTE;

// What one search treats as structure, from its flags and loc argument.
struct ScanRules {
  unsigned char pairs = 0;  // bit i: pair i of kPairOpeners/kPairClosers is a bracket
  bool double_quote = true;
  bool single_quote = true;
  bool single_quote_first_only = false;
  bool skip_numbers = true;
  bool escapes = true;  // a backslash escapes inside quoted sections
};

// loc false: both quotes always count, and "<" ">" only while the
// angle-bracket setting is on. loc true: the quote bits apply, and "<" ">"
// are brackets unless 0x8000000 is given.
ScanRules scan_rules(unsigned flags, bool loc);

// The escape switch (0: backslashes escape inside quoted sections).
int escape_switch();

// Where the last narrow search started, or the first quoted section or
// numeric literal it skipped.
const char* last_scan_position();

// Matches.
struct SameChar {
  unsigned target;
  bool operator()(unsigned c) const { return c == target; }
};
struct SameCharCaseBlind {
  unsigned target;
  unsigned upper_target;
  bool operator()(unsigned c) const { return c == target || upper_case(c) == upper_target; }
};
struct AnySpace {
  bool operator()(unsigned c) const { return is_space(c); }
};

// The position of the quote closing the section whose opening quote lies
// just before p, or null when the text ends first.
template <class Ch>
const Ch* closing_quote(const Ch* p, unsigned quote, bool escapes) {
  bool escaped = false;
  for (;;) {
    if constexpr (sizeof(Ch) == 1) {
      // Plain ASCII bytes inside the section: nothing to do but step on.
      while (!escaped) {
        const auto b = static_cast<unsigned char>(*p);
        if (b == quote || b == '\\' || b == 0 || b >= 0x80) break;
        ++p;
      }
    }
    const Ch* at = p;
    const unsigned c = read_char(p);
    if (c == 0) return nullptr;
    if (c == quote && !escaped) return at;
    escaped = escapes && c == '\\' && !escaped;
  }
}

// The last character of the numeric literal that starts at start (a digit or
// "."). The literal's first character is taken twice, which shapes the
// outcomes: a "." alone is a literal of one character; a second "." or a
// second exponent letter ends the literal at its first character; the first
// character after the exponent letter (space, sign or digit) is accepted
// without extending the literal, later digits extend it, a second sign ends it.
template <class Ch>
const Ch* numeric_literal_end(const Ch* start) {
  if (char_at(start) == '.') return start;
  enum { kMantissa, kExponentLetter, kExponent } state = kMantissa;
  const Ch* last = start;
  bool seen_dot = false;
  for (const Ch* p = after_char(start);; p = after_char(p)) {
    const unsigned c = char_at(p);
    const bool digit = c - '0' < 10u;
    if (c == '.') {
      if (seen_dot) return start;
      if (state == kExponentLetter) return last;
      seen_dot = true;
      last = p;
    } else if (c == 'e' || c == 'E') {
      if (state != kMantissa) return start;
      state = kExponentLetter;
    } else if (state == kExponentLetter) {
      if (!(digit || c == ' ' || c == '+' || c == '-')) return last;
      state = kExponent;
    } else if (digit) {
      last = p;
    } else {
      return last;  // a second sign, or any other character
    }
  }
}

// What the exposed search does at an ASCII character besides the target test.
enum class ScanRole : unsigned char { kPlain, kQuote, kNumber, kOpen, kClose, kStop };

struct ScanTables {
  ScanRole role[256]{};       // kStop: NUL and bytes from 0x80 (read as characters)
  unsigned char pair[128]{};  // the pair index of a bracket character
};

inline constexpr ScanTables kScanTables = [] {
  ScanTables t;
  for (unsigned char c : {'"', '\''}) t.role[c] = ScanRole::kQuote;
  for (unsigned char c : {'0', '1', '2', '3', '4', '5', '6', '7', '8', '9', '.'}) t.role[c] = ScanRole::kNumber;
  for (unsigned char i = 0; i < 4; ++i) {
    const auto opener = static_cast<unsigned char>(kPairOpeners[i]);
    const auto closer = static_cast<unsigned char>(kPairClosers[i]);
    t.role[opener] = ScanRole::kOpen;
    t.role[closer] = ScanRole::kClose;
    t.pair[opener] = t.pair[closer] = i;
  }
  t.role[0] = ScanRole::kStop;
  for (int b = 0x80; b < 0x100; ++b) t.role[b] = ScanRole::kStop;
  return t;
}();

// Narrow text: the position of the first byte that is not a plain ASCII
// character other than the target (nothing to do there but step on).
template <class Match>
const char* skip_plain_bytes(const char* p, const Match& match) {
  auto stops = [&match](const char* q) {
    const auto b = static_cast<unsigned char>(*q);
    return kScanTables.role[b] != ScanRole::kPlain || match(b);
  };
  // Each byte is looked at only when the one before it was no NUL.
  for (;; p += 4) {
    if (stops(p)) return p;
    if (stops(p + 1)) return p + 1;
    if (stops(p + 2)) return p + 2;
    if (stops(p + 3)) return p + 3;
  }
}

// The exposed search. Returns the first exposed match before end (when
// given), or null; *status becomes -1 when a quoted section is left open.
// *first_skipped receives the first quoted section or literal skipped.
template <class Ch, class Match>
const Ch* exposed_scan(const Ch* text, const Ch* end, const Match& match, const ScanRules& rules, int* status,
                       const Ch** first_skipped) {
  int open = -1;  // pair index of the open bracket
  std::uint8_t depth = 0;
  for (const Ch* p = text;;) {
    if constexpr (sizeof(Ch) == 1) {
      if (end == nullptr) p = skip_plain_bytes(p, match);
    }
    if (end != nullptr && p >= end) return nullptr;
    const Ch* at = p;
    const unsigned c = read_char(p);
    if (c == 0) return nullptr;
    if (open < 0 && match(c)) return at;
    if (c >= 128) continue;
    switch (kScanTables.role[c]) {
      case ScanRole::kQuote:
        if (c == '"' ? rules.double_quote : rules.single_quote && (at == text || !rules.single_quote_first_only)) {
          if (*first_skipped == nullptr) *first_skipped = at;
          const Ch* closing = closing_quote(p, c, rules.escapes);
          if (closing == nullptr) {
            if (status != nullptr) *status = -1;
            return nullptr;
          }
          p = closing + 1;
        }
        break;
      case ScanRole::kNumber:
        if (rules.skip_numbers) {
          if (*first_skipped == nullptr) *first_skipped = at;
          p = numeric_literal_end(at) + 1;
        }
        break;
      case ScanRole::kOpen: {
        const int pair = kScanTables.pair[c];
        if (open < 0) {
          if (rules.pairs & (1u << pair)) {
            open = pair;
            depth = 1;
          }
        } else if (open == pair) {
          ++depth;
        }
        break;
      }
      case ScanRole::kClose:
        if (open == kScanTables.pair[c] && --depth == 0) open = -1;
        break;
      default: break;
    }
  }
}

// The exposed search for one target character (0: any white space).
template <class Ch>
const Ch* find_exposed(const Ch* text, int target, unsigned flags, const ScanRules& rules, const Ch* end, int* status,
                       const Ch** first_skipped) {
  if (target == 0) return exposed_scan(text, end, AnySpace{}, rules, status, first_skipped);
  const auto t = static_cast<unsigned>(target);
  if (flags & kCaseBlind)
    return exposed_scan(text, end, SameCharCaseBlind{t, upper_case(t)}, rules, status, first_skipped);
  return exposed_scan(text, end, SameChar{t}, rules, status, first_skipped);
}

// The narrow exposed search with the process-wide last scan position kept
// up to date: KILNUTIL_exposed_char_pos_ex_loc_ex for a text.
const char* exposed_char(const char* text, int target, unsigned flags, int* status = nullptr, bool loc = false,
                         const char* end = nullptr);

// KILNUTIL_exposed_char_pos_ex_loc_ex: the exposed search of a text; for a
// null text a control call (save and disable, or restore, the escape switch
// through *status) that hands back the last scan position.
const char* exposed_search_or_control(const char* text, int target, unsigned flags, int* status, bool loc,
                                      const char* end);

// The same walk with any match (a set of characters, ...).
template <class Match>
const char* exposed_match(const char* text, const Match& match, unsigned flags, bool loc, const char* end = nullptr,
                          int* status = nullptr);

// Template-family form: no loc argument ("<" ">" are brackets unless
// 0x8000000), the quote bits apply, and no process-wide position is kept.
template <class Ch>
const Ch* exposed_char_pos(const Ch* text, int target, unsigned flags, int* status) {
  if (status != nullptr) *status = 0;
  if (text == nullptr) return nullptr;
  const Ch* first_skipped = nullptr;
  return find_exposed(text, target, flags, scan_rules(flags, true), static_cast<const Ch*>(nullptr), status,
                      &first_skipped);
}

void record_scan(const char* text, const char* first_skipped);

template <class Match>
const char* exposed_match(const char* text, const Match& match, unsigned flags, bool loc, const char* end,
                          int* status) {
  if (status != nullptr) *status = 0;
  const char* first_skipped = nullptr;
  const char* hit = exposed_scan(text, end, match, scan_rules(flags, loc), status, &first_skipped);
  record_scan(text, first_skipped);
  return hit;
}

}  // namespace kiln::text
