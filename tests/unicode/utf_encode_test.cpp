#include <kilnutil/unicode.h>

#include <gtest/gtest.h>

#include <cstring>

namespace {

TEST(Utf8Encode, EveryCodePointRoundTripsThroughUtf8AndUtf16) {
  for (unsigned cp = 0; cp < 0x110000; ++cp) {
    char bytes[5] = {};
    char* end = KILNUTIL_UNICODE_UTF8_setc(bytes, cp);
    const int length = static_cast<int>(end - bytes);
    ASSERT_EQ(KILNUTIL_UNICODE_UTF8_get_char_length(cp, nullptr), length) << cp;
    ASSERT_EQ(length, cp < 0x80 ? 1 : cp < 0x800 ? 2 : cp < 0x10000 ? 3 : 4) << cp;
    if (cp != 0) {
      const char* p = bytes;
      ASSERT_EQ(KILNUTIL_UNICODE_UTF8_get_char_adv_str(&p), cp);
      ASSERT_EQ(p, end) << cp;
      ASSERT_EQ(KILNUTIL_UNICODE_UTF8_go_back_in_str(end), bytes) << cp;
    }
    KILN_WCHAR units[3] = {0xFFFF, 0xFFFF, 0xFFFF};
    const int unit_count = KILNUTIL_UNICODE_UTF16_get_char_length(cp, units);
    ASSERT_EQ(unit_count, cp < 0x10000 ? 1 : 2) << cp;
    ASSERT_EQ(units[unit_count], 0) << cp;
    if (cp >= 0xD800 && cp <= 0xDFFF) continue;  // a lone surrogate does not step forward
    unsigned decoded = 0;
    ASSERT_EQ(KILNUTIL_UNICODE_UTF16_adv_str(units, &decoded), units + unit_count) << cp;
    ASSERT_EQ(decoded, cp);
  }
}

TEST(Utf8Encode, OutOfRangeWritesNothing) {
  char bytes[4] = {'x', 'x', 'x', 'x'};
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_setc(bytes, 0x110000), bytes);
  EXPECT_EQ(bytes[0], 'x');
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_get_char_length(0x110000, bytes), 0);
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_get_char_length(0xFFFFFFFF, nullptr), 0);
  char two[3] = {};
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_get_char_length(0xE9, two), 2);
  EXPECT_EQ(std::memcmp(two, "\xC3\xA9", 2), 0);
}

TEST(Utf16, EncodedLengthAndTheUnitInFront) {
  KILN_WCHAR units[4] = {0x1111, 0x2222, 0x3333, 0x4444};
  EXPECT_EQ(KILNUTIL_UNICODE_UTF16_get_char_length(0x1F600, units), 2);
  EXPECT_EQ(units[0], 0xD83D);
  EXPECT_EQ(units[1], 0xDE00);
  EXPECT_EQ(units[2], 0);
  KILN_WCHAR guarded[3] = {0x5555, 0x6666, 0x7777};
  EXPECT_EQ(KILNUTIL_UNICODE_UTF16_get_char_length(0x110000, guarded + 1), -1);
  EXPECT_EQ(guarded[0], 0);  // the unit before the buffer is zeroed
  EXPECT_EQ(guarded[1], 0x6666);
  EXPECT_EQ(KILNUTIL_UNICODE_UTF16_get_char_length(0x110000, nullptr), -1);
  EXPECT_EQ(KILNUTIL_UNICODE_UTF16_get_char_length(0x41, nullptr), 1);
}

TEST(Utf16, UnpairedSurrogateStepsBackOneUnit) {
  const KILN_WCHAR text[] = {KILN_TEXT('x'), 0xD83D, KILN_TEXT('A'), 0};
  unsigned cp = 0;
  EXPECT_EQ(KILNUTIL_UNICODE_UTF16_adv_str(text + 1, &cp), text);
  EXPECT_EQ(cp, 0xD83Du);
  const KILN_WCHAR low_then_low[] = {0xDC00, 0xDC01, 0};  // any surrogate may lead a pair
  EXPECT_EQ(KILNUTIL_UNICODE_UTF16_adv_str(low_then_low, &cp), low_then_low + 2);
  EXPECT_EQ(cp, 0xDC00u * 1024 + 0xDC01 - 0x35FDC00);
  EXPECT_EQ(KILNUTIL_UNICODE_UTF16_adv_str(low_then_low + 1, nullptr), low_then_low);
}

}  // namespace
