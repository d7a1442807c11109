#include "text/text_test_support.h"

#include <gtest/gtest.h>

using namespace text_test;

TEST(FindEnd, ClosesTheAlreadyOpenPair) {
  struct Case {
    const char* text;
    bool curly;
    long expected;
    int error;
  } cases[] = {
      {"a(b)c)d", false, 5, 0}, {"a(b", false, -1, 1},   {"a')'b", false, -1, 1},   {"\"a\\\")\"", false, -1, 1},
      {"a'b)", false, -1, 2},   {"\")\")", false, 3, 0}, {"{a}\"}\"}", true, 6, 0}, {"\"", true, -1, 3},
  };
  for (const Case& c : cases) {
    int error = -9;
    const char* hit =
        c.curly ? KILNUTIL_find_end_curly_brace(c.text, &error) : KILNUTIL_find_end_parenthesis(c.text, &error);
    EXPECT_EQ(offset(c.text, hit), c.expected) << c.text;
    EXPECT_EQ(error, c.error) << c.text;
  }
}

TEST(FindMatchingOpener, OpenerOfAGivenCloserAndTheColonFlag) {
  struct Case {
    const char* text;
    long closer;
    long expected;
    int colon;
  } cases[] = {
      {"f(a, g(b)) + h(c)", 9, 1, 0},
      {"f(a, g(b)) + h(c)", 16, 14, 0},
      {"f(a, g(b)) + h(c)", 8, -1, 0},  // an inner closer closes no top-level pair
      {"f(a, g(b)) + h(c)", 3, -1, 0},  // not a closer
      {"a<b>", 3, -1, 0},               // "<" ">" only with the setting
      {"(a):x", 2, 0, 1},
      {"(a):[1]", 2, 0, 0},
      {"(a)+(b):", 6, 4, 0},  // decided by the first closer found
  };
  for (const Case& c : cases) {
    int colon = 0;
    EXPECT_EQ(offset(c.text, KILNUTIL_find_matching_opening_paranthesis_ex(c.text, c.text + c.closer, 0, &colon)),
              c.expected)
        << c.text;
    EXPECT_EQ(colon, c.colon) << c.text;
  }
  Restore on = angle_brackets(true);
  const char angle[] = "a<b>";
  EXPECT_EQ(offset(angle, KILNUTIL_find_matching_opening_paranthesis_ex(angle, angle + 3, 0, nullptr)), 1);
}

namespace {

// The mismatch counters by letter: 'p' parentheses, 'q' quotes and all pairs,
// or the opener of a pair for the single-pair counter.
int mismatch(char counter, const char* text, char** position) {
  switch (counter) {
    case 'p': return KILNUTIL_count_parenthesis_mismatch_ex(text, position, 0);
    case 'q': return KILNUTIL_count_quote_mismatch(text, position);
    default: return KILNUTIL_count_bracket_mismatch(text, position, counter, counter == '[' ? ']' : '}', 0);
  }
}

}  // namespace

TEST(Mismatch, CodesAndPositions) {
  struct Case {
    char counter;
    const char* text;
    int code;
    long position;
  } cases[] = {
      {'p', "(a)", 0, -1},
      {'p', "(a", 2, 0},
      {'p', "a)", 1, 1},
      {'p', "(a))", 1, 3},
      {'p', "((a)", 2, 0},
      {'p', "(a(b", 8, 2},
      {'p', "(a(b(c", 8, 4},
      {'p', "(a)b)", 1, 4},
      {'p', "(a(b)c))", 1, 7},
      {'p', "((a", 8, 1},
      {'p', "(a(b)", 2, 0},
      {'p', "( \")\"", 2, 0},
      {'p', "\")\"(a)", 0, -1},
      {'p', "(a\")\"", 2, 0},
      {'p', "(x)) (", 1, 3},
      {'p', "( a)) ", 1, 4},
      {'q', "f(a,[b],{c})", 0, -1},
      {'q', "a)", 1, 1},
      {'q', "(a", 2, 0},
      {'q', "'abc", 2, 0},
      {'q', "x\"abc", 3, 1},
      {'q', "(a) ]", 1, 4},
      {'q', "(a ]", 4, 0},
      {'q', "((a ]", 4, 1},
      {'q', "((a", 8, 1},
      {'q', "(\"a", 8, 1},
      {'q', "\"(\"", 0, -1},
      {'q', "[a\"]\"]", 0, -1},
      // The opener is unmatched because of its own contents; the count of the rest finds the stray closer.
      {'[', "[a ]]", 1, 4},
      {'{', "{{a}", 2, 0},
  };
  for (const Case& c : cases) {
    char* position = nullptr;
    EXPECT_EQ(mismatch(c.counter, c.text, &position), c.code) << c.counter << " " << c.text;
    EXPECT_EQ(offset(c.text, position), c.position) << c.counter << " " << c.text;
  }
}
