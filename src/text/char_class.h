// Character classes of script text: the class table of KILNUTIL_test_char,
// white space, and the quote and bracket classifications.
#pragma once

namespace kiln::text {

inline constexpr unsigned char kNoClass = 0;
inline constexpr unsigned char kLetter = 2;
inline constexpr unsigned char kDigit = 3;
inline constexpr unsigned char kArithmetic = 4;
inline constexpr unsigned char kOpener = 5;
inline constexpr unsigned char kCloser = 6;
inline constexpr unsigned char kStatementEnd = 7;
inline constexpr unsigned char kWhiteSpace = 8;
inline constexpr unsigned char kLogical = 15;
inline constexpr unsigned char kOther = 16;

// KILNUTIL_test_char: the class with the control modifier applied.
unsigned char char_class(unsigned c);

// Space, 9 to 13, and the no-break space while its setting is on.
bool is_space_slow(unsigned c);
inline bool is_space(unsigned c) {
  if (c == ' ' || c - 9u <= 4u) return true;
  return c == 0xA0 && is_space_slow(c);
}

inline bool is_letter_or_digit(unsigned c) {
  const unsigned char k = char_class(c);
  return k == kLetter || k == kDigit;
}

// KILNUTIL_is_quote_char: 1 for the double quote, 2 for the single quote.
inline int quote_class(unsigned c) { return c == '"' ? 1 : c == '\'' ? 2 : 0; }

// The pair classes of KILNUTIL_strchr and the closing-character table:
// 1 "(" ")", 2 "{" "}", 3 the double quote on both sides, 4 "[" "]".
inline int begin_quote_class(unsigned c) {
  switch (c) {
    case '(': return 1;
    case '{': return 2;
    case '"': return 3;
    case '[': return 4;
    default: return 0;
  }
}
inline int end_quote_class(unsigned c) {
  switch (c) {
    case ')': return 1;
    case '}': return 2;
    case '"': return 3;
    case ']': return 4;
    default: return 0;
  }
}
inline char closer_of_class(int k) { return "\0)}\"]"[k]; }

// The bracket pairs of the exposed search, in table order.
inline constexpr char kPairOpeners[] = "({[<";
inline constexpr char kPairClosers[] = ")}]>";
inline constexpr int kAnglePair = 3;

// The standalone opener and closer tests: the 1-based pair of c among the
// first three pairs, and "<" ">" while the angle-bracket setting is on; else 0.
int standalone_opener(unsigned c);
int standalone_closer(unsigned c);

}  // namespace kiln::text
