#include "text/text_test_support.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace text_test;

namespace {

std::vector<std::string> all_tokens(const std::string& s) {
  std::vector<char> dest(s.size() + 1);
  std::vector<std::string> tokens;
  const char* p = s.c_str();
  for (int guard = 0; *p != '\0' && guard < 100; ++guard) {
    p = KILNUTIL_next_token(dest.data(), p);
    tokens.emplace_back(dest.data());
  }
  return tokens;
}

using Tokens = std::vector<std::string>;

}  // namespace

TEST(NextToken, OperatorsDelimitButStarDoesNot) {
  EXPECT_EQ(all_tokens("a=b+1.5e-3*c"), (Tokens{"a", "=", "b", "+", "1.5e-3*c"}));
  EXPECT_EQ(all_tokens("x^2 / y"), (Tokens{"x", "^", "2", "/", "y"}));
  EXPECT_EQ(all_tokens("2E+5+e-1"), (Tokens{"2E+5", "+", "e", "-", "1"}));
  EXPECT_EQ(all_tokens("a*-b"), (Tokens{"a*", "-", "b"}));
}

TEST(NextToken, EnclosedTokenDropsItsPair) {
  char dest[32];
  const char text[] = "(x + 1) y";
  EXPECT_EQ(offset(text, KILNUTIL_next_token(dest, text)), 8);
  EXPECT_STREQ(dest, "x + 1");
  EXPECT_EQ(KILNUTIL_next_token_enclosed(), 1);
  EXPECT_EQ(all_tokens("\"a b\"+[1;2]"), (Tokens{"a b", "+", "1;2"}));
  EXPECT_EQ(all_tokens("((a)b) c"), (Tokens{"(a)b", "c"}));
  KILNUTIL_next_token(dest, "y");
  EXPECT_EQ(KILNUTIL_next_token_enclosed(), 0);
}

TEST(NextToken, BracketsLaterInTheToken) {
  EXPECT_EQ(all_tokens("f(a + b)+1"), (Tokens{"f(a + b)", "+", "1"}));
  EXPECT_EQ(all_tokens("m[1][2]"), (Tokens{"m[1]", "2"}));
  EXPECT_EQ(all_tokens("f(a[b)c]"), (Tokens{"f(a[b)", "c]"}));
  EXPECT_EQ(all_tokens("ab{c}"), (Tokens{"ab", "c"}));
  EXPECT_EQ(all_tokens("ab\"c d\""), (Tokens{"ab", "c d"}));
  EXPECT_EQ(all_tokens("f(a"), (Tokens{"f(a"}));
}

TEST(NextToken, SemicolonAndEndOfText) {
  char dest[16] = "zzz";
  const char text[] = "ab;cd";
  EXPECT_EQ(offset(text, KILNUTIL_next_token(dest, text)), 2);
  EXPECT_STREQ(dest, "ab");
  EXPECT_EQ(offset(text + 2, KILNUTIL_next_token(dest, text + 2)), 0);  // not consumed
  EXPECT_STREQ(dest, "");
  const char blank[] = "   ";
  EXPECT_EQ(offset(blank, KILNUTIL_next_token(dest, blank)), 3);
  EXPECT_STREQ(dest, "");
}

TEST(NextWord, WhiteSpaceOnly) {
  char dest[32];
  const char text[] = "  f(a b) \t\"x y\"";
  const char* p = KILNUTIL_next_word(dest, text);
  EXPECT_STREQ(dest, "f(a");
  p = KILNUTIL_next_word(dest, p);
  EXPECT_STREQ(dest, "b)");
  p = KILNUTIL_next_word(dest, p);
  EXPECT_STREQ(dest, "\"x");
  EXPECT_EQ(offset(text, p), 13);
  NoBreakSpace on(true);
  KILNUTIL_next_word(dest, "\xC3\xA9t\xC3\xA9\xC2\xA0x");
  EXPECT_STREQ(dest, "\xC3\xA9t\xC3\xA9");
}

TEST(GetNextWord, FirstOfSeveralSeparators) {
  char dest[32];
  const char text[] = "key = value";
  EXPECT_EQ(offset(text, KILNUTIL_get_next_word(dest, text, ":=")), 6);
  EXPECT_STREQ(dest, "key ");
  EXPECT_EQ(KILNUTIL_get_next_word(dest, "novalue", ":="), nullptr);
  EXPECT_STREQ(dest, "novalue");
}

TEST(NextTokenSep, SeparatorsTakenInListOrder) {
  char dest[32];
  const char text[] = "a;b,c";
  EXPECT_EQ(offset(text, KILNUTIL_next_token_sep(dest, text, ",;")), 4);
  EXPECT_STREQ(dest, "a;b");
  EXPECT_EQ(offset(text, KILNUTIL_next_token_sep(dest, text, ";,")), 2);
  EXPECT_STREQ(dest, "a");
  EXPECT_EQ(offset(text, KILNUTIL_next_token_sep(dest, text, "|")), 5);
  EXPECT_STREQ(dest, "a;b,c");
}

TEST(FindAnyOf, ExposedOrAnywhere) {
  const char text[] = "f(a;b)\"c:d\";e";
  EXPECT_EQ(offset(text, KILNUTIL_find_any_of_characters_in_str(text, ";:", 0)), 11);
  EXPECT_EQ(offset(text, KILNUTIL_find_any_of_characters_in_str(text, ";:", 0x10000)), 3);
  EXPECT_EQ(offset(text, KILNUTIL_find_any_of_characters_in_str(text, "(", 0)), 1);
  EXPECT_EQ(offset(text, KILNUTIL_find_any_of_characters_in_str(text, "\"", 0)), 6);
  EXPECT_EQ(KILNUTIL_find_any_of_characters_in_str("1e-5", "-", 0), nullptr);
  EXPECT_EQ(KILNUTIL_find_any_of_characters_in_str(text, "", 0), nullptr);
  EXPECT_EQ(KILNUTIL_find_any_of_characters_in_str(nullptr, ";", 0), nullptr);
  const char accented[] = "a(\xC3\xA9)\xC3\xA9";
  EXPECT_EQ(offset(accented, KILNUTIL_find_any_of_characters_in_str(accented, "\xC3\xA9", 0)), 5);
}
