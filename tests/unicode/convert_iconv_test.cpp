// The code-page tables and the UTF-16 input maker of the tests, compared
// with glibc's iconv as the independent converter (POSIX only).
#include "iconv_reference.h"

#include "support/utf16_bytes.h"

#include <kilnutil/unicode.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using kiln_test::iconv_convert;

std::string mbcs_to_utf8(const std::string& text, int code_page) {
  char out[1024];
  const int n = KILNUTIL_UNICODE_MBCS_to_UTF8(text.c_str(), -1, out, sizeof out, code_page);
  return std::string(out, static_cast<size_t>(n > 0 ? n : 0));
}

std::string utf8_to_mbcs(const std::string& text, int code_page) {
  char out[1024];
  const int n = KILNUTIL_UNICODE_UTF8_to_MBCS(text.c_str(), -1, out, sizeof out, code_page);
  return n > 0 ? std::string(out) : std::string();
}

// Sample texts in each code page, compared with glibc's iconv on characters
// both converters map the same way.
TEST(CodePageTables, AgreeWithIconvOnSampleTexts) {
  const struct {
    int code_page;
    const char* iconv_name;
    const char* utf8;
  } samples[] = {
      {1252, "CP1252",
       "\xE2\x80\x9C"
       "Caf\xC3\xA9 na\xC3\xAFve \xE2\x82\xAC"
       "5 \xC2\xBD \xC3\x9F\xC3\xB8\xC3\x85\xE2\x80\x9D \xE2\x84\xA2"},
      {932, "CP932",
       "\xE6\x97\xA5\xE6\x9C\xAC\xE8\xAA\x9E\xE3\x81\xAE\xE3\x83\x86\xE3\x82\xAD\xE3\x82\xB9\xE3\x83\x88 "
       "\xEF\xBD\xB1\xEF\xBD\xB2 ABC \xE3\x80\x82"},
      {936, "CP936",
       "\xE4\xB8\xAD\xE6\x96\x87\xE6\x96\x87\xE6\x9C\xAC\xEF\xBC\x8C\xE6\xB5\x8B\xE8\xAF\x95 ABC \xE3\x80\x82"},
  };
  for (const auto& sample : samples) {
    const auto expected = iconv_convert("UTF-8", sample.iconv_name, sample.utf8);
    ASSERT_TRUE(expected.has_value()) << sample.iconv_name;
    EXPECT_EQ(utf8_to_mbcs(sample.utf8, sample.code_page), *expected) << sample.code_page;
    EXPECT_EQ(mbcs_to_utf8(*expected, sample.code_page), sample.utf8) << sample.code_page;
  }
}

TEST(CodePageTables, Every1252ByteAgreesWithIconv) {
  for (int byte = 1; byte < 256; ++byte) {
    const std::string one(1, static_cast<char>(byte));
    const auto expected = iconv_convert("CP1252", "UTF-8", one);
    if (!expected) continue;  // the five bytes iconv leaves undefined
    EXPECT_EQ(mbcs_to_utf8(one, 1252), *expected) << byte;
  }
}

// The UTF-16 maker the other tests build their inputs with: both byte
// orders, a surrogate pair and every length of UTF-8 sequence.
TEST(Utf16Inputs, AgreeWithIconv) {
  const std::string text = "a\xC3\xA9\xE2\x82\xAC\xEF\xBF\xBF\xF0\x9F\x98\x80\xF4\x8F\xBF\xBF\r\n";
  EXPECT_EQ(kiln_test::utf16le(text), iconv_convert("UTF-8", "UTF-16LE", text));
  EXPECT_EQ(kiln_test::utf16be(text), iconv_convert("UTF-8", "UTF-16BE", text));
}

}  // namespace
