#include "text/text_test_support.h"

#include <gtest/gtest.h>

#include <string>

using namespace text_test;

TEST(StrInside, Cases) {
  struct Case {
    const char* text;
    unsigned options;
    const char* inside;
    int kind;
  } cases[] = {
      {"(a+b)*c", 0, "(a+b)*c", 0},
      {"\"abc\"", 0, "abc", 3},
      {"(a+b)  ", 0, "a+b", 1},
      {"{x}", 0, "x", 2},
      {"[x]", 0, "x", 4},
      {"<a>", 0, "<a>", 0},
      {"(a)(b)", 0, "(a)(b)", 0},
      {"((a)(b))", 0, "(a)(b)", 1},
      {"  (a)", 0, "  (a)", -2},
      {"  (a)", 1, "a", 1},
      {"(a+b)*c", 2, "a+b", 1},            // the closer need not be last
      {"(a\")", 0x1000, "a\"", -1},        // the quote hides the closer from the search
      {"a+b)", 0, "a+b)", -2},             // a closer without opener
      {"((a))", 0x01000000 | 2, "(a", 1},  // search flags in the top byte: "(" no bracket, the first ")" closes
  };
  for (const Case& c : cases) {
    Text t(c.text);
    int kind = 99;
    EXPECT_STREQ(KILNUTIL_str_inside_ex(t.get(), c.options, &kind), c.inside) << c.text;
    EXPECT_EQ(kind, c.kind) << c.text;
    Text again(c.text);
    EXPECT_STREQ(KILNUTIL_str_inside(again.get(), c.options), c.inside) << c.text;  // the kind left out
  }
}

// The two short forms are the general one with options 0 and 0x1001.
TEST(RemoveQuotes, ShortFormsAreTheGeneralOne) {
  using Strip = char* (*)(char*, int*);
  const struct {
    Strip short_form;
    unsigned options;
  } forms[] = {{KILNUTIL_text_inside_remove_quotes, 0}, {KILNUTIL_text_inside_remove_quotes_even_mismatch, 0x1001}};
  for (const char* text : {"  ( \"[x]\" ) ", "abc", "((a\")", "{(a)}b", "(a", "\"\"", "[ (x) ]"}) {
    for (const auto& f : forms) {
      Text a(text), b(text);
      int removed_a = 7, removed_b = 9;
      EXPECT_STREQ(KILNUTIL_text_inside_remove_quotes_ex(a.get(), &removed_a, f.options),
                   f.short_form(b.get(), &removed_b))
          << text << " " << f.options;
      EXPECT_EQ(removed_a, removed_b) << text << " " << f.options;
    }
  }
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
  struct Case {
    const char* text;
    char sep, quote;
    int remove;
    const char* term;
    long next;
  } cases[] = {
      {"  \"a,b\",c", ',', '"', 1, "a,b", 8},
      {"ab,c", ',', '"', 1, "ab", 3},
      {"last", ',', '"', 1, "last", -1},
      {"\"say \"\"hi\"\"\",x", ',', '"', 1, "say \"\"hi\"\"", 13},
      {"\"say \"\"hi\"\"\",x", ',', '"', 0, "\"say \"\"hi\"\"\"", 13},
      {"\"\"a,b", ',', '"', 1, "\"a", 4},  // an even run of quotes: not quoted, the separator ends it
      {"ab\",c", ',', '"', 1, "ab", 4},    // unquoted, a quote right before the separator still closes it
      {"'a;b';c", ';', '\'', 0, "'a;b'", 6},
  };
  for (const Case& c : cases) {
    char dest[64];
    const bool plain = c.quote == '"' && c.remove == 1;  // the short form's defaults
    const char* next = plain ? KILNUTIL_next_quoted_term(dest, c.text, c.sep)
                             : KILNUTIL_next_quoted_term_ex_ex(dest, c.text, c.sep, c.quote, c.remove, -1);
    EXPECT_EQ(offset(c.text, next), c.next) << c.text;
    EXPECT_STREQ(dest, c.term) << c.text;
  }
}

TEST(QuotedTerm, SizeBoundsTheCopy) {
  char dest[4] = {'x', 'x', 'x', 'x'};
  KILNUTIL_next_quoted_term_ex_ex(dest, "abcdef,g", ',', '"', 1, 4);
  EXPECT_STREQ(dest, "abc");
  char one[1] = {'x'};
  KILNUTIL_next_quoted_term_ex_ex(one, "abc", ',', '"', 1, 1);
  EXPECT_EQ(one[0], '\0');
}
