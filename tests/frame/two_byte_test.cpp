#include "support/temporary_stream.h"

#include <kilnutil/frame.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <string>

namespace {

struct FileCloser {
  void operator()(FILE* f) const { std::fclose(f); }
};
using File = std::unique_ptr<FILE, FileCloser>;

File stream_of(const std::string& bytes) {
  File f(kiln_test::temporary_stream());
  std::fwrite(bytes.data(), 1, bytes.size(), f.get());
  std::rewind(f.get());
  return f;
}

// Sets the string-process code page for one test and restores it.
class CodePageScope {
public:
  explicit CodePageScope(unsigned cp) : previous_(set_code_page_for_string_process(cp)) {}
  ~CodePageScope() { set_code_page_for_string_process(previous_); }

private:
  unsigned previous_;
};

TEST(TwoByteReader, EmptyStreamGivesFFAndSetsEndOfFile) {
  File f = stream_of("");
  EXPECT_EQ(KILNUTIL_fgetc_two(f.get()), 0x00FFu);
  EXPECT_TRUE(std::feof(f.get()));
  File g = stream_of("");
  EXPECT_EQ(KILNUTIL_fgetc_two_new(g.get(), 0x1000), 0x00FFu);
}

TEST(TwoByteReader, DoubleByteCharacterInCodePage932) {
  CodePageScope scope(932);
  File f = stream_of(
      "\x82\xA0"
      "A\xFF\x83");
  EXPECT_EQ(KILNUTIL_fgetc_two(f.get()), 0xA082u);
  EXPECT_EQ(KILNUTIL_fgetc_two(f.get()), 0x0041u);
  EXPECT_EQ(KILNUTIL_fgetc_two(f.get()), 0x00FFu);  // 0xFF is never a lead byte
  EXPECT_FALSE(std::feof(f.get()));
  EXPECT_EQ(KILNUTIL_fgetc_two(f.get()), 0xFF83u);  // lead byte, then end of file
  EXPECT_TRUE(std::feof(f.get()));
}

TEST(TwoByteReader, PushBackRestoresTheOriginalByteOrder) {
  CodePageScope scope(932);
  File f = stream_of(
      "\x82\xA0"
      "B");
  const unsigned c = KILNUTIL_fgetc_two(f.get());
  ASSERT_EQ(c, 0xA082u);
  EXPECT_EQ(KILNUTIL_ungetc_two(c, f.get()), 0x82);
  EXPECT_EQ(std::fgetc(f.get()), 0x82);
  EXPECT_EQ(std::fgetc(f.get()), 0xA0);
  EXPECT_EQ(std::fgetc(f.get()), 'B');
}

TEST(TwoByteReader, CodePageChoiceOrder) {
  CodePageScope scope(1252);
  File f = stream_of("\x82\xA0");
  EXPECT_EQ(KILNUTIL_fgetc_two(f.get()), 0x0082u);  // 1252 has no lead bytes
  // The loading code page, when set, comes first.
  KILNUTIL_set_codepage_for_converting_MBCS_to_UNICODE_on_loading(936);
  File g = stream_of("\xC4\xE3");
  EXPECT_EQ(KILNUTIL_fgetc_two(g.get()), 0xE3C4u);
  KILNUTIL_set_codepage_for_converting_MBCS_to_UNICODE_on_loading(0xFFFFFFFFu);
}

TEST(TwoByteReader, Utf16ModeReadsRawLittleEndianUnits) {
  File f =
      stream_of(std::string("\x3D\xD8\x00\xDE"
                            "A",
                            5));
  EXPECT_EQ(KILNUTIL_fgetc_two_new(f.get(), 0x1000), 0xD83Du);  // half a pair
  EXPECT_EQ(KILNUTIL_fgetc_two_new(f.get(), 0x1000 | 0x2), 0xDE00u);
  // One byte left: the stream's end-of-file indicator is set only by the read
  // that fails, so the second byte is read and gives 0xFF.
  EXPECT_EQ(KILNUTIL_fgetc_two_new(f.get(), 0x1000), 0xFF41u);
  EXPECT_TRUE(std::feof(f.get()));
  // Once the indicator is set, the reader stops after the first byte.
  EXPECT_EQ(KILNUTIL_fgetc_two_new(f.get(), 0x1000), 0x00FFu);
}

TEST(TwoByteStore, OneOrTwoBytesNoTerminator) {
  char buffer[4] = {'x', 'x', 'x', 'x'};
  EXPECT_EQ(setc_two_DBCS(buffer, 0x0041), buffer + 1);
  EXPECT_EQ(buffer[0], 'A');
  EXPECT_EQ(buffer[1], 'x');
  EXPECT_EQ(setc_two_DBCS(buffer, 0xA082), buffer + 2);
  EXPECT_EQ(static_cast<unsigned char>(buffer[0]), 0x82);
  EXPECT_EQ(static_cast<unsigned char>(buffer[1]), 0xA0);
  EXPECT_EQ(buffer[2], 'x');
}

TEST(RetiredEntryPoints, DoNothingAndAnswerNoCharacter) {
  char text[] = "\x82\xA0xyz";
  char* position = text;
  EXPECT_EQ(getc_two(text), 0);
  EXPECT_EQ(getc_two_alt(text), 0);
  EXPECT_EQ(getc_two_adv(&position), 0);
  EXPECT_EQ(getc_two_adv_alt(&position), 0);
  EXPECT_EQ(position, text);
  EXPECT_EQ(get_two_at_offset_reverse(text, 2), 0);
  for (int b = 0; b < 256; ++b) EXPECT_EQ(is_lead_char_for_2byte(static_cast<unsigned char>(b)), 0);
  char destination[8] = "keep";
  EXPECT_EQ(KILNUTIL_CopyStrWithMBCSCheck(destination, text, 8), 0);
  EXPECT_STREQ(destination, "keep");
  EXPECT_EQ(setc_two_alt(destination, 0x41), destination);
  EXPECT_STREQ(destination, "keep");
  EXPECT_STREQ(text, "\x82\xA0xyz");
}

TEST(CharacterHelpers, NarrowTextIsUtf8) {
  const char text[] = "a\xC3\xA9\xE6\x97\xA5\xF0\x9F\x98\x80";  // a, e-acute, a CJK ideograph, an emoji
  const char* p = text;
  EXPECT_EQ(KILNUTILT::GetTwo(p), KILN_TEXT('a'));
  EXPECT_EQ(KILNUTILT::GetTwoAdv(p), KILN_TEXT('a'));
  EXPECT_EQ(KILNUTILT::GetTwoAdv(p), 0x00E9);
  EXPECT_EQ(p, text + 3);
  EXPECT_EQ(KILNUTILT::GetTwoAdv(p), 0x65E5);
  EXPECT_EQ(KILNUTILT::GetTwoAdv(p), 0xF600);  // the code point cut to 16 bits
  EXPECT_EQ(p, text + 10);
  EXPECT_EQ(KILNUTILT::GoBack(p), text + 6);
  EXPECT_EQ(KILNUTILT::GoBack(text + 3), text + 1);
  char mutable_text[] = "x\xC3\xA9";
  char* q = mutable_text;
  KILNUTILT::GetTwoAdv(q);
  EXPECT_EQ(KILNUTILT::GetTwoAdv(q), 0x00E9);
  EXPECT_EQ(KILNUTILT::GoBack(q), mutable_text + 1);
}

TEST(CharacterHelpers, WideTextIsOneUnitAtATime) {
  const KILN_WCHAR text[] = KILN_TEXT("A\U0001F600");
  const KILN_WCHAR* p = text;
  EXPECT_EQ(KILNUTILT::GetTwoAdv(p), KILN_TEXT('A'));
  EXPECT_EQ(KILNUTILT::GetTwoAdv(p), 0xD83D);  // surrogates are not combined
  EXPECT_EQ(KILNUTILT::GetTwo(p), 0xDE00);
  EXPECT_EQ(KILNUTILT::GoBack(p), text + 1);
}

TEST(CharacterHelpers, GoBackOfNullIsNull) {
  EXPECT_EQ(KILNUTILT::GoBack(static_cast<const char*>(nullptr)), nullptr);
  EXPECT_EQ(KILNUTILT::GoBack(static_cast<char*>(nullptr)), nullptr);
  EXPECT_EQ(KILNUTILT::GoBack(static_cast<const KILN_WCHAR*>(nullptr)), nullptr);
  EXPECT_EQ(KILNUTILT::GoBack(static_cast<KILN_WCHAR*>(nullptr)), nullptr);
}

}  // namespace
