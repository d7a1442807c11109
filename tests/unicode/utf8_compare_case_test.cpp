#include <kilnutil/unicode.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace {

TEST(Utf8Compare, OrdersByUtf16CodeUnits) {
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_Compare("abc", "abc"), 0);
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_Compare("abc", "abd"), -1);
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_Compare("abd", "abc"), 1);
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_Compare("ab", "abc"), -1);
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_Compare("", ""), 0);
  // U+FF21 sorts after U+1F600: FF21 is above the high surrogate D83D.
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_Compare("\xEF\xBC\xA1", "\xF0\x9F\x98\x80"), 1);
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_Compare("B", "a"), -1);  // no case folding
}

TEST(Utf8Compare, LongStringsGoThroughTheHeap) {
  std::string a(10000, 'x');
  std::string b = a;
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_Compare(a.c_str(), b.c_str()), 0);
  b.back() = 'y';
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_Compare(a.c_str(), b.c_str()), -1);
  std::string upper(10000, 'X');
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_CompareI(a.c_str(), upper.c_str()), 0);
}

TEST(Utf8Compare, IgnoringCase) {
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_CompareI("Hello", "hELLO"), 0);
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_CompareI("\xC3\x89t\xC3\xA9", "\xC3\xA9T\xC3\x89"), 0);  // accented letters
  EXPECT_LT(KILNUTIL_UNICODE_UTF8_CompareI("apple", "BANANA"), 0);
  EXPECT_GT(KILNUTIL_UNICODE_UTF8_CompareI("Zebra", "apple"), 0);
}

TEST(Utf8Case, WholeStringInPlace) {
  char text[] =
      "Stra\xC3\x9F"
      "e \xC3\xA9t\xC3\xA9 abc";
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_to_upper_or_to_lower(text, 0, 0, 0), text);
  EXPECT_STREQ(text,
               "STRA\xC3\x9F"
               "E \xC3\x89T\xC3\x89 ABC");
  KILNUTIL_UNICODE_UTF8_to_upper_or_to_lower(text, 1, 0, -1);
  EXPECT_STREQ(text,
               "stra\xC3\x9F"
               "e \xC3\xA9t\xC3\xA9 abc");
}

TEST(Utf8Case, OnlyTheFirstLenBytes) {
  char text[] = "abcdef";
  KILNUTIL_UNICODE_UTF8_to_upper_or_to_lower(text, 0, 0, 3);
  EXPECT_STREQ(text, "ABCdef");
  KILNUTIL_UNICODE_UTF8_to_upper_or_to_lower(text, 1, 0, 6);  // len = the length: the whole string
  EXPECT_STREQ(text, "abcdef");
}

TEST(Utf8Case, NeverGrowsTheString) {
  // U+0250 (2 bytes) upper-cases to U+2C6F (3 bytes): the result would not fit.
  char text[] = "\xC9\x90";
  KILNUTIL_UNICODE_UTF8_to_upper_or_to_lower(text, 0, 0, 0);
  EXPECT_EQ(std::string(text).size(), 2u);
  EXPECT_STREQ(text, "\xC9\x90");
}

TEST(Utf8Case, OneCharacterPassedInPlaceOfThePointer) {
  auto as_pointer = [](std::uintptr_t c) { return reinterpret_cast<char*>(c); };
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(KILNUTIL_UNICODE_UTF8_to_upper_or_to_lower(as_pointer('a'), 0, 1, 0)),
            static_cast<std::uintptr_t>('A'));
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(KILNUTIL_UNICODE_UTF8_to_upper_or_to_lower(as_pointer(0xC9), 1, 1, 0)),
            0xE9u);
  // With the character flag clear, a real string is converted as a string.
  char text[] = "x";
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_to_upper_or_to_lower(text, 0, 1, 0), text);
  EXPECT_STREQ(text, "X");
}

}  // namespace
