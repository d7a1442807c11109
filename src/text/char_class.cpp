// The class table of script characters, white space and the standalone
// bracket tests.
#include "text/char_class.h"

#include "frame/settings.h"

#include <array>
#include <initializer_list>

namespace kiln::text {

namespace {

constexpr std::array<unsigned char, 128> make_class_table() {
  std::array<unsigned char, 128> t{};
  for (auto& k : t) k = kOther;
  for (int c = 'A'; c <= 'Z'; ++c) t[c] = kLetter;
  for (int c = 'a'; c <= 'z'; ++c) t[c] = kLetter;
  t['_'] = kLetter;
  t['`'] = kLetter;  // the backquote counts as a letter
  for (int c = '0'; c <= '9'; ++c) t[c] = kDigit;
  t['.'] = kDigit;
  for (unsigned char c : {'*', '+', '-', '/', '=', '^'}) t[c] = kArithmetic;
  for (unsigned char c : {'(', '<', '[', '{'}) t[c] = kOpener;
  for (unsigned char c : {')', '>', ']', '}'}) t[c] = kCloser;
  t[0] = kStatementEnd;
  t[';'] = kStatementEnd;
  for (unsigned char c : {'\t', '\n', '\r', ' '}) t[c] = kWhiteSpace;
  t['&'] = kLogical;
  t['|'] = kLogical;
  return t;
}

// Modifier bits that the control mask can switch on.
constexpr std::array<unsigned char, 128> make_modifier_table() {
  std::array<unsigned char, 128> t{};
  t['('] = 1;
  for (unsigned char c : {'*', '+', '-', '/', '=', '^'}) t[c] = 2;
  t['\t'] = 4;
  t['&'] = 16;
  t['|'] = 16;
  return t;
}

// The class read through a modifier: "(" and the logical operators read as
// operators, the arithmetic operators and tab as no class.
unsigned char remapped_class(unsigned char modifier) {
  switch (modifier) {
    case 1:
    case 16: return kArithmetic;
    default: return kNoClass;
  }
}

}  // namespace

unsigned char char_class(unsigned c) {
  static constexpr auto kClasses = make_class_table();
  static constexpr auto kModifiers = make_modifier_table();
  if (c >= 128) return c == 0xA0 && frame::test_char_nbsp() ? kWhiteSpace : kOther;
  const unsigned char mask = frame::test_char_cntrl_mask();
  if (mask != 0 && (mask & kModifiers[c]) != 0) return remapped_class(kModifiers[c]);
  return kClasses[c];
}

bool is_space_slow(unsigned c) { return c == ' ' || c - 9u <= 4u || (c == 0xA0 && frame::test_char_nbsp()); }

int standalone_opener(unsigned c) {
  switch (c) {
    case '(': return 1;
    case '{': return 2;
    case '[': return 3;
    case '<': return frame::parenth_use_angle_brackets() != 0 ? 4 : 0;
    default: return 0;
  }
}

int standalone_closer(unsigned c) {
  switch (c) {
    case ')': return 1;
    case '}': return 2;
    case ']': return 3;
    case '>': return frame::parenth_use_angle_brackets() != 0 ? 4 : 0;
    default: return 0;
  }
}

}  // namespace kiln::text
