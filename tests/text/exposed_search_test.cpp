#include "text/reference_exposed_search.h"
#include "text/text_test_support.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

using namespace text_test;

namespace {

std::ptrdiff_t find(const char* text, int target, unsigned flags = 0, int loc = 0, int* status = nullptr,
          const char* end = nullptr) {
  return offset(text, KILNUTIL_exposed_char_pos_ex_loc_ex(text, target, flags, status, loc, end));
}

const char* last_scan_position() { return KILNUTIL_exposed_char_pos_ex_loc_ex(nullptr, 0, 0, nullptr, 0, nullptr); }

}  // namespace

TEST(ExposedSearch, Cases) {
  struct Case {
    const char* text;
    int target;
    unsigned flags;
    int loc;
    std::ptrdiff_t expected;
  } cases[] = {
      // Quotes and brackets hide the target, one bracket kind at a time; brackets inside quotes are
      // text, and a quote inside brackets is skipped whole.
      {"f(a,b),c", ',', 0, 0, 6},
      {"\"a,b\",c", ',', 0, 0, 5},
      {"'a,b',c", ',', 0, 0, 5},
      {"((a)b),c", ',', 0, 0, 6},
      {"[\"],\"],c", ',', 0, 0, 6},
      {"(\"a)\"),c", ',', 0, 0, 6},
      {"(a[b)c],d", ']', 0, 0, 6},
      {"{a,b}", ',', 0, 0, -1},
      {"", 'c', 0, 0, -1},
      {"(a b)\tc", 0, 0, 0, 5},  // target 0: white space
      // Quote and bracket targets are found when exposed.
      {"a\"b\"", '"', 0, 0, 1},
      {"a(b)", '(', 0, 0, 1},
      {"(a)b)", ')', 0, 0, 4},
      {"((a)b)c(", '(', 0, 0, 0},
      // Numeric literals are skipped (not with 0x40). A lone "." is one character; only the 1 of 1e5 is
      // skipped but 1e55 whole; a second "." or exponent letter ends the literal at its start, a second
      // sign ends the exponent; a space right after the letter belongs to it; a digit target is found.
      {"1e-5", '-', 0, 0, -1},
      {"2.5E+3-x", '-', 0, 0, 6},
      {"1.5e-3", '-', 0, 0, -1},
      {"12-3", '-', 0, 0, 2},
      {"a.-b", '-', 0, 0, 2},
      {"1e5", 'e', 0, 0, 1},
      {"1e55", 'e', 0, 0, -1},
      {"1.2.3", '.', 0, 0, 1},
      {"1e5e", 'e', 0, 0, 1},
      {"1e+5-2", '-', 0, 0, 4},
      {"1e 5,", ' ', 0, 0, -1},
      {"x1-3", '1', 0, 0, 1},
      {"1e-5", '-', 0x40, 0, 2},
      {"1.5", '.', 0x40, 0, 1},
      // Escapes inside quotes.
      {"\"a\\\",b\",c", ',', 0, 0, 7},
      {"\"a\\\\\",b", ',', 0, 0, 5},
      // Bracket and quote exclusion; the quote bits count only with loc.
      {"(a,b),c", ',', 0x1000000, 0, 2},
      {"{a,b},c", ',', 0x2000000, 0, 2},
      {"[a,b],c", ',', 0x4000000, 0, 2},
      {"'a,b',c", ',', 0x10000000, 0, 5},
      {"'a,b',c", ',', 0x10000000, 1, 2},
      {"\"a,b\",c", ',', 0x20000000, 1, 2},
      {"\"a,b\",c", ',', 0x20000000, 0, 5},
      // 0x100 with loc: a single quote quotes only as the first character.
      {"'a,b',c", ',', 0x100, 1, 5},
      {"it's,x'", ',', 0x100, 1, 4},
      {"it's,x'", ',', 0, 1, -1},
      {"it's,x'", ',', 0x100, 0, -1},
      // Either case with 0x80.
      {"xAb", 'a', 0, 0, -1},
      {"xAb", 'a', 0x80, 0, 1},
      {"x(a)A", 'a', 0x80, 0, 4},
      {"x\xC3\xA9", 0xC9, 0x80, 0, 1},
      // U+10022 (low 16 bits those of the double quote) is no quote; a cut sequence stops at the NUL.
      {"\xF0\x90\x80\xA2,a", ',', 0, 0, 4},
      {"\xE2", ',', 0, 0, -1},
  };
  for (const Case& c : cases) EXPECT_EQ(find(c.text, c.target, c.flags, c.loc), c.expected) << c.text;
}

TEST(ExposedSearch, EscapeSwitchControlCalls) {
  const char text[] = "\"a\\\",b\",c";  // "a\",b",c
  int status = 7;
  KILNUTIL_exposed_char_pos_ex_loc_ex(nullptr, -1, 0, &status, 0, nullptr);
  EXPECT_EQ(status, 0);  // escapes were on
  EXPECT_EQ(find(text, ','), 4);
  int again = 7;
  KILNUTIL_exposed_char_pos_ex_loc_ex(nullptr, -1, 0, &again, 0, nullptr);
  EXPECT_EQ(again, 1);  // and are off now
  // The restoring call clears *status before it reads it: escapes come back on.
  KILNUTIL_exposed_char_pos_ex_loc_ex(nullptr, -2, 0, &again, 0, nullptr);
  EXPECT_EQ(again, 0);
  EXPECT_EQ(find(text, ','), 7);
}

TEST(ExposedSearch, LastScanPositionStatusAndEnd) {
  const char text[] = "ab \"x\" 12,c";
  find(text, ',');
  EXPECT_EQ(last_scan_position(), text + 3);  // the first section skipped
  const char plain[] = "ab,c";
  find(plain, ',');
  EXPECT_EQ(last_scan_position(), plain);  // or the start
  const char number[] = "a 1.5,c";
  find(number, ',');
  EXPECT_EQ(last_scan_position(), number + 2);
  int status = 5;
  EXPECT_EQ(find("a\"bc,d", ',', 0, 0, &status), -1);
  EXPECT_EQ(status, -1);  // an unclosed quote
  EXPECT_EQ(find("(a,b", ',', 0, 0, &status), -1);
  EXPECT_EQ(status, 0);  // an unclosed bracket is no error
  EXPECT_EQ(find(plain, ',', 0, 0, nullptr, plain + 2), -1);
  EXPECT_EQ(find(plain, ',', 0, 0, nullptr, plain + 3), 2);
}

TEST(ExposedSearch, SettingsNoBreakSpaceAndAngleBrackets) {
  const char text[] =
      "a\xC2\xA0"
      "b c";
  for (bool nbsp : {true, false}) {
    Restore setting = no_break_space(nbsp);
    EXPECT_EQ(find(text, 0), nbsp ? 1 : 4);
  }
  {
    Restore off = angle_brackets(false);
    EXPECT_EQ(find("<a,b>,c", ','), 2);
    EXPECT_EQ(find("<a,b>,c", ',', 0, 1), 5);  // with loc "<" ">" are brackets
    EXPECT_EQ(find("<a,b>,c", ',', 0x8000000, 1), 2);
  }
  Restore on = angle_brackets(true);
  EXPECT_EQ(find("<a,b>,c", ','), 5);
  EXPECT_EQ(find("<a,b>,c", ',', 0x8000000), 2);
}

TEST(ExposedDerived, FromEndPairAndWord) {
  const char text[] = "a,b,(c,d),e";
  EXPECT_EQ(offset(text, KILNUTIL_exposed_char_pos_from_end(text, ',', nullptr)), 9);
  int status = 0;
  const char open[] = "a,b,\"c,d";
  EXPECT_EQ(offset(open, KILNUTIL_exposed_char_pos_from_end(open, ',', &status)), 3);
  EXPECT_EQ(status, -1);
  EXPECT_EQ(KILNUTIL_exposed_char_pos_from_end("abc", ',', nullptr), nullptr);
  const char pair[] = "a:b(::)::c";
  EXPECT_EQ(offset(pair, KILNUTIL_exposed_2_char_pos(pair, ':', ':')), 7);
  EXPECT_EQ(KILNUTIL_exposed_2_char_pos("a:b", ':', ':'), nullptr);
  // Words stand alone and match in either case unless 0x4000; 0x2000 drops the stand-alone test.
  const char words[] = "x=Sin(sin)+sinh+ sin";
  EXPECT_EQ(offset(words, KILNUTIL_exposed_word_pos(words, "sin", 0)), 2);
  EXPECT_EQ(offset(words, KILNUTIL_exposed_word_pos(words, "sin", KILNUTIL_WORD_MATCH_CASE)), 17);
  const char inside[] = "asin+sin";
  EXPECT_EQ(offset(inside, KILNUTIL_exposed_word_pos(inside, "sin", 0)), 5);
  EXPECT_EQ(offset(inside, KILNUTIL_exposed_word_pos(inside, "sin", KILNUTIL_WORD_ANYWHERE)), 1);
  EXPECT_EQ(KILNUTIL_exposed_word_pos("\"sin\" sin2", "sin", 0), nullptr);
  EXPECT_EQ(KILNUTIL_exposed_word_pos("sin", "", 0), nullptr);
}

// Random texts over the characters that matter, against the plain reference:
// every target, numbers not skipped, escapes honoured.
TEST(ExposedSearch, AgreesWithThePlainReference) {
  static const char kAlphabet[] = "ab ,;(){}[]\"'\\\t<>";
  std::mt19937 random(12345);
  for (int round = 0; round < 4000; ++round) {
    std::string text(random() % 24, ' ');
    for (char& c : text) c = kAlphabet[random() % (sizeof kAlphabet - 1)];
    for (const int target : std::initializer_list<int>{',', ';', 0, '"', ')', ']', 'a', '\''}) {
      int expected_status = 9, status = 9;
      const char* expected = reference::exposed_search(text.c_str(), target, &expected_status);
      const char* found =
          KILNUTIL_exposed_char_pos_ex_loc_ex(text.c_str(), target, KILNUTIL_EXPOSED_KEEP_NUMBERS, &status, 0, nullptr);
      ASSERT_EQ(offset(text.c_str(), found), offset(text.c_str(), expected)) << "[" << text << "] " << target;
      ASSERT_EQ(status, expected_status) << "[" << text << "] " << target;
    }
  }
}
