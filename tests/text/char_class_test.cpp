#include "text/text_test_support.h"

#include <gtest/gtest.h>

using namespace text_test;

TEST(TestChar, ClassesOfTheAsciiRange) {
  struct Case {
    int c;
    int expected;
  } cases[] = {
      {'A', 2},   {'z', 2},  {'_', 2},  {'`', 2}, {'0', 3},  {'9', 3},  {'.', 3},  {'*', 4},  {'^', 4},
      {'=', 4},   {'(', 5},  {'<', 5},  {'{', 5}, {')', 6},  {'>', 6},  {']', 6},  {0, 7},    {';', 7},
      {'\t', 8},  {'\n', 8}, {'\r', 8}, {' ', 8}, {'&', 15}, {'|', 15}, {',', 16}, {'"', 16}, {'\'', 16},
      {'\\', 16}, {':', 16}, {'~', 16}, {11, 16}, {12, 16},  {127, 16}, {1, 16},   {200, 16},
  };
  for (const Case& c : cases) EXPECT_EQ(KILNUTIL_test_char(c.c), c.expected) << "character " << c.c;
}

TEST(TestChar, ControlMaskRemapsModifiedCharacters) {
  struct Case {
    unsigned char mask;
    int c;
    int expected;
  } cases[] = {
      {1, '(', 4}, {1, '+', 4}, {1, '&', 15},  // modifier 2 does not share bit 1
      {6, '+', 0}, {6, '^', 0}, {6, '\t', 0}, {6, '(', 5}, {6, ' ', 8}, {16, '&', 4}, {16, '|', 4},
  };
  for (const Case& c : cases) {
    Restore mask = control_mask(c.mask);
    EXPECT_EQ(KILNUTIL_test_char(c.c), c.expected) << "mask " << int{c.mask} << " character " << c.c;
  }
  EXPECT_EQ(KILNUTIL_test_char('('), 5);
}

TEST(IsSpace, SpaceAndNineToThirteenAndTheNoBreakSpaceWhenOn) {
  for (bool nbsp : {true, false}) {
    Restore setting = no_break_space(nbsp);
    for (int c = 0; c < 256; ++c) {
      const bool expected = c == ' ' || (c >= 9 && c <= 13) || (nbsp && c == 160);
      EXPECT_EQ(KILNUTIL_isspace(c), expected ? 1 : 0) << c;
    }
    EXPECT_EQ(KILNUTIL_test_char(160), nbsp ? 8 : 16);
  }
  EXPECT_EQ(KILNUTIL_isspace(-1), 0);
}

// The three quote and pair classifications differ on purpose: the single
// quote is a quote but no pair, and only the pair tests know brackets.
TEST(QuoteClasses, QuoteCharAndPairOpenersAndClosers) {
  struct Case {
    int c;
    int quote, begin, end;
  } cases[] = {
      {'"', 1, 3, 3},   {'\'', 2, 0, 0},  {'(', 0, 1, 0}, {')', 0, 0, 1},          {'{', 0, 2, 0}, {'}', 0, 0, 2},
      {'[', 0, 4, 0},   {']', 0, 0, 4},   {'<', 0, 0, 0}, {'>', 0, 0, 0},          {'`', 0, 0, 0}, {0, 0, 0, 0},
      {0x122, 0, 0, 0}, {0x128, 0, 0, 0}, {-1, 0, 0, 0},  {-0x100 + '(', 0, 0, 0},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(KILNUTIL_is_quote_char(c.c), c.quote) << c.c;
    EXPECT_EQ(is_begin_quote(c.c), c.begin) << c.c;
    EXPECT_EQ(is_end_quote(c.c), c.end) << c.c;
  }
}
