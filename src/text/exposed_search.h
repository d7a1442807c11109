// The exposed search: the first occurrence of a character outside quoted
// sections, outside brackets and outside numeric literals. One body serves
// narrow (UTF-8) and wide (UTF-16) text and any notion of "the character
// looked for" (a Match predicate).
#pragma once

#include "text/char_class.h"
#include "text/chars.h"
#include "text/letter_case.h"

#include <cstdint>

namespace kiln::text {

// Search flags.
inline constexpr unsigned kKeepNumbers = 0x40;
inline constexpr unsigned kCaseBlind = 0x80;
inline constexpr unsigned kSingleQuoteFirstOnly = 0x100;
inline constexpr unsigned kNoParentheses = 0x1000000;
inline constexpr unsigned kNoAngleBrackets = 0x8000000;
inline constexpr unsigned kNoSingleQuote = 0x10000000;
inline constexpr unsigned kNoDoubleQuote = 0x20000000;

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

// Positions of the quote closing the section whose opening quote lies just
// before p, or null when the text ends first.
template <class Ch>
const Ch* closing_quote(const Ch* p, unsigned quote, bool escapes) {
  bool escaped = false;
  for (;;) {
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

// The exposed search. Returns the first exposed match before end (when
// given), or null; *status becomes -1 when a quoted section is left open.
// *first_skipped receives the first quoted section or literal skipped.
template <class Ch, class Match>
const Ch* exposed_scan(const Ch* text, const Ch* end, const Match& match, const ScanRules& rules, int* status,
                       const Ch** first_skipped) {
  enum Role : unsigned char { kPlain, kQuote, kNumber, kOpen, kClose };
  static constexpr auto kRoles = [] {
    struct {
      unsigned char role[128]{};
      unsigned char pair[128]{};
    } t;
    t.role['"'] = t.role['\''] = kQuote;
    for (int c = '0'; c <= '9'; ++c) t.role[c] = kNumber;
    t.role['.'] = kNumber;
    for (unsigned char i = 0; i < 4; ++i) {
      t.role[static_cast<unsigned char>(kPairOpeners[i])] = kOpen;
      t.role[static_cast<unsigned char>(kPairClosers[i])] = kClose;
      t.pair[static_cast<unsigned char>(kPairOpeners[i])] = i;
      t.pair[static_cast<unsigned char>(kPairClosers[i])] = i;
    }
    return t;
  }();

  int open = -1;  // pair index of the open bracket
  std::uint8_t depth = 0;
  bool single_quote = rules.single_quote;
  auto note_skipped = [first_skipped](const Ch* at) {
    if (*first_skipped == nullptr) *first_skipped = at;
  };
  for (const Ch* p = text;;) {
    if (end != nullptr && p >= end) return nullptr;
    const Ch* at = p;
    const unsigned c = read_char(p);
    if (c == 0) return nullptr;
    if (open < 0 && match(c)) return at;
    if (c < 128 && kRoles.role[c] != kPlain) {
      switch (kRoles.role[c]) {
        case kQuote:
          if (c == '"' ? rules.double_quote : single_quote) {
            note_skipped(at);
            const Ch* closing = closing_quote(p, c, rules.escapes);
            if (closing == nullptr) {
              if (status != nullptr) *status = -1;
              return nullptr;
            }
            p = closing + 1;
          }
          break;
        case kNumber:
          if (rules.skip_numbers) {
            note_skipped(at);
            p = numeric_literal_end(at) + 1;
          }
          break;
        case kOpen: {
          const int pair = kRoles.pair[c];
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
        case kClose:
          if (open == kRoles.pair[c] && --depth == 0) open = -1;
          break;
      }
    }
    if (at == text && rules.single_quote_first_only) single_quote = false;
  }
}

// The exposed search for one target character (0: any white space).
template <class Ch>
const Ch* find_exposed(const Ch* text, int target, unsigned flags, const ScanRules& rules, const Ch* end, int* status,
                       const Ch** first_skipped) {
  if (target == 0) return exposed_scan(text, end, AnySpace{}, rules, status, first_skipped);
  const auto t = static_cast<unsigned>(target);
  if (flags & kCaseBlind) return exposed_scan(text, end, SameCharCaseBlind{t, upper_case(t)}, rules, status, first_skipped);
  return exposed_scan(text, end, SameChar{t}, rules, status, first_skipped);
}

// The narrow exposed search with the process-wide last scan position kept
// up to date: KILNUTIL_exposed_char_pos_ex_loc_ex for a text.
const char* exposed_char(const char* text, int target, unsigned flags, int* status = nullptr, bool loc = false,
                         const char* end = nullptr);

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
const char* exposed_match(const char* text, const Match& match, unsigned flags, bool loc, const char* end, int* status) {
  if (status != nullptr) *status = 0;
  const char* first_skipped = nullptr;
  const char* hit = exposed_scan(text, end, match, scan_rules(flags, loc), status, &first_skipped);
  record_scan(text, first_skipped);
  return hit;
}

}  // namespace kiln::text
