#include "text/text_test_support.h"

#include <gtest/gtest.h>

using namespace text_test;

namespace {

// Each test runs once walking bytes (Western code page) and once walking UTF-8.
class StrChr : public ::testing::TestWithParam<unsigned> {
 protected:
  StringProcessCodePage code_page{GetParam()};
};

long find(const char* text, int c, unsigned mode) { return offset(text, KILNUTIL_strchr(text, c, mode)); }

}  // namespace

TEST_P(StrChr, ExposedModeSkipsOnePairKindAtATime) {
  EXPECT_EQ(find("f(a,b),c", ',', 0), 6);
  EXPECT_EQ(find("\"a,b\",c", ',', 0), 5);
  EXPECT_EQ(find("{a,[b},c", ',', 0), 6);         // "[" is ordinary inside braces
  EXPECT_EQ(find("(a(b)c,d),e", ',', 0), 9);      // same-kind nesting
  EXPECT_EQ(find("(a\\\",b\"),c", ',', 0), 8);   // no escapes; the quote inside "(" is ordinary
  EXPECT_EQ(find("'a,b',c", ',', 0), 2);          // single quotes are not special
  EXPECT_EQ(find("(a,b", ',', 0), -1);
  EXPECT_EQ(find("a)b,c", ')', 0), 1);            // a stray closer is found at depth 0
  EXPECT_EQ(find("x\"y\"", '"', 0), 1);           // the target itself is found before it opens a pair
  EXPECT_EQ(find("<a,b>", ',', 0), 2);            // angle brackets are no pair here
}

TEST_P(StrChr, NoCharacterAndNoTextFindNothing) {
  EXPECT_EQ(find("abc", 0, 0), -1);
  EXPECT_EQ(find("abc", 0, 1), -1);
  EXPECT_EQ(KILNUTIL_strchr(nullptr, 'a', 1), nullptr);
  EXPECT_EQ(find("", 'a', 0), -1);
}

TEST_P(StrChr, PlainModes) {
  EXPECT_EQ(find("f(a,b),c", ',', 1), 3);
  EXPECT_EQ(find("f(a,b),c", ',', 3), 6);     // backward: the last one
  EXPECT_EQ(find("abc", ',', 3), -1);
  EXPECT_EQ(find(",,a,b", ',', 4), 3);        // after the leading run of c
  EXPECT_EQ(find(",,,", ',', 4), -1);
  EXPECT_EQ(find("  a b  ", ' ', 0x10), 3);   // within the trimmed text
  EXPECT_EQ(find("  ab  ", ' ', 0x10), -1);
  EXPECT_EQ(find(" ,a,", ',', 0x14), 3);      // trimmed, then past the run of commas
}

TEST_P(StrChr, EitherCase) {
  EXPECT_EQ(find("abCd", 'c', 1), -1);
  EXPECT_EQ(find("abCd", 'c', 0x21), 2);
  EXPECT_EQ(find("abcd", 'C', 0x21), 2);
  EXPECT_EQ(find("(c)C", 'c', 0x20), 3);
  EXPECT_EQ(find("a1b", '1', 0x21), 1);
}

INSTANTIATE_TEST_SUITE_P(WalkBytesOrUtf8, StrChr, ::testing::Values(1252u, 65001u));

TEST(StrChrWalk, Utf8WalkKeepsMultiByteCharactersWhole) {
  // 0xC3 swallows the next byte as its continuation when walking UTF-8.
  const char text[] = "\xC3,a,b";
  {
    StringProcessCodePage utf8(65001);
    EXPECT_EQ(find(text, ',', 1), 3);
    EXPECT_EQ(find("\xC3\xA9x\xC3\xA9", 0xE9, 3), 3);
    EXPECT_EQ(find("\xC3\xA9", 0xC9, 0x21), 0);   // the other case of a non-ASCII letter
  }
  StringProcessCodePage western(1252);
  EXPECT_EQ(find(text, ',', 1), 1);
  EXPECT_EQ(find("\xC3\xA9", 0xE9, 1), -1);       // bytes, not characters
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
