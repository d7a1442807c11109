// Initialisation files are read whole as UTF-8 whatever their encoding.
#include "unicode/test_files.h"

#include "color/text_file_read.h"

#include <kilnutil/frame.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using kiln::color::read_text_file_as_utf8;
using kiln::color::TextFileStatus;

const std::string kBleu = "Bleu \xC3\xA9t\xC3\xA9";  // "Bleu été"

// The bytes of `ascii_and_e_acute` in UTF-16 or UTF-32 of one byte order.
std::string wide_bytes(const std::u32string& text, int width, bool big_endian) {
  std::string out;
  for (char32_t c : text) {
    for (int i = 0; i < width; ++i) {
      const int shift = 8 * (big_endian ? width - 1 - i : i);
      out += static_cast<char>((c >> shift) & 0xFF);
    }
  }
  return out;
}

TEST(ColorTextFileRead, EveryEncodingBecomesUtf8) {
  const std::u32string bleu = U"Bleu \u00E9t\u00E9";
  const unsigned previous = set_code_page_for_string_process(1252);
  const struct {
    const char* what;
    std::string bytes;
    std::string utf8;
  } cases[] = {
      {"UTF-8", kBleu, kBleu},
      {"UTF-8 with mark", "\xEF\xBB\xBF" + kBleu, kBleu},
      {"UTF-16LE with mark", "\xFF\xFE" + wide_bytes(bleu, 2, false), kBleu},
      {"UTF-16BE with mark", "\xFE\xFF" + wide_bytes(bleu, 2, true), kBleu},
      {"UTF-32BE with mark", std::string("\0\0\xFE\xFF", 4) + wide_bytes(bleu, 4, true), kBleu},
      {"code page 1252", "Bleu \xE9t\xE9", kBleu},
      {"empty", "", ""},
  };
  kiln_test::TempFolder folder;
  for (const auto& c : cases) {
    const std::string path = folder.file("file.ini");
    kiln_test::write_file(path, c.bytes);
    std::string utf8 = "stale";
    EXPECT_EQ(read_text_file_as_utf8(path.c_str(), utf8), TextFileStatus::kOk) << c.what;
    EXPECT_EQ(utf8, c.utf8) << c.what;
  }
  std::string utf8;
  EXPECT_EQ(read_text_file_as_utf8(folder.file("missing").c_str(), utf8), TextFileStatus::kCantRead);
  set_code_page_for_string_process(previous);
}

}  // namespace
