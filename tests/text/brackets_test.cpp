#include "text/text_test_support.h"

#include <gtest/gtest.h>

using namespace text_test;

TEST(FindEndParenthesis, ClosesTheAlreadyOpenPair) {
  int error = -9;
  const char text[] = "a(b)c)d";
  EXPECT_EQ(offset(text, KILNUTIL_find_end_parenthesis(text, &error)), 5);
  EXPECT_EQ(error, 0);
  EXPECT_EQ(KILNUTIL_find_end_parenthesis("a(b", &error), nullptr);
  EXPECT_EQ(error, 1);
  EXPECT_EQ(KILNUTIL_find_end_parenthesis("a')'b", &error), nullptr);
  EXPECT_EQ(error, 1);
  EXPECT_EQ(KILNUTIL_find_end_parenthesis("a'b)", &error), nullptr);
  EXPECT_EQ(error, 2);
  EXPECT_EQ(KILNUTIL_find_end_parenthesis("\"a\\\")\"", &error), nullptr);
  EXPECT_EQ(error, 1);
  const char quoted[] = "\")\")";
  EXPECT_EQ(offset(quoted, KILNUTIL_find_end_parenthesis(quoted, &error)), 3);
  const char braces[] = "{a}\"}\"}";
  EXPECT_EQ(offset(braces, KILNUTIL_find_end_curly_brace(braces, &error)), 6);
  EXPECT_EQ(KILNUTIL_find_end_curly_brace("\"", &error), nullptr);
  EXPECT_EQ(error, 3);
}

TEST(FindMatchingOpener, OpenerOfAGivenCloser) {
  const char text[] = "f(a, g(b)) + h(c)";
  EXPECT_EQ(offset(text, KILNUTIL_find_matching_opening_paranthesis_ex(text, text + 9, 0, nullptr)), 1);
  EXPECT_EQ(offset(text, KILNUTIL_find_matching_opening_paranthesis_ex(text, text + 16, 0, nullptr)), 14);
  // The inner closer is not the closer of a top-level pair.
  EXPECT_EQ(KILNUTIL_find_matching_opening_paranthesis_ex(text, text + 8, 0, nullptr), nullptr);
  EXPECT_EQ(KILNUTIL_find_matching_opening_paranthesis_ex(text, text + 3, 0, nullptr), nullptr);  // not a closer
}

TEST(FindMatchingOpener, ColonFlagFromTheFirstCloser) {
  const char label[] = "(a):x";
  int colon = 0;
  KILNUTIL_find_matching_opening_paranthesis_ex(label, label + 2, 0, &colon);
  EXPECT_EQ(colon, 1);
  const char subscript[] = "(a):[1]";
  colon = 0;
  KILNUTIL_find_matching_opening_paranthesis_ex(subscript, subscript + 2, 0, &colon);
  EXPECT_EQ(colon, 0);
  const char later[] = "(a)+(b):";
  colon = 0;
  EXPECT_EQ(offset(later, KILNUTIL_find_matching_opening_paranthesis_ex(later, later + 6, 0, &colon)), 4);
  EXPECT_EQ(colon, 0);  // decided by the first closer found
}

TEST(FindMatchingOpener, AngleBracketsNeedTheSetting) {
  const char text[] = "a<b>";
  EXPECT_EQ(KILNUTIL_find_matching_opening_paranthesis_ex(text, text + 3, 0, nullptr), nullptr);
  AngleBrackets on(true);
  EXPECT_EQ(offset(text, KILNUTIL_find_matching_opening_paranthesis_ex(text, text + 3, 0, nullptr)), 1);
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
