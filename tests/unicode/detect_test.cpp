#include "support/utf16_bytes.h"
#include "test_files.h"

#include <kilnutil/frame.h>
#include <kilnutil/unicode.h>

#include <gtest/gtest.h>

#include <string>

namespace {

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

// Every answer of the buffer test, grouped by what decides it.
TEST(DetectBuffer, Answers) {
  using namespace std::string_literals;
  const std::string as(4096, 'a');
  std::string mixed_line_ends = "\r\0"s;  // both kinds: the zero ratios decide (even 2/28, odd 26/28: LE)
  for (int i = 0; i < 12; ++i) mixed_line_ends += "a\0"s;
  mixed_line_ends += "\0\n"s;
  const struct {
    std::string bytes;
    int flags;
    unsigned expected;
  } cases[] = {
      // Marks in their fixed order: FF FE first, so a UTF-32LE mark is UTF-16LE.
      {"\xFF\xFE"
       "a\0"s,
       0, 258},
      {"\xFE\xFF\0a"s, 0, 259},
      {"\xEF\xBB\xBF"
       "abc",
       0, 257},
      {"\xFF\xFE\0\0"s, 0, 258},
      {"\0\0\xFE\xFF"s, 0, 261},
      // Flag bit 0 means marks only (other bits don't count); marks cut short are none.
      {"\xEF\xBB", 1, 0},
      {"\xFF", 1, 0},
      {"caf\xC3\xA9", 1, 0},
      {"caf\xC3\xA9", 2, 1},
      // ASCII is not UTF-8.
      {"plain text, 7-bit only\r\n", 0, 512},
      {std::string(1000, 'x'), 0, 512},
      {"", 0, 512},
      // UTF-8; overlong three-byte forms and encoded surrogates are not checked.
      {"caf\xC3\xA9", 0, 1},
      {"\xE2\x82\xAC 5", 0, 1},
      {"\xF0\x9F\x98\x80", 0, 1},
      {"\xE0\x80\x80", 0, 1},
      {"\xED\xA0\x80", 0, 1},
      // C0, C1, F5-FF can't lead, nor can a continuation byte; a continuation byte must follow a lead.
      {"a\xC0\x80", 0, 0},
      {"a\xC1\xBF", 0, 0},
      {"\xF5\x80\x80\x80", 0, 0},
      {"\xFF", 0, 0},
      {"\x80", 0, 0},
      {"\xC3\x41", 0, 0},
      // A buffer cut inside a sequence passes; a lead byte alone at the end continued nothing: ASCII.
      {"\xC3\xA9 and \xE2\x82", 0, 1},
      {"abc\xE2", 0, 512},
      // The fault found after long ASCII runs.
      {as + "\xC3\xA9", 0, 1},
      {as + "\xC3\xA9" + as + "\xFF" + as, 0, 0},
      // Zero bytes send UTF-8 on to the UTF-16 tests: line ends, else the zero ratios, decide.
      {"a\0b\0\r\0\n\0"s, 0, 2},
      {"\0a\0b\0\r\0\n"s, 0, 3},
      {"h\0e\0l\0l\0o\0"s, 0, 2},
      {"\0h\0e\0l\0l\0o"s, 0, 3},
      {mixed_line_ends, 0, 2},
      {"\0\0ab\0\0cd"s, 0, 0},
      {as + '\0' + as, 0, 0},
  };
  for (const auto& c : cases) EXPECT_EQ(detect(c.bytes, c.flags), c.expected) << testing::PrintToString(c.bytes);
  // Marks and their sizes; the mark bit on the code-page family or without a
  // known family means no mark.
  const std::pair<unsigned, int> sizes[] = {{257, 3}, {258, 2}, {259, 2},   {260, 4},  {261, 4},
                                            {1, 0},   {255, 0}, {0x100, 0}, {0x106, 0}};
  for (const auto& [code, size] : sizes) EXPECT_EQ(KILNUTIL_GetBOMSize(code), size) << code;
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

TEST(DetectGuess, SettingOffMeansMarksOnly) {
  EXPECT_EQ(KILNUTIL_DetectEncodingNeedGuess_GetSet(1, 99), 7u);  // getting ignores the value
  GuessSetting setting(0);
  EXPECT_EQ(KILNUTIL_DetectEncodingNeedGuess_GetSet(1, 0), 0u);
  EXPECT_EQ(detect("caf\xC3\xA9"), 0u);
  EXPECT_EQ(detect("\xEF\xBB\xBF"
                   "abc"),
            257u);
}

// The zero-ratio test exactly at its thresholds: the share of zero bytes
// among the odd (or even) positions must exceed 70% and the other share stay
// below 10%. Bytes 0xFF keep the text from passing as UTF-8; no zero pairs
// and no line ends leave the decision to the ratios.
TEST(DetectUtf16, ZeroRatioThresholdsAreStrict) {
  // Ten byte pairs: `odd` of them (0xFF, 0), `even` of them (0, 0xFF).
  auto pairs = [](int odd, int even) {
    std::string bytes;
    for (int i = 0; i < 10; ++i)
      bytes += i < odd ? std::string("\xFF\0", 2) : i < odd + even ? std::string("\0\xFF", 2) : "\xFF\xFF";
    return bytes;
  };
  const struct {
    int odd, even;
    unsigned code;
  } cases[] = {
      {8, 0, KILNUTIL_ENCODING_UTF16LE}, {7, 0, KILNUTIL_ENCODING_CODE_PAGE}, {8, 1, KILNUTIL_ENCODING_CODE_PAGE},
      {0, 8, KILNUTIL_ENCODING_UTF16BE}, {0, 7, KILNUTIL_ENCODING_CODE_PAGE}, {1, 8, KILNUTIL_ENCODING_CODE_PAGE},
  };
  for (const auto& c : cases) EXPECT_EQ(detect(pairs(c.odd, c.even)), c.code) << c.odd << " " << c.even;
}

TEST(DetectStream, RestoresThePositionAndReadsOnlyTheStart) {
  TempFolder folder;
  const std::string path = folder.file("mixed.txt");
  write_file(path, std::string(100, 'a') + "\xFF");  // ASCII for 100 bytes, then a byte that is not UTF-8
  FILE* stream = std::fopen(path.c_str(), "rb");
  ASSERT_NE(stream, nullptr);
  std::fseek(stream, 7, SEEK_SET);
  EXPECT_EQ(KILNUTIL_DetectEncoding(stream, 100, 0), 512u);
  EXPECT_EQ(std::ftell(stream), 7);
  EXPECT_EQ(KILNUTIL_DetectEncoding(stream, 0, 0), 0u);
  EXPECT_EQ(KILNUTIL_DetectEncoding(stream, 101, 0), 0u);
  EXPECT_EQ(std::ftell(stream), 7);
  std::fclose(stream);
  // Marks only: four bytes are read, so a fault in a fifth goes unseen.
  write_file(path, "ab\xC3\xA9");
  EXPECT_EQ(KILNUTIL_DetectEncodingFile(path.c_str(), 0, 0), 1u);
  EXPECT_EQ(KILNUTIL_DetectEncodingFile(path.c_str(), 0, 1), 0u);
  write_file(path,
             "\xEF\xBB\xBF"
             "a\xFF");
  EXPECT_EQ(KILNUTIL_DetectEncodingFile(path.c_str(), 0, 1), 257u);
  // The big-endian UTF-32 mark takes all four bytes.
  write_file(path, std::string("\0\0\xFE\xFF\0\0\0A", 8));
  EXPECT_EQ(KILNUTIL_DetectEncodingFile(path.c_str(), 0, 1), KILNUTIL_ENCODING_UTF32BE | KILNUTIL_ENCODING_MARK);
}

TEST(DetectFile, EncodedFilesEmptyAndMissing) {
  TempFolder folder;
  const std::string path = folder.file("text.txt");
  const std::string text =
      "Gr\xC3\xBC\xC3\x9F"
      "e, \xE6\x97\xA5\xE6\x9C\xAC\r\nzweite Zeile\r\n";
  const struct {
    const char* encoding;
    std::string bytes;
    unsigned expected;
  } cases[] = {
      {"UTF-16LE", kiln_test::utf16le(text), 2},
      {"UTF-16BE", kiln_test::utf16be(text), 3},
      {"UTF-16LE, marked", "\xFF\xFE" + kiln_test::utf16le(text), 258},
      {"UTF-16BE, marked", "\xFE\xFF" + kiln_test::utf16be(text), 259},
      {"UTF-8, marked", "\xEF\xBB\xBF" + text, 257},
      {"UTF-8", text, 1},
      {"Shift_JIS", "\x93\xFA\x96\x7B\x8C\xEA\r\n", 0},
      {"ASCII", "only ASCII here\n", 512},
  };
  for (const auto& c : cases) {
    write_file(path, c.bytes);
    EXPECT_EQ(KILNUTIL_DetectEncodingFile(path.c_str(), 0, 0), c.expected) << c.encoding;
  }
  write_file(path, "");
  EXPECT_EQ(KILNUTIL_DetectEncodingFile(path.c_str(), 0, 0), 255u);
  EXPECT_EQ(KILNUTIL_DetectEncodingFile(folder.file("missing.txt").c_str(), 0, 0), 255u);
  EXPECT_EQ(KILNUTIL_DetectEncodingFile(nullptr, 0, 0), 255u);
  EXPECT_EQ(KILNUTIL_DetectEncoding(nullptr, 0, 0), 255u);
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
  const std::pair<const char*, unsigned> paths[] = {
      {"C:\\data\\a.csv", 1000}, {"/data/A.CsV", 1000}, {"notes.TXT", 2000}, {"notes.txt.bak", 0},
      {"C:\\my.csv\\file", 0},   {"/my.txt/file", 0},   {"noextension", 0},  {nullptr, 0},
  };
  for (const auto& [path, size] : paths)
    EXPECT_EQ(KILNUTIL_DetectEncoding_GetBufSizeFromFilePath(path), size) << (path ? path : "null");
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
