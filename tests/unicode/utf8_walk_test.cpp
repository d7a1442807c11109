#include <kilnutil/unicode.h>

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <string>
#include <vector>

namespace {

// The advance rule written out one character at a time, as the reference the
// fast paths must agree with.
int reference_advance(const unsigned char* p) {
  if (p[0] < 0x80 || p[1] == 0) return 1;
  if (!(p[0] & 0x20) || p[2] == 0) return 2;
  if (!(p[0] & 0x10)) return 3;
  return p[3] != 0 ? 4 : 3;
}

int reference_length(const std::string& s) {
  const auto* p = reinterpret_cast<const unsigned char*>(s.c_str());
  int count = 0;
  while (*p != 0) {
    p += reference_advance(p);
    ++count;
  }
  return count;
}

struct WalkCase {
  const char* text;
  std::vector<int> steps;  // bytes of each character
};

TEST(Utf8Walk, MalformedInputFollowsTheLeadByteBits) {
  const WalkCase cases[] = {
      {"\xC3", {1}},  // lead before the NUL
      {"\x85"
       "A",
       {2}},  // stray continuation = two-byte lead
      {"\xB0"
       "abc",
       {4}},  // 0xB0 = four-byte lead
      {"\xA5"
       "ab"
       "c",
       {3, 1}},  // 0xA5 = three-byte lead
      {"\xFF"
       "abcd",
       {4, 1}},               // 0xF8-0xFF = four-byte leads
      {"\xE6\x97", {2}},      // cut short by the NUL
      {"\xF0\x9F\x98", {3}},  // fourth byte is the NUL
      {"\xF0\x9F", {2}},
      {"a\xC3\xA9 b", {1, 2, 1, 1}},
      {"\xE6\x97\xA5\xF0\x9F\x98\x80", {3, 4}},
  };
  for (const WalkCase& c : cases) {
    const char* p = c.text;
    for (int step : c.steps) {
      const char* next = KILNUTIL_UNICODE_UTF8_adv_str(p);
      ASSERT_EQ(next - p, step) << "in \"" << c.text << "\" at " << (p - c.text);
      const char* q = p;
      KILNUTIL_UNICODE_UTF8_get_char_adv_str(&q);
      EXPECT_EQ(q, next) << "decode and advance must move as far as the walk";
      p = next;
    }
    EXPECT_EQ(*p, '\0') << c.text;
    EXPECT_EQ(KILNUTIL_UNICODE_UTF8_StrLength(c.text), static_cast<int>(c.steps.size())) << c.text;
    EXPECT_EQ(KILNUTIL_UNICODE_UTF8_ASSERT_VALID(c.text), p);
  }
}

TEST(Utf8Walk, DecodeKeepsTheGatheredBitsWhenCutShort) {
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_get_char("\xC3"), 0xC0u);
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_get_char("\xE6\x97"), 0x65C0u);
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_get_char("\x85"
                                           "A"),
            0x141u);
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_get_char("\xC0\x80"), 0u);  // overlong forms are not checked
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_get_char("\xF7\xBF\xBF\xBF"), 0x1FFFFFu);
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_get_char("\xED\xA0\x80"), 0xD800u);  // nor surrogates
}

TEST(Utf8Walk, GoBackTestsOnlyBit0x40) {
  const char text[] = "a\xC3\xA9\xE6\x97\xA5\xF0\x9F\x98\x80z";
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_go_back_in_str(text + 11), text + 10);
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_go_back_in_str(text + 10), text + 6);
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_go_back_in_str(text + 6), text + 3);
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_go_back_in_str(text + 3), text + 1);
  // A letter two back (bit 0x40 set) stops the walk at a continuation byte.
  const char odd[] = "xa\x80\x80";
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_go_back_in_str(odd + 4), odd + 1);
}

TEST(Utf8Walk, IndexConversions) {
  const char text[] = "a\xC3\xA9 b";
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_StrCharToIndex(2, text), 3);
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_StrCharToIndex(0, text), 0);
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_StrCharToIndex(-3, text), 0);
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_StrCharToIndex(99, text), 5);
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_StrCharToIndex(2, nullptr), 0);
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_StrIndexToChar(2, "a\xC3\xA9"), 2);  // inside e-acute: the next index
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_StrIndexToChar(1, "a\xC3\xA9"), 1);
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_StrIndexToChar(99, text), 4);
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_StrIndexToChar(-1, text), 0);
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_StrIndexToChar(1, nullptr), 0);
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_StrLength(nullptr), 0);
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_StrLength(""), 0);
}

TEST(Utf8Walk, LengthAgreesWithTheCharacterByCharacterRuleOnAnyBytes) {
  std::mt19937 random(12345);
  const char alphabet[] = "ab \x80\x9F\xA0\xAF\xB0\xBF\xC3\xA9\xE6\x97\xF0\x9F\xF8\xFF";
  for (int round = 0; round < 3000; ++round) {
    std::string s;
    const int length = static_cast<int>(random() % 200);
    const bool mostly_ascii = round % 2 == 0;
    for (int i = 0; i < length; ++i) {
      s += (mostly_ascii && random() % 16 != 0) ? static_cast<char>('a' + random() % 26)
                                                : alphabet[random() % (sizeof alphabet - 1)];
    }
    ASSERT_EQ(KILNUTIL_UNICODE_UTF8_StrLength(s.c_str()), reference_length(s)) << round;
  }
}

TEST(Utf8Copy, WholeCharactersWithinTheBudget) {
  char out[8];
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_copy_n_bytes(out, 2, "a\xC3\xA9"), 1);
  EXPECT_STREQ(out, "a");
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_copy_n_bytes(out, 3, "a\xC3\xA9"), 2);
  EXPECT_STREQ(out, "a\xC3\xA9");
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_copy_n_bytes(out, 0, "abc"), 0);
  EXPECT_STREQ(out, "");
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_copy_n_bytes(out, -4, "abc"), 0);
  EXPECT_STREQ(out, "");
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_copy_n_bytes(out, 5, ""), 0);
  EXPECT_STREQ(out, "");
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_copy_n_bytes(out, 7, "ab"), 2);
  EXPECT_STREQ(out, "ab");
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_copy_n_bytes(out, 3, "\xF0\x9F\x98\x80"), 0);  // never split
  EXPECT_STREQ(out, "");
}

// One, two and three stray continuation bytes that start the string, behind a
// byte the unbounded walk back would stop at: the walk stops at the string.
TEST(Utf8LastChar, StrayContinuationBytesStopAtTheStringStart) {
  for (int strays = 1; strays <= 3; ++strays) {
    std::string buffer = "A" + std::string(static_cast<size_t>(strays), '\x80');
    const char* s = buffer.c_str() + 1;
    EXPECT_EQ(KILNUTIL_UTF8_get_ptr_to_last_char(s, nullptr), s) << strays;
  }
}

TEST(Utf8LastChar, LastCharacterAndEmptyText) {
  unsigned int cp = 99;
  EXPECT_EQ(KILNUTIL_UTF8_get_ptr_to_last_char("", &cp), nullptr);
  EXPECT_EQ(cp, 0u);
  EXPECT_EQ(KILNUTIL_UTF8_get_last_char(""), 0u);
  const char text[] = "ab\xF0\x9F\x98\x80";
  EXPECT_EQ(KILNUTIL_UTF8_get_ptr_to_last_char(text, &cp), text + 2);
  EXPECT_EQ(cp, 0x1F600u);
  const char one[] = "x";
  EXPECT_EQ(KILNUTIL_UTF8_get_ptr_to_last_char(one, nullptr), one);
  EXPECT_EQ(KILNUTIL_UTF8_get_last_char("x\xC3\xA9"), 0xE9u);
  // Malformed text never walks back before the string's first byte.
  std::unique_ptr<char[]> lone(new char[2]{'\x9F', '\0'});
  EXPECT_EQ(KILNUTIL_UTF8_get_ptr_to_last_char(lone.get(), &cp), lone.get());
  EXPECT_EQ(cp, 0x7C0u);
  std::unique_ptr<char[]> three(new char[4]{'\xF0', '\x80', '\x80', '\0'});
  EXPECT_EQ(KILNUTIL_UTF8_get_ptr_to_last_char(three.get(), nullptr), three.get());
}

}  // namespace
