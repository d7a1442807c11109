#include "text/text_test_support.h"

#include <gtest/gtest.h>

using namespace text_test;

TEST(TestChar, ClassesOfTheAsciiRange) {
  struct Case {
    int c;
    int expected;
  } cases[] = {
      {'A', 2}, {'z', 2}, {'_', 2}, {'`', 2},   {'0', 3},  {'9', 3},  {'.', 3},   {'*', 4},  {'^', 4},  {'=', 4},
      {'(', 5}, {'<', 5}, {'{', 5}, {')', 6},   {'>', 6},  {']', 6},  {0, 7},     {';', 7},  {'\t', 8}, {'\n', 8},
      {'\r', 8}, {' ', 8}, {'&', 15}, {'|', 15}, {',', 16}, {'"', 16}, {'\'', 16}, {'\\', 16}, {':', 16}, {'~', 16},
      {11, 16}, {12, 16}, {127, 16}, {1, 16},   {200, 16},
  };
  for (const Case& c : cases) EXPECT_EQ(KILNUTIL_test_char(c.c), c.expected) << "character " << c.c;
}

TEST(TestChar, NoBreakSpaceFollowsItsSetting) {
  {
    NoBreakSpace on(true);
    EXPECT_EQ(KILNUTIL_test_char(160), 8);
    EXPECT_EQ(KILNUTIL_isspace(160), 1);
  }
  NoBreakSpace off(false);
  EXPECT_EQ(KILNUTIL_test_char(160), 16);
  EXPECT_EQ(KILNUTIL_isspace(160), 0);
}

TEST(TestChar, ControlMaskRemapsModifiedCharacters) {
  {
    ControlMask mask(1);
    EXPECT_EQ(KILNUTIL_test_char('('), 4);
    EXPECT_EQ(KILNUTIL_test_char('+'), 4);  // modifier 2 does not share bit 1
    EXPECT_EQ(KILNUTIL_test_char('&'), 15);
  }
  {
    ControlMask mask(2 | 4);
    EXPECT_EQ(KILNUTIL_test_char('+'), 0);
    EXPECT_EQ(KILNUTIL_test_char('^'), 0);
    EXPECT_EQ(KILNUTIL_test_char('\t'), 0);
    EXPECT_EQ(KILNUTIL_test_char('('), 5);
    EXPECT_EQ(KILNUTIL_test_char(' '), 8);
  }
  {
    ControlMask mask(16);
    EXPECT_EQ(KILNUTIL_test_char('&'), 4);
    EXPECT_EQ(KILNUTIL_test_char('|'), 4);
  }
  EXPECT_EQ(KILNUTIL_test_char('('), 5);
}

TEST(IsSpace, SpaceAndNineToThirteenOnly) {
  for (int c = 0; c < 256; ++c) {
    const bool expected = c == ' ' || (c >= 9 && c <= 13) || c == 160;
    EXPECT_EQ(KILNUTIL_isspace(c), expected ? 1 : 0) << c;
  }
  EXPECT_EQ(KILNUTIL_isspace(-1), 0);
}

TEST(IsQuoteChar, DoubleAndSingle) {
  EXPECT_EQ(KILNUTIL_is_quote_char('"'), 1);
  EXPECT_EQ(KILNUTIL_is_quote_char('\''), 2);
  EXPECT_EQ(KILNUTIL_is_quote_char('`'), 0);
}
