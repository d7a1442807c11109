#include "test_files.h"

#include <kilnutil/frame.h>
#include <kilnutil/unicode.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using kiln_test::iconv_convert;
using kiln_test::TempFolder;
using kiln_test::write_file;

unsigned detect(const std::string& bytes, int flags = 0) {
  return KILNUTIL_DetectEncodingBuffer(reinterpret_cast<const unsigned char*>(bytes.data()),
                                       static_cast<unsigned>(bytes.size()), flags);
}

// Sets the guess setting for one test and puts the default back.
class GuessSetting {
public:
  explicit GuessSetting(unsigned value) : previous_(KILNUTIL_DetectEncodingNeedGuess_GetSet(1, 0)) {
    KILNUTIL_DetectEncodingNeedGuess_GetSet(0, value);
  }
  ~GuessSetting() { KILNUTIL_DetectEncodingNeedGuess_GetSet(0, previous_); }

private:
  unsigned previous_;
};

TEST(DetectMarks, AreTestedInTheirFixedOrder) {
  using namespace std::string_literals;
  EXPECT_EQ(detect("\xFF\xFE" "a\0"s), 258u);
  EXPECT_EQ(detect("\xFE\xFF\0a"s), 259u);
  EXPECT_EQ(detect("\xEF\xBB\xBF" "abc"), 257u);
  // FF FE comes first, so a UTF-32LE mark is reported as UTF-16LE.
  EXPECT_EQ(detect("\xFF\xFE\0\0"s), 258u);
  EXPECT_EQ(KILNUTIL_GetBOMSize(detect("\xFF\xFE\0\0"s)), 2);
  EXPECT_EQ(detect("\0\0\xFE\xFF"s), 261u);
  // Marks cut short are no marks; with guessing off that is code-page text.
  EXPECT_EQ(detect("\xEF\xBB", 1), 0u);
  EXPECT_EQ(detect("\xFF", 1), 0u);
}

TEST(DetectMarks, MarkSizes) {
  EXPECT_EQ(KILNUTIL_GetBOMSize(257), 3);
  EXPECT_EQ(KILNUTIL_GetBOMSize(258), 2);
  EXPECT_EQ(KILNUTIL_GetBOMSize(259), 2);
  EXPECT_EQ(KILNUTIL_GetBOMSize(260), 4);
  EXPECT_EQ(KILNUTIL_GetBOMSize(261), 4);
  EXPECT_EQ(KILNUTIL_GetBOMSize(1), 0);      // no mark bit
  EXPECT_EQ(KILNUTIL_GetBOMSize(255), 0);
  EXPECT_EQ(KILNUTIL_GetBOMSize(0x100), 0);  // mark bit on the code-page family
  EXPECT_EQ(KILNUTIL_GetBOMSize(0x106), 0);
}

TEST(DetectUtf8, AsciiIsNotUtf8) {
  EXPECT_EQ(detect("plain text, 7-bit only\r\n"), 512u);
  EXPECT_EQ(detect(std::string(1000, 'x')), 512u);
  EXPECT_EQ(detect(""), 512u);
}

TEST(DetectUtf8, SequencesAndTheirLimits) {
  EXPECT_EQ(detect("caf\xC3\xA9"), 1u);
  EXPECT_EQ(detect("\xE2\x82\xAC 5"), 1u);
  EXPECT_EQ(detect("\xF0\x9F\x98\x80"), 1u);
  // Overlong three-byte forms and encoded surrogates are not checked.
  EXPECT_EQ(detect("\xE0\x80\x80"), 1u);
  EXPECT_EQ(detect("\xED\xA0\x80"), 1u);
  // C0, C1, F5-FF can't lead; a lone continuation byte neither.
  for (const char* bad : {"a\xC0\x80", "a\xC1\xBF", "\xF5\x80\x80\x80", "\xFF", "\x80"}) {
    EXPECT_EQ(detect(bad), 0u) << bad;
  }
  EXPECT_EQ(detect("\xC3\x41"), 0u);  // continuation byte expected
}

TEST(DetectUtf8, ABufferCutInsideASequenceStillPasses) {
  EXPECT_EQ(detect("\xC3\xA9 and \xE2\x82"), 1u);
  // The only non-ASCII byte is a lead byte at the very end: nothing was
  // continued, so the buffer is ASCII.
  EXPECT_EQ(detect("abc\xE2"), 512u);
}

TEST(DetectUtf8, LongTextFindsTheFaultAfterTheAsciiRuns) {
  std::string text(4096, 'a');
  EXPECT_EQ(detect(text + "\xC3\xA9"), 1u);
  EXPECT_EQ(detect(text + "\xC3\xA9" + text + "\xFF" + text), 0u);
  text[3000] = '\0';
  EXPECT_NE(detect(text), 512u);
}

TEST(DetectUtf16, AZeroByteSendsUtf8OnToTheUtf16Tests) {
  using namespace std::string_literals;
  // Valid UTF-8 apart from the zero bytes: UTF-16LE by its line ends.
  EXPECT_EQ(detect("a\0b\0\r\0\n\0"s), 2u);
  EXPECT_EQ(detect("\0a\0b\0\r\0\n"s), 3u);
}

TEST(DetectUtf16, ZeroRatiosDecideWithoutLineEnds) {
  using namespace std::string_literals;
  EXPECT_EQ(detect("h\0e\0l\0l\0o\0"s), 2u);
  EXPECT_EQ(detect("\0h\0e\0l\0l\0o"s), 3u);
  // Both line-end kinds: no line-end answer, the ratios decide (LE here).
  std::string mixed = "\r\0"s;
  for (int i = 0; i < 12; ++i) mixed += "a\0"s;
  EXPECT_EQ(detect(mixed + "\0\n"s), 2u);  // even zeros 2/28, odd 26/28
  // Zero bytes at both positions: neither.
  EXPECT_EQ(detect("\0\0ab\0\0cd"s), 0u);
}

TEST(DetectUtf16, ZeroPairsRuleOutTheLineEndTestOnlyWithBit2) {
  using namespace std::string_literals;
  // Line ends say LE; the ratio test would say nothing (too many even zeros).
  const std::string bytes = "\r\0\0\0\0\0\0\0\n\0"s;
  {
    GuessSetting setting(7);
    EXPECT_EQ(detect(bytes), 0u);
  }
  {
    GuessSetting setting(3);
    EXPECT_EQ(detect(bytes), 2u);
  }
}

TEST(DetectGuess, OffMeansMarksOnly) {
  GuessSetting setting(0);
  EXPECT_EQ(detect("caf\xC3\xA9"), 0u);
  EXPECT_EQ(detect("abc"), 0u);
  EXPECT_EQ(detect("\xEF\xBB\xBF" "abc"), 257u);
}

TEST(DetectGuess, FlagBit0MeansMarksOnly) {
  EXPECT_EQ(detect("caf\xC3\xA9", 1), 0u);
  EXPECT_EQ(detect("caf\xC3\xA9", 2), 1u);  // other bits don't count
}

TEST(DetectGuess, GetSetConvention) {
  EXPECT_EQ(KILNUTIL_DetectEncodingNeedGuess_GetSet(1, 99), 7u);
  GuessSetting setting(5);
  EXPECT_EQ(KILNUTIL_DetectEncodingNeedGuess_GetSet(1, 0), 5u);
}

TEST(DetectStream, RestoresThePositionAndReadsOnlyTheStart) {
  TempFolder folder;
  const std::string path = folder.file("mixed.txt");
  // ASCII for the first 100 bytes, then a byte that is not UTF-8.
  write_file(path, std::string(100, 'a') + "\xFF");
  FILE* stream = std::fopen(path.c_str(), "rb");
  ASSERT_NE(stream, nullptr);
  std::fseek(stream, 7, SEEK_SET);
  EXPECT_EQ(KILNUTIL_DetectEncoding(stream, 100, 0), 512u);
  EXPECT_EQ(std::ftell(stream), 7);
  EXPECT_EQ(KILNUTIL_DetectEncoding(stream, 0, 0), 0u);
  EXPECT_EQ(KILNUTIL_DetectEncoding(stream, 101, 0), 0u);
  EXPECT_EQ(std::ftell(stream), 7);
  std::fclose(stream);
}

TEST(DetectStream, MarkOnlyReadsFourBytes) {
  TempFolder folder;
  const std::string path = folder.file("utf8.txt");
  write_file(path, "ab\xC3\xA9");
  EXPECT_EQ(KILNUTIL_DetectEncodingFile(path.c_str(), 0, 0), 1u);
  // Four bytes "ab" C3 A9 are still all that is read with guessing off...
  EXPECT_EQ(KILNUTIL_DetectEncodingFile(path.c_str(), 0, 1), 0u);
  // ...and the UTF-8 test would have failed on a fifth byte had it been read.
  write_file(path, "\xEF\xBB\xBF" "a\xFF");
  EXPECT_EQ(KILNUTIL_DetectEncodingFile(path.c_str(), 0, 1), 257u);
}

TEST(DetectFile, EmptyAndMissingFilesAre255) {
  TempFolder folder;
  const std::string path = folder.file("empty.txt");
  write_file(path, "");
  EXPECT_EQ(KILNUTIL_DetectEncodingFile(path.c_str(), 0, 0), 255u);
  EXPECT_EQ(KILNUTIL_DetectEncodingFile(folder.file("missing.txt").c_str(), 0, 0), 255u);
  EXPECT_EQ(KILNUTIL_DetectEncodingFile(nullptr, 0, 0), 255u);
  EXPECT_EQ(KILNUTIL_DetectEncoding(nullptr, 0, 0), 255u);
}

TEST(DetectFile, FilesWrittenByIconv) {
  TempFolder folder;
  const std::string text = "Gr\xC3\xBC\xC3\x9F" "e, \xE6\x97\xA5\xE6\x9C\xAC\r\nzweite Zeile\r\n";
  const std::string japanese = "\xE6\x97\xA5\xE6\x9C\xAC\xE8\xAA\x9E\r\n";
  struct Case {
    const char* name;
    const char* encoding;
    std::string prefix;
    const std::string& text;
    unsigned expected;
  };
  const Case cases[] = {
      {"le.txt", "UTF-16LE", "", text, 2},
      {"be.txt", "UTF-16BE", "", text, 3},
      {"le_mark.txt", "UTF-16LE", "\xFF\xFE", text, 258},
      {"be_mark.txt", "UTF-16BE", "\xFE\xFF", text, 259},
      {"utf8_mark.txt", "UTF-8", "\xEF\xBB\xBF", text, 257},
      {"utf8.txt", "UTF-8", "", text, 1},
      {"sjis.txt", "SHIFT_JIS", "", japanese, 0},
  };
  for (const Case& c : cases) {
    const auto converted = iconv_convert("UTF-8", c.encoding, c.text);
    ASSERT_TRUE(converted.has_value()) << c.encoding;
    const std::string path = folder.file(c.name);
    write_file(path, c.prefix + *converted);
    EXPECT_EQ(KILNUTIL_DetectEncodingFile(path.c_str(), 0, 0), c.expected) << c.name;
  }
  const std::string ascii = folder.file("ascii.txt");
  write_file(ascii, *iconv_convert("UTF-8", "ASCII", "only ASCII here\n"));
  EXPECT_EQ(KILNUTIL_DetectEncodingFile(ascii.c_str(), 0, 0), 512u);
}

TEST(DetectSizes, GetSetAndRefusals) {
  double value = 0;
  for (int kind = 0; kind < 3; ++kind) {
    ASSERT_EQ(KILNUTIL_DetectEncoding_GetSet_BufferSize(0, &value, kind), 0);
    EXPECT_EQ(value, 51200.0);
  }
  value = 100;
  EXPECT_EQ(KILNUTIL_DetectEncoding_GetSet_BufferSize(1, &value, 3), -1);
  EXPECT_EQ(KILNUTIL_DetectEncoding_GetSet_BufferSize(0, &value, -1), -1);
  value = -1;
  EXPECT_EQ(KILNUTIL_DetectEncoding_GetSet_BufferSize(1, &value, 7), -1);  // refused before the kind
  EXPECT_EQ(KILNUTIL_DetectEncoding_GetSet_BufferSize(1, &value, 0), -1);
  ASSERT_EQ(KILNUTIL_DetectEncoding_GetSet_BufferSize(0, &value, 0), 0);
  EXPECT_EQ(value, 51200.0);
}

TEST(DetectSizes, ByExtension) {
  double csv = 1000, txt = 2000, other = 0;
  ASSERT_EQ(KILNUTIL_DetectEncoding_GetSet_BufferSize(1, &csv, 0), 0);
  ASSERT_EQ(KILNUTIL_DetectEncoding_GetSet_BufferSize(1, &txt, 1), 0);
  ASSERT_EQ(KILNUTIL_DetectEncoding_GetSet_BufferSize(1, &other, 2), 0);
  EXPECT_EQ(KILNUTIL_DetectEncoding_GetBufSizeFromFilePath("C:\\data\\a.csv"), 1000u);
  EXPECT_EQ(KILNUTIL_DetectEncoding_GetBufSizeFromFilePath("/data/A.CsV"), 1000u);
  EXPECT_EQ(KILNUTIL_DetectEncoding_GetBufSizeFromFilePath("notes.TXT"), 2000u);
  EXPECT_EQ(KILNUTIL_DetectEncoding_GetBufSizeFromFilePath("notes.txt.bak"), 0u);
  EXPECT_EQ(KILNUTIL_DetectEncoding_GetBufSizeFromFilePath("C:\\my.csv\\file"), 0u);
  EXPECT_EQ(KILNUTIL_DetectEncoding_GetBufSizeFromFilePath("/my.txt/file"), 0u);
  EXPECT_EQ(KILNUTIL_DetectEncoding_GetBufSizeFromFilePath("noextension"), 0u);
  EXPECT_EQ(KILNUTIL_DetectEncoding_GetBufSizeFromFilePath(nullptr), 0u);
  // Counts of 2^63 and more keep their top bit; the path result is the low 32 bits.
  double huge = 9223372036854775808.0 + 4096.0 * 1024;
  ASSERT_EQ(KILNUTIL_DetectEncoding_GetSet_BufferSize(1, &huge, 0), 0);
  double back = 0;
  KILNUTIL_DetectEncoding_GetSet_BufferSize(0, &back, 0);
  EXPECT_EQ(back, huge);
  EXPECT_EQ(KILNUTIL_DetectEncoding_GetBufSizeFromFilePath("x.csv"), 4096u * 1024);
  double defaults = 51200;
  for (int kind = 0; kind < 3; ++kind) KILNUTIL_DetectEncoding_GetSet_BufferSize(1, &defaults, kind);
}

}  // namespace
