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
      {"a(b)c)d", false, 5, 0}, {"a(b", false, -1, 1},  {"a')'b", false, -1, 1},  {"\"a\\\")\"", false, -1, 1},
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
    int colon;  // -1: not looked at
  } cases[] = {
      {"f(a, g(b)) + h(c)", 9, 1, -1}, {"f(a, g(b)) + h(c)", 16, 14, -1},
      {"f(a, g(b)) + h(c)", 8, -1, -1},  // an inner closer closes no top-level pair
      {"f(a, g(b)) + h(c)", 3, -1, -1},  // not a closer
      {"a<b>", 3, -1, -1},               // "<" ">" only with the setting
      {"(a):x", 2, 0, 1}, {"(a):[1]", 2, 0, 0},
      {"(a)+(b):", 6, 4, 0},  // decided by the first closer found
  };
  for (const Case& c : cases) {
    int colon = 0;
    EXPECT_EQ(offset(c.text, KILNUTIL_find_matching_opening_paranthesis_ex(c.text, c.text + c.closer, 0, &colon)),
              c.expected) << c.text;
    if (c.colon >= 0) {
      EXPECT_EQ(colon, c.colon) << c.text;
    }
  }
  Restore on = angle_brackets(true);
  const char angle[] = "a<b>";
  EXPECT_EQ(offset(angle, KILNUTIL_find_matching_opening_paranthesis_ex(angle, angle + 3, 0, nullptr)), 1);
}

TEST(BracketMismatch, Codes) {
  struct Case {
    const char* text;
    int code;
    long position;
  } cases[] = {
      {"(a)", 0, -1},    {"(a", 2, 0},        {"a)", 1, 1},        {"(a))", 1, 3},   {"((a)", 2, 0},
      {"(a(b", 8, 2},    {"(a(b(c", 8, 4},    {"(a)b)", 1, 4},     {"(a(b)c))", 1, 7},
      {"((a", 8, 1},     {"(a(b)", 2, 0},     {"( \")\"", 2, 0},   {"\")\"(a)", 0, -1},
      {"(a\")\"", 2, 0}, {"(x)) (", 1, 3},   {"( a)) ", 1, 4},
  };
  for (const Case& c : cases) {
    char* position = nullptr;
    EXPECT_EQ(KILNUTIL_count_parenthesis_mismatch_ex(c.text, &position, 0), c.code) << c.text;
    EXPECT_EQ(offset(c.text, position), c.position) << c.text;
  }
}

TEST(BracketMismatch, StrayCloserAfterAnOpenOne) {
  // "(" is unmatched because of its own contents ("[" never closes); the
  // count of the rest finds the stray ")" and reports it at the opener.
  char* position = nullptr;
  const char text[] = "[a ]]";
  EXPECT_EQ(KILNUTIL_count_bracket_mismatch(text, &position, '[', ']', 0), 1);
  EXPECT_EQ(offset(text, position), 4);
  const char other[] = "{{a}";
  EXPECT_EQ(KILNUTIL_count_bracket_mismatch(other, &position, '{', '}', 0), 2);
  EXPECT_EQ(offset(other, position), 0);
}

TEST(QuoteMismatch, Codes) {
  struct Case {
    const char* text;
    int code;
    long position;
  } cases[] = {
      {"f(a,[b],{c})", 0, -1}, {"a)", 1, 1},        {"(a", 2, 0},        {"'abc", 2, 0},
      {"x\"abc", 3, 1},        {"(a) ]", 1, 4},     {"(a ]", 4, 0},      {"((a ]", 4, 1},
      {"((a", 8, 1},           {"(\"a", 8, 1},      {"\"(\"", 0, -1},    {"[a\"]\"]", 0, -1},
  };
  for (const Case& c : cases) {
    char* position = nullptr;
    EXPECT_EQ(KILNUTIL_count_quote_mismatch(c.text, &position), c.code) << c.text;
    EXPECT_EQ(offset(c.text, position), c.position) << c.text;
  }
}
