// The narrow/wide token templates: the narrow and wide instances giving the
// same answers on the same text, then fixed cases.
#include <kilnutil/frame.h>
#include <kilnutil/text.h>
#include <kilnutil/unicode.h>

#include "platform/case_mapping.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

namespace {

std::basic_string<KILN_WCHAR> wide(const std::string& utf8) {
  KILN_WCHAR buf[128] = {};
  KILNUTIL_UNICODE_UTF8_to_UTF16_buffers_ex(buf, 127, utf8.c_str(), -1);
  return buf;
}

std::string narrow(const char* s) { return s; }
std::string narrow(const KILN_WCHAR* w) {
  char buf[256] = {};
  KILNUTIL_UNICODE_UTF16_to_UTF8_buffers(buf, sizeof buf, w);
  return buf;
}

// Character index of a narrow position, and of a wide one (basic plane).
int index_of(const char* begin, const char* p) {
  if (p == nullptr) return -1;
  int n = 0;
  for (const char* q = begin; q < p; q = KILNUTIL_UNICODE_UTF8_adv_str(q)) ++n;
  return n;
}
int index_of(const KILN_WCHAR* begin, const KILN_WCHAR* p) { return p == nullptr ? -1 : static_cast<int>(p - begin); }

template <class Ch>
using Text = std::basic_string<Ch>;

// Every template over one text, reported in character terms.
template <class Ch>
std::vector<std::string> results(Text<Ch> text) {
  std::vector<std::string> r;
  auto pos = [&](const Ch* p) { return std::to_string(index_of(text.c_str(), p)); };
  for (const int target : std::initializer_list<int>{0, ',', ';', '\n', '"', '('}) {
    int status = 7;
    const std::string hit = pos(KILNUTILT_ExposedCharPos(text.c_str(), target, 0x40, &status));
    r.push_back(hit + "/" + std::to_string(status));
    r.push_back(pos(KILNUTILT_ExposedCharPos(text.c_str(), target, 0x18000040, nullptr)));
    r.push_back(pos(KILNUTILT_StrChar(text.c_str(), target, 0)));
    r.push_back(pos(KILNUTILT_StrChar(text.c_str(), target, 1)));
  }
  r.push_back(std::to_string(KILNUTILT_LineCount(text.c_str())));
  r.push_back(std::to_string(KILNUTILT_WordsInLine(text.c_str())));
  r.push_back(std::to_string(KILNUTILT_num_words_in_lines(text.c_str(), 4)));
  for (const int sep : std::initializer_list<int>{0, -1, '\t', ';'}) {
    Text<Ch> copy = text;
    r.push_back(std::to_string(KILNUTILT_FirstLineTokens(copy.data(), sep)));
    r.push_back(std::to_string(KILNUTILT_CountConsistenTokens(copy.data(), sep, 0, 3)));
    EXPECT_EQ(copy, text);  // restored
    for (const int max : {-1, 60000, 2}) {
      Text<Ch> cut = text;
      Ch* list[64] = {};
      const int n = KILNUTILT_SeparateStrToTokenList(cut.data(), list, sep, max);
      r.push_back(std::to_string(n));
      for (int i = 0; i < n && i < 64 && list[i] != nullptr; ++i) r.push_back(narrow(list[i]));
    }
  }
  Text<Ch> copy = text;
  r.push_back(std::to_string(KILNUTILT_FindSeparator(copy.data(), 0, 2)));
  r.push_back(narrow(KILNUTILT_TrimBoth(copy.data())));
  Ch dest[64];  // room for every sample: the size limit counts units, not characters
  const Ch seps[] = {',', '\t', 0};
  r.push_back(pos(KILNUTILT_NextToken(dest, text.c_str(), seps, 64)));
  return r;
}

TEST(TokenTemplates, NarrowAndWideAgree) {
  const char* corpus[] = {"",
                          "a",
                          "a,b,c\n1,2,3\n4,5,6\n",
                          "a;b\r\nc;d\r\ne;f",
                          "x\ty\tz\n1\t2\n",
                          " \t padded , text \t ",
                          "it's, a, b",
                          "f(a,b),c\n\"q,r\",s\n",
                          "[a,b]{c,d}<e,f>\n",
                          "1.5e-3,2\n3,\"open",
                          "\n\n\n",
                          "\xC3\xA9t\xC3\xA9,\xE2\x82\xAC 5,\xC2\xA0x\n\xC3\xA9,b",
                          "a\xC2\xA0"
                          "b c\td"};
  for (const char* sample : corpus) {
    const std::string text = sample;
    const std::vector<std::string> a = results<char>(text), b = results<KILN_WCHAR>(wide(text));
    ASSERT_EQ(a.size(), b.size()) << text;
    for (std::size_t i = 0; i < a.size(); ++i) EXPECT_EQ(a[i], b[i]) << text << " result " << i;
  }
}

// The flat A and W exports and the template helpers agree on the same text,
// in character terms.
TEST(TokenTemplates, FlatNarrowAndWideExportsAgree) {
  for (const char* sample : {"  a, b ;c  ", "x\ty\n1\t2\t3\n", "(a,b),\"c,d\",e", "\xC3\xA9,b\n", ""}) {
    const Text<char> a = sample;
    const Text<KILN_WCHAR> w = wide(a);
    {
      Text<char> ca = a, ta = a;
      Text<KILN_WCHAR> cw = w, tw = w;
      EXPECT_EQ(narrow(KILNUTIL_TrimRightA(ca.data())), narrow(KILNUTIL_TrimRightW(cw.data()))) << sample;
      EXPECT_EQ(narrow(KILNUTILT_TrimRight(ta.data())), narrow(KILNUTILT_TrimRight(tw.data()))) << sample;
      EXPECT_EQ(narrow(KILNUTIL_TrimBothA(ca.data())), narrow(KILNUTIL_TrimBothW(cw.data()))) << sample;
      EXPECT_EQ(narrow(KILNUTILT_TrimLeft(ta.data())), narrow(KILNUTILT_TrimLeft(tw.data()))) << sample;
    }
    for (const int target : std::initializer_list<int>{0, ',', '"'}) {
      int status_a = 5, status_w = 6;
      EXPECT_EQ(index_of(a.c_str(), KILNUTIL_ExposedCharPosA(a.c_str(), target, 0, &status_a)),
                index_of(w.c_str(), KILNUTIL_ExposedCharPosW(w.c_str(), target, 0, &status_w)))
          << sample << " " << target;
      EXPECT_EQ(status_a, status_w);
      EXPECT_EQ(index_of(a.c_str(), KILNUTIL_StrCharA(a.c_str(), target, 1)),
                index_of(w.c_str(), KILNUTIL_StrCharW(w.c_str(), target, 1)))
          << sample << " " << target;
    }
    Text<char> ta = a;
    Text<KILN_WCHAR> tw = w;
    EXPECT_EQ(KILNUTIL_FirstLineTokensA(ta.data(), ','), KILNUTIL_FirstLineTokensW(tw.data(), ',')) << sample;
    EXPECT_EQ(KILNUTIL_TestWordsInLineA(a.c_str(), 3), KILNUTIL_TestWordsInLineW(w.c_str(), 3)) << sample;
    EXPECT_EQ(KILNUTILT::StrLen(a.c_str()), static_cast<int>(a.size())) << sample;  // units, not characters
    EXPECT_EQ(KILNUTILT::StrLen(w.c_str()), static_cast<int>(w.size())) << sample;
  }
}

// The narrow character search answers as the script scanners' search does.
TEST(TokenTemplates, StrCharMatchesScannerSearch) {
  const char* corpus[] = {"(a,b),c", "\"x,y\",z", ",,a,b, ", "  ;a;b;  ", "[{a,b}],\xC3\xA9,c", "Abc,aBC", ""};
  for (const char* text : corpus) {
    for (const int c : {',', ';', 'a', 'B', ' '}) {
      for (const int mode : {0, 1, 2, 3, 4, 5, 0x10, 0x11, 0x13, 0x14, 0x20, 0x21, 0x23}) {
        EXPECT_EQ(KILNUTIL_StrCharA(text, c, mode), KILNUTIL_strchr(text, c, static_cast<unsigned>(mode)))
            << text << " " << c << " " << mode;
      }
    }
  }
}

int consistent(std::string text, int sep, int enough, int lines) {
  return KILNUTILT_CountConsistenTokens(text.data(), sep, enough, lines);
}

TEST(TokenTemplates, ConsistentTokenCounts) {
  EXPECT_EQ(consistent("a,b,c\nd,e,f\ng,h,i\n", ',', 0, 3), 3);
  EXPECT_EQ(consistent("a,b,c\nd,e,f\ng,h,i", ',', 0, 3), -1);  // no line feed after the last line
  EXPECT_EQ(consistent("a,b,c\nd,e,f\ng,h,i", ',', 0, 2), 3);
  EXPECT_EQ(consistent("a,b,c\nd,e,f\ng,h,i", ',', 0, 0), -1);
  EXPECT_EQ(consistent("alone\nx,y\n", ',', 0, 2), -2);
  EXPECT_EQ(consistent("a,b\nc,d,e\nf,g\n", ',', 0, 3), -3);
  EXPECT_EQ(consistent("a,b\nc,d,e\nf,g\n", ',', 2, 3), 2);     // enough at once
  EXPECT_EQ(consistent("a\tb\nc\td\te\nf\n", '\t', 0, 3), 3);   // the largest
  EXPECT_EQ(consistent("a\tb\nc\td\te\nf\n", '\t', 0, 10), 3);  // tab: text end is fine
}

int separator(std::string text, int lines) { return KILNUTILT_FindSeparator(text.data(), 0, lines); }

TEST(TokenTemplates, SeparatorDetection) {
  const std::string semicolons = "1,5;2,5\n3,5;4,5\n5,5;6,5\n";
  EXPECT_EQ(separator(semicolons, 3), ',');
  const int previous = KILNUTIL_SetSeparatorExclusionChar(',');
  EXPECT_EQ(separator(semicolons, 3), ';');
  EXPECT_EQ(KILNUTIL_SetSeparatorExclusionChar(previous), ',');
  EXPECT_EQ(KILNUTIL_GetSeparatorExclusionChar(), previous);

  EXPECT_EQ(separator("a\tb\n1\t2\n", 3), '\t');
  EXPECT_EQ(separator("header\n1\t2\n3\t4\n", 3), '\t');
  EXPECT_EQ(separator("a,b\n1,2\n3,4\n", 3), ',');
  EXPECT_EQ(separator("a,b\n1,2\n3,4\n", 0), ',');  // 0 lines checks 3
  EXPECT_EQ(separator("just words\nmore words\n", 3), -1);
  std::basic_string<KILN_WCHAR> wide_semis = KILN_TEXT("a;b\nc;d\ne;f\n");
  EXPECT_EQ(KILNUTILT_FindSeparator(wide_semis.data(), 0, 3), ';');
}

// The token-list exports are the scanners' splitter (its cases are with the
// argument lists); here the limit that changes how quotes are read, and the wide export.
TEST(TokenTemplates, TokenListExports) {
  std::string quoted = "it's, a, b";
  EXPECT_EQ(KILNUTIL_SeparateStrToTokensA(quoted.data(), nullptr, ',', -1), 3);
  EXPECT_EQ(KILNUTIL_SeparateStrToTokensA(quoted.data(), nullptr, ',', 10), 1);  // the quote hides the commas
  EXPECT_EQ(KILNUTIL_SeparateStrToTokensA(nullptr, nullptr, ',', -1), 0);
  std::basic_string<KILN_WCHAR> letters = KILN_TEXT("a,b,c,d");
  KILN_WCHAR* two[3] = {};
  EXPECT_EQ(KILNUTIL_SeparateStrToTokensW(letters.data(), two, 0, 2), 2);
  EXPECT_EQ(std::basic_string<KILN_WCHAR>(two[1]), KILN_TEXT("b"));
  EXPECT_EQ(two[2], nullptr);
}

TEST(TokenTemplates, LinesAndFields) {
  for (const char* one : {"", "a"}) EXPECT_EQ(KILNUTIL_LineCountA(one), 1) << one;
  for (const char* two : {"a\nb", "a\nb\n", "a\n\n"}) EXPECT_EQ(KILNUTIL_LineCountA(two), 2) << two;
  EXPECT_EQ(KILNUTIL_LineCountW(KILN_TEXT("a\nb\n")), 2);
  EXPECT_EQ(KILNUTILT_WordsInLine(""), 1);
  EXPECT_EQ(KILNUTILT_WordsInLine("a,b\tc\nd\te\tf"), 2);
  EXPECT_EQ(KILNUTIL_TestWordsInLineA("a\nb\tc\nd\te\tf\tg", 2), 2);
  EXPECT_EQ(KILNUTIL_TestWordsInLineA("a\nb\tc\nd\te\tf\tg", 3), 4);
  EXPECT_EQ(KILNUTIL_TestWordsInLineA("a", 0), 0);
  std::string crlf = "a,b,c\r\nd";
  EXPECT_EQ(KILNUTIL_FirstLineTokensA(crlf.data(), ','), 3);
  EXPECT_EQ(crlf, "a,b,c\r\nd");
}

// The token and the offset of the position returned, as "token@offset".
std::string next_token(const char* text, int size) {
  char dest[8];
  const char* next = KILNUTIL_NextTokenA(dest, text, ",;", size);
  return std::string(dest) + "@" + std::to_string(next - text);
}

TEST(TokenTemplates, NextToken) {
  EXPECT_EQ(next_token("ab,cd", 8), "ab@3");
  EXPECT_EQ(next_token("xyz", 8), "xyz@3");       // the NUL
  EXPECT_EQ(next_token("abcdef,g", 4), "abc@3");  // dest full
  EXPECT_EQ(next_token("a\xC3\xA9,", 3), "a@1");  // no half characters
  const KILN_WCHAR* wtext = KILN_TEXT("ab;cd");
  KILN_WCHAR wdest[8];
  EXPECT_EQ(KILNUTIL_NextTokenW(wdest, wtext, KILN_TEXT(",;"), 8), wtext + 3);
  EXPECT_EQ(std::basic_string<KILN_WCHAR>(wdest), KILN_TEXT("ab"));
}

TEST(TokenTemplates, TrimmingAndExposedSearch) {
  char text[] = " \t a b \xC2\xA0";
  EXPECT_STREQ(KILNUTIL_TrimBothA(text), "a b");
  char continuation[] = "\x80  ";  // starts with a stray continuation byte
  EXPECT_STREQ(KILNUTIL_TrimRightA(continuation), "\x80");
  KILN_WCHAR wtext[] = KILN_TEXT("  x ");
  EXPECT_EQ(std::basic_string<KILN_WCHAR>(KILNUTIL_TrimLeftW(wtext)), KILN_TEXT("x "));
  EXPECT_EQ(KILNUTIL_TrimLeftA(nullptr), nullptr);

  const char* angle = "<a,b>,c";
  EXPECT_EQ(KILNUTIL_ExposedCharPosA(angle, ',', 0, nullptr), angle + 5);
  EXPECT_EQ(KILNUTIL_ExposedCharPosA(angle, ',', 0x8000000, nullptr), angle + 2);
  int status = 0;
  EXPECT_EQ(KILNUTIL_ExposedCharPosA("'open,x", ',', 0, &status), nullptr);
  EXPECT_EQ(status, -1);
}

TEST(TokenTemplates, HelperMembers) {
  EXPECT_STREQ(KILNUTILT::GetLastChar("ab\xC3\xA9"), "\xC3\xA9");
  EXPECT_EQ(KILNUTILT::GetLastChar(""), nullptr);
  EXPECT_EQ(KILNUTILT::GetLastChar(static_cast<const char*>(nullptr)), nullptr);
  const KILN_WCHAR* w = KILN_TEXT("xy");
  EXPECT_EQ(KILNUTILT::GetLastChar(w), w + 1);
  char upper[] = "abc\xC3\xA9";
  EXPECT_STREQ(KILNUTILT::CharUpper_(upper), "ABC\xC3\x89");
  KILN_WCHAR wupper[] = KILN_TEXT("ab\u00e9");
  EXPECT_EQ(std::basic_string<KILN_WCHAR>(KILNUTILT::CharUpper_(wupper)), KILN_TEXT("AB\u00c9"));
  char copy[4];
  KILNUTILT::StrCpyN(copy, "abcdef", 4);
  EXPECT_STREQ(copy, "abc");
  KILN_WCHAR wcopy[3];
  KILNUTILT::StrCpyN(wcopy, KILN_TEXT("xyz"), 3);
  EXPECT_EQ(std::basic_string<KILN_WCHAR>(wcopy), KILN_TEXT("xy"));
}

}  // namespace

// Either case with the UTF-8 walk: c and its one case-converted form match
// (the upper case, or the lower case when upper-casing leaves c as it is), so
// the title-case U+01C5 finds U+01C4 but not U+01C6, in both searches.
TEST(TokenTemplates, StrCharOtherCaseOfNonAsciiLetters) {
  // The system's case tables decide; Wine's leave U+01C5 without an upper
  // case, so the row that needs one is checked only where it has one.
  KILN_WCHAR title_case[] = {0x1C5};
  kiln::platform::upper_case_units(title_case, 1);
  const bool title_case_has_upper = title_case[0] == 0x1C4;
  const unsigned previous = set_code_page_for_string_process(65001);
  const struct {
    const char* text;
    int c;
    int found;  // offset, -1 for none
  } cases[] = {
      {"a\xC7\x84", 0x1C5, 1}, {"a\xC7\x86", 0x1C5, -1}, {"a\xC7\x85", 0x1C6, -1}, {"a\xC7\x84", 0x1C6, 1},
      {"a\xC7\x86", 0x1C4, 1}, {"\xC3\xA9", 0xC9, 0},    {"\xC3\x89", 0xE9, 0},    {"a\xC7\x85", 0x1C5, 1},
  };
  for (const auto& c : cases) {
    if (c.c == 0x1C5 && c.found == 1 && c.text[2] == '\x84' && !title_case_has_upper) continue;
    for (const int mode : {0x20, 0x21, 0x23}) {
      const char* hit = KILNUTIL_strchr(c.text, c.c, static_cast<unsigned>(mode));
      EXPECT_EQ(hit == nullptr ? -1 : hit - c.text, c.found) << c.text << " " << c.c << " " << mode;
      EXPECT_EQ(KILNUTIL_StrCharA(c.text, c.c, mode), hit) << c.text << " " << c.c << " " << mode;
    }
  }
  set_code_page_for_string_process(previous);
}
