#include "text/text_test_support.h"

#include <gtest/gtest.h>

using namespace text_test;

namespace {

std::ptrdiff_t find(const char* text, int c, unsigned mode) { return offset(text, KILNUTIL_strchr(text, c, mode)); }

}  // namespace

// Every case runs once walking bytes (Western code page) and once walking UTF-8.
TEST(StrChr, ModesInBothWalks) {
  struct Case {
    const char* text;
    int c;
    unsigned mode;
    std::ptrdiff_t expected;
  } cases[] = {
      // Exposed mode: one pair kind at a time ("[" is ordinary inside braces), same-kind nesting, no
      // escapes (the quote inside "(" is ordinary), single quotes and angle brackets not special, a
      // stray closer found at depth 0, a quote target found before it opens a pair.
      {"f(a,b),c", ',', 0, 6},
      {"\"a,b\",c", ',', 0, 5},
      {"(a,b", ',', 0, -1},
      {"{a,[b},c", ',', 0, 6},
      {"(a(b)c,d),e", ',', 0, 9},
      {"(a\\\",b\"),c", ',', 0, 8},
      {"'a,b',c", ',', 0, 2},
      {"<a,b>", ',', 0, 2},
      {"a)b,c", ')', 0, 1},
      {"x\"y\"", '"', 0, 1},
      {"abc", 0, 0, -1},
      {"abc", 0, 1, -1},
      {"", 'a', 0, -1},
      // Plain modes: forward, backward (3), after the leading run of c (4), within the trimmed text (0x10).
      {"f(a,b),c", ',', 1, 3},
      {"f(a,b),c", ',', 3, 6},
      {"abc", ',', 3, -1},
      {",,a,b", ',', 4, 3},
      {",,,", ',', 4, -1},
      {"  a b  ", ' ', 0x10, 3},
      {"  ab  ", ' ', 0x10, -1},
      {" ,a,", ',', 0x14, 3},
      // Either case (0x20).
      {"abCd", 'c', 1, -1},
      {"abCd", 'c', 0x21, 2},
      {"abcd", 'C', 0x21, 2},
      {"(c)C", 'c', 0x20, 3},
      {"a1b", '1', 0x21, 1},
  };
  for (unsigned cp : {1252u, 65001u}) {
    Restore code_page = string_process_code_page(cp);
    for (const Case& c : cases) EXPECT_EQ(find(c.text, c.c, c.mode), c.expected) << c.text << " mode " << c.mode;
    EXPECT_EQ(KILNUTIL_strchr(nullptr, 'a', 1), nullptr);
  }
}

TEST(StrChr, Utf8WalkKeepsMultiByteCharactersWhole) {
  const char text[] = "\xC3,a,b";  // 0xC3 swallows the next byte when walking UTF-8
  {
    Restore utf8 = string_process_code_page(65001);
    EXPECT_EQ(find(text, ',', 1), 3);
    EXPECT_EQ(find("\xC3\xA9x\xC3\xA9", 0xE9, 3), 3);
    EXPECT_EQ(find("\xC3\xA9", 0xC9, 0x21), 0);  // the other case of a non-ASCII letter
  }
  for (unsigned cp : {1200u, 1254u}) {  // the ends of the byte-walking range
    Restore bytes = string_process_code_page(cp);
    EXPECT_EQ(find(text, ',', 1), 1) << cp;
  }
  Restore beyond = string_process_code_page(1255);
  EXPECT_EQ(find(text, ',', 1), 3);
  Restore western = string_process_code_page(1252);
  EXPECT_EQ(find(text, ',', 1), 1);
  EXPECT_EQ(find("\xC3\xA9", 0xE9, 1), -1);  // bytes, not characters
}

TEST(StrChrReverse, LastAtOrBeforeFrom) {
  const char text[] = "a,b,c,d";
  EXPECT_EQ(offset(text, KILNUTIL_strchr_reverse(text, ',', nullptr)), 5);
  EXPECT_EQ(offset(text, KILNUTIL_strchr_reverse(text, ',', text + 4)), 3);
  EXPECT_EQ(offset(text, KILNUTIL_strchr_reverse(text, ',', text + 3)), 3);
  EXPECT_EQ(offset(text, KILNUTIL_strchr_reverse(text, ',', text)), -1);
  EXPECT_EQ(offset(text, KILNUTIL_strchr_reverse(text, '(', nullptr)), -1);
  EXPECT_EQ(KILNUTIL_strchr_reverse("", ',', nullptr), nullptr);
}
