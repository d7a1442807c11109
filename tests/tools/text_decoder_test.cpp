// The tool's decoder: encodings decided on the whole input, marks, binary
// refusal and invalid input, including across the 1 MiB pieces it reads.
#include "tool_input.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace {

using kilnutil_cli::DecodeOptions;
using kilnutil_cli::TextEncoding;
using kilnutil_cli::TextForm;
using kilnutil_cli_test::decode_piped;

constexpr std::size_t kPiece = 1 << 20;

std::string ascii(std::size_t size) {
  std::string text;
  while (text.size() < size) text += "0123456789,abcdef\n";
  return text.substr(0, size);
}

std::string utf32(const std::u32string& text, bool big_endian) {
  std::string bytes;
  for (const char32_t c : text) {
    for (int i = 0; i < 4; ++i) {
      const int shift = big_endian ? 24 - 8 * i : 8 * i;
      bytes += static_cast<char>((c >> shift) & 0xFF);
    }
  }
  return bytes;
}

struct DecodeCase {
  const char* name;
  std::string bytes;
  DecodeOptions options;
  std::string text;         // expected UTF-8 (checked when error is empty)
  std::string error;        // expected part of the error, or empty
  std::string description;  // expected part of the description, or empty
};

TEST(ToolTextDecoder, DecidesOnTheWholeInput) {
  const std::string prefix = ascii(70000);  // longer than the 51,200 bytes the library examines
  const DecodeOptions replace{std::nullopt, false, true};
  const DecodeOptions forced_932{TextEncoding{TextForm::kCodePage, 932}, false, false};
  const DecodeCase cases[] = {
      {"late UTF-8", prefix + "Z\xC3\xBCrich\n", {}, prefix + "Z\xC3\xBCrich\n", "", "valid UTF-8 to the end"},
      {"late code page", prefix + "Z\xFCrich\n", {}, prefix + "Z\xC3\xBCrich\n", "", "Windows-1252"},
      {"late damaged UTF-8", prefix + "\xC3\xA9\xC3\xA9 \xE9", {}, "", "position 70005", "mostly valid UTF-8"},
      {"late UTF-8 cut off at the end", prefix + "\xC3", {}, prefix + "\xC3\x83", "", "Windows-1252"},
      {"late UTF-8 past a piece",
       ascii(kPiece + 10) + "\xE2\x82\xAC",
       {},
       ascii(kPiece + 10) + "\xE2\x82\xAC",
       "",
       "UTF-8"},
      {"UTF-32LE mark",
       std::string("\xFF\xFE\0\0", 4) + utf32(U"a\u00FC\U0001F600", false),
       {},
       "a\xC3\xBC\xF0\x9F\x98\x80",
       "",
       "UTF-32LE with mark"},
      {"UTF-32BE mark",
       std::string("\0\0\xFE\xFF", 4) + utf32(U"a\u20AC", true),
       {},
       "a\xE2\x82\xAC",
       "",
       "UTF-32BE with mark"},
      {"UTF-16LE pair", "\xFF\xFE" + std::string("\x3D\xD8\x00\xDE", 4), {}, "\xF0\x9F\x98\x80", "", ""},
      {"UTF-16BE lone low surrogate", "\xFE\xFF" + std::string("\xDC\x00\x00\x41", 4), {}, "", "position 2", ""},
      {"UTF-16LE odd byte at the end", "\xFF\xFE" + std::string("A\0B", 3), {}, "", "ends inside a code unit", ""},
      {"UTF-16LE lone surrogate replaced",
       "\xFF\xFE" + std::string("\x00\xD8"
                                "A\0",
                                4),
       replace,
       "\xEF\xBF\xBD"
       "A",
       "", ""},
      {"damaged UTF-8 reported",
       "Gr\xC3\xBC\xC3\x9F"
       "e caf\xC3\x28",
       {},
       "",
       "position 11",
       ""},
      {"damaged UTF-8 replaced",
       "Gr\xC3\xBC\xC3\x9F"
       "e caf\xC3\x28",
       replace,
       "Gr\xC3\xBC\xC3\x9F"
       "e caf\xEF\xBF\xBD(",
       "", ""},
      {"overlong form", "ab\xC3\xA9\xC3\xA9\xC3\xA9 \xC0\xAF", {}, "", "position 9", ""},
      {"NUL at the start", std::string("a\0b", 3), {}, "", "looks binary (NUL byte at offset 1)", ""},
      {"NUL after the head", prefix + std::string("\0", 1), {}, "", "NUL byte at offset 70000", ""},
      {"NUL forced", std::string("a\0b", 3), {std::nullopt, true, false}, std::string("a\0b", 3), "", ""},
      {"control bytes", std::string(200, '\x01') + "text", {}, "", "control bytes", ""},
      {"forced Shift_JIS", "\x93\xFA\x96\x7B\n", forced_932, "\xE6\x97\xA5\xE6\x9C\xAC\n", "", "as asked"},
      {"undefined Shift_JIS pair", "ab\x82\xA0\x85\x40", forced_932, "", "position 4", ""},
      // Windows' converter writes U+30FB for an undefined pair: the real one
      // must still pass.
      {"Shift_JIS middle dot", "\x81\x45?", forced_932, "\xE3\x83\xBB?", "", "as asked"},
      {"forced UTF-8 skips its mark",
       "\xEF\xBB\xBFx",
       {TextEncoding{TextForm::kUtf8, 65001}, false, false},
       "x",
       "",
       ""},
      {"empty", "", {}, "", "", "empty"},
  };
  for (const DecodeCase& c : cases) {
    const kilnutil_cli_test::Decoded decoded = decode_piped(c.bytes, c.options);
    if (c.error.empty()) {
      EXPECT_EQ(decoded.error, "") << c.name;
      EXPECT_EQ(decoded.text, c.text) << c.name;
    } else {
      EXPECT_NE(decoded.error.find(c.error), std::string::npos) << c.name << ": " << decoded.error;
    }
    EXPECT_NE(decoded.description.find(c.description), std::string::npos) << c.name << ": " << decoded.description;
  }
}

// Pieces end inside characters: a UTF-8 sequence, a surrogate pair and a
// double-byte character on a line longer than a piece.
TEST(ToolTextDecoder, KeepsCharactersWholeAcrossPieces) {
  struct Case {
    const char* name;
    std::string bytes;
    DecodeOptions options;
    std::string text;
  };
  const std::string euro_at_edge = ascii(kPiece - 1) + "\xE2\x82\xAC";
  std::string utf16 = "\xFF\xFE";
  while (utf16.size() < kPiece - 1) utf16 += std::string("a\0", 2);
  utf16 += std::string("\x3D\xD8\x00\xDE", 4);
  std::string utf16_text(kPiece / 2 - 1, 'a');
  const std::string long_line(3 * kPiece, '\x82');  // no line feed for three pieces
  std::string sjis_line;
  for (std::size_t i = 0; i < long_line.size(); i += 2) sjis_line += "\x82\xA0";
  std::string hiragana;
  for (std::size_t i = 0; i < sjis_line.size(); i += 2) hiragana += "\xE3\x81\x82";
  const Case cases[] = {
      {"UTF-8 at the piece edge", "\xC3\xA9" + euro_at_edge, {}, "\xC3\xA9" + euro_at_edge},
      {"surrogate pair at the piece edge", utf16, {}, utf16_text + "\xF0\x9F\x98\x80"},
      {"two-byte code page, one long line",
       sjis_line,
       {TextEncoding{TextForm::kCodePage, 932}, false, false},
       hiragana},
  };
  for (const Case& c : cases) {
    const kilnutil_cli_test::Decoded decoded = decode_piped(c.bytes, c.options);
    EXPECT_EQ(decoded.error, "") << c.name;
    EXPECT_TRUE(decoded.text == c.text) << c.name << ": " << decoded.text.size() << " bytes, want " << c.text.size();
  }
}

// A regular file is checked by reading ahead and seeking back, not copied.
TEST(ToolTextDecoder, ChecksRegularFilesBySeekingBack) {
  const std::filesystem::path path = kilnutil_cli_test::temporary_path("kilnutil_tool_decoder_test");
  const std::string prefix = ascii(70000);
  std::ofstream(path, std::ios::binary) << prefix << "K\xC3\xB6ln\n" << prefix;
  kilnutil_cli::InputFile input;
  ASSERT_TRUE(input.open(path.string()));
  EXPECT_TRUE(input.seekable());
  const kilnutil_cli_test::Decoded decoded = kilnutil_cli_test::decode_all(input, {});
  input.close();
  std::filesystem::remove(path);
  EXPECT_EQ(decoded.error, "");
  EXPECT_TRUE(decoded.text == prefix + "K\xC3\xB6ln\n" + prefix);
  EXPECT_NE(decoded.description.find("first non-ASCII byte at offset 70001"), std::string::npos) << decoded.description;
}

// After checking ahead, a regular file is read on from where the check
// started: the code-page text after the ASCII prefix converts whole.
TEST(ToolTextDecoder, ReadsOnAfterTheCheckFailed) {
  const std::filesystem::path path = kilnutil_cli_test::temporary_path("kilnutil_tool_decoder_back");
  const std::string prefix = ascii(70000);
  std::string tail;
  for (int i = 0; i < 200000; ++i)
    tail +=
        "Stra\xDF"
        "e;";
  std::ofstream(path, std::ios::binary) << prefix << tail;
  kilnutil_cli::InputFile input;
  ASSERT_TRUE(input.open(path.string()));
  const kilnutil_cli_test::Decoded decoded = kilnutil_cli_test::decode_all(input, {});
  input.close();
  std::filesystem::remove(path);
  std::string expected = prefix;
  for (int i = 0; i < 200000; ++i)
    expected +=
        "Stra\xC3\x9F"
        "e;";
  EXPECT_EQ(decoded.error, "");
  EXPECT_TRUE(decoded.text == expected) << decoded.text.size() << " bytes, want " << expected.size();
  EXPECT_NE(decoded.description.find("Windows-1252"), std::string::npos) << decoded.description;
}

// Forms the user names are read as named, their marks skipped; UTF-16
// without a mark is taken from the library's guess.
TEST(ToolTextDecoder, NamedAndGuessedForms) {
  const struct {
    const char* name;
    std::string bytes;
    DecodeOptions options;
    std::string text;
  } cases[] = {
      {"named UTF-16LE with its mark",
       std::string("\xFF\xFE"
                   "a\0b\0",
                   6),
       {TextEncoding{TextForm::kUtf16Le, 1200}, false, false},
       "ab"},
      {"named UTF-16BE without a mark",
       std::string("\0a\0b", 4),
       {TextEncoding{TextForm::kUtf16Be, 1201}, false, false},
       "ab"},
      {"guessed UTF-16LE", std::string("a\0b\0\n\0", 6), {}, "ab\n"},
      {"named code page 1251",
       "\xCF\xF0\xE8",
       {TextEncoding{TextForm::kCodePage, 1251}, false, false},
       "\xD0\x9F\xD1\x80\xD0\xB8"},
      {"NUL in code-page text, forced",
       std::string("\xE9\0\xE9", 3),
       {TextEncoding{TextForm::kCodePage, 1252}, true, false},
       std::string("\xC3\xA9\0\xC3\xA9", 5)},
  };
  for (const auto& c : cases) {
    const kilnutil_cli_test::Decoded decoded = decode_piped(c.bytes, c.options);
    EXPECT_EQ(decoded.error, "") << c.name;
    EXPECT_EQ(decoded.text, c.text) << c.name;
  }
}

}  // namespace
