#include "text/text_test_support.h"

#include <gtest/gtest.h>

using namespace text_test;

namespace {

long find(const char* text, int target, unsigned flags = 0, int loc = 0, int* status = nullptr,
          const char* end = nullptr) {
  return offset(text, KILNUTIL_exposed_char_pos_ex_loc_ex(text, target, flags, status, loc, end));
}

const char* last_scan_position() { return KILNUTIL_exposed_char_pos_ex_loc_ex(nullptr, 0, 0, nullptr, 0, nullptr); }

}  // namespace

TEST(ExposedSearch, QuotesAndBracketsHideTheTarget) {
  EXPECT_EQ(find("f(a,b),c", ','), 6);
  EXPECT_EQ(find("\"a,b\",c", ','), 5);
  EXPECT_EQ(find("'a,b',c", ','), 5);
  EXPECT_EQ(find("[\"],\"],c", ','), 6);  // brackets inside quotes are text
  EXPECT_EQ(find("\"(\",c", ','), 3);
  EXPECT_EQ(find("(\"a)\"),c", ','), 6);   // a quote inside brackets is skipped whole
  EXPECT_EQ(find("(a[b)c],d", ']'), 6);    // one bracket kind at a time
  EXPECT_EQ(find("((a)b),c", ','), 6);
  EXPECT_EQ(find("{a,b}", ','), -1);
  EXPECT_EQ(find("abc", 'c'), 2);
  EXPECT_EQ(find("", 'c'), -1);
}

TEST(ExposedSearch, QuoteAndBracketTargetsAreFoundWhenExposed) {
  EXPECT_EQ(find("a\"b\"", '"'), 1);
  EXPECT_EQ(find("a(b)", '('), 1);
  EXPECT_EQ(find("(a)b)", ')'), 4);
  EXPECT_EQ(find("((a)b)c(", '('), 0);
}

TEST(ExposedSearch, NumericLiterals) {
  EXPECT_EQ(find("1e-5", '-'), -1);
  EXPECT_EQ(find("2.5E+3-x", '-'), 6);
  EXPECT_EQ(find("a.-b", '-'), 2);        // a lone "." is one character
  EXPECT_EQ(find("1.5e-3", '-'), -1);
  EXPECT_EQ(find("1e5", 'e'), 1);         // only the 1 is skipped
  EXPECT_EQ(find("1e55", 'e'), -1);       // skipped whole
  EXPECT_EQ(find("1.2.3", '.'), 1);       // a second "." ends the literal at its start
  EXPECT_EQ(find("1e5e", 'e'), 1);        // so does a second exponent letter
  EXPECT_EQ(find("1e+5-2", '-'), 4);      // a second sign ends the exponent
  EXPECT_EQ(find("1e 5,", ' '), -1);      // a space right after the letter belongs to it
  EXPECT_EQ(find("12-3", '-'), 2);
  EXPECT_EQ(find("x1-3", '1'), 1);        // a digit target is found even in a number
  EXPECT_EQ(find("1e-5", '-', 0x40), 2);  // numbers not skipped
  EXPECT_EQ(find("1.5", '.', 0x40), 1);
}

TEST(ExposedSearch, Escapes) {
  const char text[] = "\"a\\\",b\",c";  // "a\",b",c
  EXPECT_EQ(find(text, ','), 7);
  EXPECT_EQ(find("\"a\\\\\",b", ','), 5);  // "a\\" closes after the escaped backslash
  {
    EscapesOff off;
    EXPECT_EQ(find(text, ','), 4);
  }
  EXPECT_EQ(find(text, ','), 7);
}

TEST(ExposedSearch, ControlCalls) {
  int status = 7;
  KILNUTIL_exposed_char_pos_ex_loc_ex(nullptr, -1, 0, &status, 0, nullptr);
  EXPECT_EQ(status, 0);  // escapes were on
  int again = 7;
  KILNUTIL_exposed_char_pos_ex_loc_ex(nullptr, -1, 0, &again, 0, nullptr);
  EXPECT_EQ(again, 1);   // and are off now
  // The restoring call clears *status before it reads it: escapes come back on.
  KILNUTIL_exposed_char_pos_ex_loc_ex(nullptr, -2, 0, &again, 0, nullptr);
  EXPECT_EQ(again, 0);
  EXPECT_EQ(find("\"a\\\",b\",c", ','), 7);
}

TEST(ExposedSearch, LastScanPosition) {
  const char text[] = "ab \"x\" 12,c";
  find(text, ',');
  EXPECT_EQ(last_scan_position(), text + 3);
  const char plain[] = "ab,c";
  find(plain, ',');
  EXPECT_EQ(last_scan_position(), plain);
  const char number[] = "a 1.5,c";
  find(number, ',');
  EXPECT_EQ(last_scan_position(), number + 2);
}

TEST(ExposedSearch, UnclosedQuoteSetsStatus) {
  int status = 5;
  EXPECT_EQ(find("a\"bc,d", ',', 0, 0, &status), -1);
  EXPECT_EQ(status, -1);
  EXPECT_EQ(find("a,b", ',', 0, 0, &status), 1);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(find("(a,b", ',', 0, 0, &status), -1);
  EXPECT_EQ(status, 0);  // an unclosed bracket is no error
}

TEST(ExposedSearch, WhiteSpaceTargetAndNoBreakSpace) {
  const char text[] = "a\xC2\xA0" "b c";
  {
    NoBreakSpace on(true);
    EXPECT_EQ(find(text, 0), 1);
  }
  NoBreakSpace off(false);
  EXPECT_EQ(find(text, 0), 4);
  EXPECT_EQ(find("a\xC2\xA0" "b", 0), -1);
  EXPECT_EQ(find("(a b)\tc", 0), 5);
}

TEST(ExposedSearch, AngleBracketsFollowTheSettingOnlyWithLocZero) {
  {
    AngleBrackets off(false);
    EXPECT_EQ(find("<a,b>,c", ','), 2);
    EXPECT_EQ(find("<a,b>,c", ',', 0, 1), 5);          // loc: "<" ">" are brackets
    EXPECT_EQ(find("<a,b>,c", ',', 0x8000000, 1), 2);
  }
  AngleBrackets on(true);
  EXPECT_EQ(find("<a,b>,c", ','), 5);
  EXPECT_EQ(find("<a,b>,c", ',', 0x8000000), 2);
}

TEST(ExposedSearch, BracketAndQuoteExclusionFlags) {
  EXPECT_EQ(find("(a,b),c", ',', 0x1000000), 2);
  EXPECT_EQ(find("{a,b},c", ',', 0x2000000), 2);
  EXPECT_EQ(find("[a,b],c", ',', 0x4000000), 2);
  // The quote bits count only with loc.
  EXPECT_EQ(find("'a,b',c", ',', 0x10000000, 0), 5);
  EXPECT_EQ(find("'a,b',c", ',', 0x10000000, 1), 2);
  EXPECT_EQ(find("\"a,b\",c", ',', 0x20000000, 1), 2);
  EXPECT_EQ(find("\"a,b\",c", ',', 0x20000000, 0), 5);
  // 0x100: a single quote quotes only as the first character.
  EXPECT_EQ(find("'a,b',c", ',', 0x100, 1), 5);
  EXPECT_EQ(find("it's,x'", ',', 0x100, 1), 4);
  EXPECT_EQ(find("it's,x'", ',', 0, 1), -1);
  EXPECT_EQ(find("it's,x'", ',', 0x100, 0), -1);
}

TEST(ExposedSearch, CaseBlind) {
  EXPECT_EQ(find("xAb", 'a'), -1);
  EXPECT_EQ(find("xAb", 'a', 0x80), 1);
  EXPECT_EQ(find("x(a)A", 'a', 0x80), 4);
  EXPECT_EQ(find("x\xC3\xA9", 0xC9, 0x80), 1);
}

TEST(ExposedSearch, EndLimit) {
  const char text[] = "ab,cd,e";
  EXPECT_EQ(find(text, ',', 0, 0, nullptr, text + 2), -1);
  EXPECT_EQ(find(text, ',', 0, 0, nullptr, text + 3), 2);
  EXPECT_EQ(find(text, ',', 0, 0, nullptr, text), -1);
}

TEST(ExposedSearch, SupplementaryCharactersNeverReadAsAscii) {
  // U+10022: its low 16 bits are those of the double quote.
  EXPECT_EQ(find("\xF0\x90\x80\xA2,a", ','), 4);
  // A truncated sequence stops at the NUL.
  EXPECT_EQ(find("\xE2", ','), -1);
}

TEST(ExposedFromEnd, LastHit) {
  const char text[] = "a,b,(c,d),e";
  EXPECT_EQ(offset(text, KILNUTIL_exposed_char_pos_from_end(text, ',', nullptr)), 9);
  int status = 0;
  const char open[] = "a,b,\"c,d";
  EXPECT_EQ(offset(open, KILNUTIL_exposed_char_pos_from_end(open, ',', &status)), 3);
  EXPECT_EQ(status, -1);
  EXPECT_EQ(KILNUTIL_exposed_char_pos_from_end("abc", ',', nullptr), nullptr);
}

TEST(Exposed2Char, PairOfCharacters) {
  const char text[] = "a:b(::)::c";
  EXPECT_EQ(offset(text, KILNUTIL_exposed_2_char_pos(text, ':', ':')), 7);
  EXPECT_EQ(KILNUTIL_exposed_2_char_pos("a:b", ':', ':'), nullptr);
}

TEST(ExposedWord, StandAloneCaseBlindByDefault) {
  const char text[] = "x=Sin(sin)+sinh+ sin";
  EXPECT_EQ(offset(text, KILNUTIL_exposed_word_pos(text, "sin", 0)), 2);
  EXPECT_EQ(offset(text, KILNUTIL_exposed_word_pos(text, "sin", 0x4000)), 17);
  const char inside[] = "asin+sin";
  EXPECT_EQ(offset(inside, KILNUTIL_exposed_word_pos(inside, "sin", 0)), 5);
  EXPECT_EQ(offset(inside, KILNUTIL_exposed_word_pos(inside, "sin", 0x2000)), 1);
  EXPECT_EQ(KILNUTIL_exposed_word_pos("\"sin\" sin2", "sin", 0), nullptr);
  EXPECT_EQ(KILNUTIL_exposed_word_pos("si", "sin", 0), nullptr);
  EXPECT_EQ(KILNUTIL_exposed_word_pos("sin", "", 0), nullptr);
}
