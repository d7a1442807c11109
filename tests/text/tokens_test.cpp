#include "text/text_test_support.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace text_test;

namespace {

using Tokens = std::vector<std::string>;

Tokens all_tokens(const std::string& s) {
  std::vector<char> dest(s.size() + 1);
  Tokens tokens;
  const char* p = s.c_str();
  for (int guard = 0; *p != '\0' && guard < 100; ++guard) {
    p = KILNUTIL_next_token(dest.data(), p);
    tokens.emplace_back(dest.data());
  }
  return tokens;
}

}  // namespace

TEST(NextToken, Sequences) {
  struct Case {
    const char* text;
    Tokens tokens;
  } cases[] = {
      // Operators delimit, "*" does not; a sign after a digit and "e" belongs to the number.
      {"a=b+1.5e-3*c", {"a", "=", "b", "+", "1.5e-3*c"}},
      {"x^2 / y", {"x", "^", "2", "/", "y"}},
      {"2E+5+e-1", {"2E+5", "+", "e", "-", "1"}},
      {"a*-b", {"a*", "-", "b"}},
      // A token that is one enclosed section loses its pair.
      {"\"a b\"+[1;2]", {"a b", "+", "1;2"}},
      {"((a)b) c", {"(a)b", "c"}},
      // Brackets later in the token: "(" "[" are kept, "{" and a quote end it first.
      {"f(a + b)+1", {"f(a + b)", "+", "1"}},
      {"m[1][2]", {"m[1]", "2"}},
      {"f(a[b)c]", {"f(a[b)", "c]"}},
      {"ab{c}", {"ab", "c"}},
      {"ab\"c d\"", {"ab", "c d"}},
      {"f(a", {"f(a"}},
  };
  for (const Case& c : cases) EXPECT_EQ(all_tokens(c.text), c.tokens) << c.text;
}

TEST(NextToken, EnclosedFlagSemicolonAndEnd) {
  char dest[32];
  const char text[] = "(x + 1) y";
  EXPECT_EQ(offset(text, KILNUTIL_next_token(dest, text)), 8);
  EXPECT_STREQ(dest, "x + 1");
  EXPECT_EQ(KILNUTIL_next_token_enclosed(), 1);
  const char semicolon[] = "ab;cd";
  EXPECT_EQ(offset(semicolon, KILNUTIL_next_token(dest, semicolon)), 2);
  EXPECT_EQ(KILNUTIL_next_token_enclosed(), 0);
  EXPECT_EQ(offset(semicolon, KILNUTIL_next_token(dest, semicolon + 2)), 2);  // not consumed
  EXPECT_STREQ(dest, "");
  const char blank[] = "   ";
  EXPECT_EQ(offset(blank, KILNUTIL_next_token(dest, blank)), 3);
  EXPECT_STREQ(dest, "");
}

TEST(Words, WhiteSpaceSeparatorsAndSeparatorOrder) {
  char dest[32];
  const char text[] = "  f(a b) \t\"x y\"";
  const char* p = KILNUTIL_next_word(dest, KILNUTIL_next_word(dest, text));
  EXPECT_STREQ(dest, "b)");  // no brackets or quotes are considered
  EXPECT_EQ(offset(text, KILNUTIL_next_word(dest, p)), 13);
  EXPECT_STREQ(dest, "\"x");
  Restore nbsp = no_break_space(true);
  KILNUTIL_next_word(dest, "\xC3\xA9t\xC3\xA9\xC2\xA0x");
  EXPECT_STREQ(dest, "\xC3\xA9t\xC3\xA9");
  const char pair[] = "key = value";
  EXPECT_EQ(offset(pair, KILNUTIL_get_next_word(dest, pair, ":=")), 6);
  EXPECT_STREQ(dest, "key ");
  EXPECT_EQ(KILNUTIL_get_next_word(dest, "novalue", ":="), nullptr);
  EXPECT_STREQ(dest, "novalue");
  const char list[] = "a;b,c";  // the first separator of the list that occurs is used
  EXPECT_EQ(offset(list, KILNUTIL_next_token_sep(dest, list, ",;")), 4);
  EXPECT_STREQ(dest, "a;b");
  EXPECT_EQ(offset(list, KILNUTIL_next_token_sep(dest, list, ";,")), 2);
  EXPECT_EQ(offset(list, KILNUTIL_next_token_sep(dest, list, "|")), 5);
  EXPECT_STREQ(dest, "a;b,c");
}

TEST(FindAnyOf, ExposedOrAnywhere) {
  struct Case {
    const char* text;
    const char* set;
    unsigned flags;
    long expected;
  } cases[] = {
      {"f(a;b)\"c:d\";e", ";:", 0, 11},
      {"f(a;b)\"c:d\";e", ";:", 0x10000, 3},
      {"f(a;b)\"c:d\";e", "(", 0, 1},
      {"f(a;b)\"c:d\";e", "\"", 0, 6},
      {"1e-5", "-", 0, -1},
      {"abc", "", 0, -1},
      {"a(\xC3\xA9)\xC3\xA9", "\xC3\xA9", 0, 5},
  };
  for (const Case& c : cases)
    EXPECT_EQ(offset(c.text, KILNUTIL_find_any_of_characters_in_str(c.text, c.set, c.flags)), c.expected) << c.text;
  EXPECT_EQ(KILNUTIL_find_any_of_characters_in_str(nullptr, ";", 0), nullptr);
}
