#include "text/text_test_support.h"

#include <gtest/gtest.h>

#include <string>

using namespace text_test;

namespace {

struct Stripped {
  std::string text;
  int kind;
};

Stripped str_inside(const std::string& s, unsigned options) {
  Text t(s);
  int kind = 99;
  const char* inner = KILNUTIL_str_inside_ex(t.get(), options, &kind);
  return {inner, kind};
}

}  // namespace

TEST(StrInside, OnePair) {
  EXPECT_EQ(str_inside("(a+b)*c", 0).text, "(a+b)*c");
  EXPECT_EQ(str_inside("(a+b)*c", 0).kind, 0);
  EXPECT_EQ(str_inside("\"abc\"", 0).text, "abc");
  EXPECT_EQ(str_inside("\"abc\"", 0).kind, 3);
  EXPECT_EQ(str_inside("(a+b)  ", 0).text, "a+b");
  EXPECT_EQ(str_inside("(a+b)", 0).kind, 1);
  EXPECT_EQ(str_inside("{x}", 0).kind, 2);
  EXPECT_EQ(str_inside("[x]", 0).kind, 4);
  EXPECT_EQ(str_inside("(a)(b)", 0).text, "(a)(b)");
  EXPECT_EQ(str_inside("((a)(b))", 0).text, "(a)(b)");
  EXPECT_EQ(str_inside("  (a)", 0).text, "  (a)");
  EXPECT_EQ(str_inside("  (a)", 1).text, "a");
}

TEST(StrInside, CloserNotLastAndMissingCloser) {
  Stripped s = str_inside("(a+b)*c", 2);
  EXPECT_EQ(s.text, "a+b");
  EXPECT_EQ(s.kind, 1);
  s = str_inside("(a\")", 0x1000);  // the quote hides the closer from the search
  EXPECT_EQ(s.text, "a\"");
  EXPECT_EQ(s.kind, -1);
  s = str_inside("a+b)", 0);
  EXPECT_EQ(s.text, "a+b)");
  EXPECT_EQ(s.kind, -2);
  s = str_inside("<a>", 0);
  EXPECT_EQ(s.kind, 0);
  // The top byte passes search flags: without parentheses as brackets the
  // first ")" closes.
  s = str_inside("((a))", 0x01000000 | 2);
  EXPECT_EQ(s.text, "(a");
}

TEST(RemoveQuotes, Repeatedly) {
  Text t("  ( \"[x]\" ) ");
  int removed = 5;
  EXPECT_STREQ(KILNUTIL_text_inside_remove_quotes(t.get(), &removed), "x");
  EXPECT_EQ(removed, 1);
  Text plain("abc");
  EXPECT_STREQ(KILNUTIL_text_inside_remove_quotes(plain.get(), &removed), "abc");
  EXPECT_EQ(removed, 0);
  Text odd("((a\")");
  EXPECT_STREQ(KILNUTIL_text_inside_remove_quotes(odd.get(), &removed), "((a\")");
  Text odd2("((a\")");
  EXPECT_STREQ(KILNUTIL_text_inside_remove_quotes_even_mismatch(odd2.get(), &removed), "(a\"");
  EXPECT_EQ(removed, 0);  // a cut closer is not a removed pair
}

TEST(QuotedTerm, CopiesAndReturnsThePositionBehindTheSeparator) {
  char dest[64];
  const char text[] = "  \"a,b\",c";
  EXPECT_EQ(offset(text, KILNUTIL_next_quoted_term(dest, text, ',')), 8);
  EXPECT_STREQ(dest, "a,b");
  const char plain[] = "ab,c";
  EXPECT_EQ(offset(plain, KILNUTIL_next_quoted_term(dest, plain, ',')), 3);
  EXPECT_STREQ(dest, "ab");
  EXPECT_EQ(KILNUTIL_next_quoted_term(dest, "last", ','), nullptr);
  EXPECT_STREQ(dest, "last");
}

TEST(QuotedTerm, DoubledQuotesAndKeptQuotes) {
  char dest[64];
  const char doubled[] = "\"say \"\"hi\"\"\",x";
  KILNUTIL_next_quoted_term_ex_ex(dest, doubled, ',', '"', 1, -1);
  EXPECT_STREQ(dest, "say \"\"hi\"\"");
  KILNUTIL_next_quoted_term_ex_ex(dest, doubled, ',', '"', 0, -1);
  EXPECT_STREQ(dest, "\"say \"\"hi\"\"\"");
  // An even run of quotes: the term is not quoted, so the separator ends it.
  const char empty_quoted[] = "\"\"a,b";
  EXPECT_EQ(offset(empty_quoted, KILNUTIL_next_quoted_term_ex_ex(dest, empty_quoted, ',', '"', 1, -1)), 4);
  EXPECT_STREQ(dest, "\"a");
  // Unquoted, a quote right before the separator still closes the term.
  const char inner[] = "ab\",c";
  EXPECT_EQ(offset(inner, KILNUTIL_next_quoted_term_ex_ex(dest, inner, ',', '"', 1, -1)), 4);
  EXPECT_STREQ(dest, "ab");
  const char single[] = "'a;b';c";
  EXPECT_EQ(offset(single, KILNUTIL_next_quoted_term_ex_ex(dest, single, ';', '\'', 0, -1)), 6);
  EXPECT_STREQ(dest, "'a;b'");
}

TEST(QuotedTerm, SizeBoundsTheCopy) {
  char dest[4] = {'x', 'x', 'x', 'x'};
  KILNUTIL_next_quoted_term_ex_ex(dest, "abcdef,g", ',', '"', 1, 4);
  EXPECT_STREQ(dest, "abc");
  char one[1] = {'x'};
  KILNUTIL_next_quoted_term_ex_ex(one, "abc", ',', '"', 1, 1);
  EXPECT_EQ(one[0], '\0');
}
