#include "support/environment.h"
#include "support/temporary_stream.h"
#include "support/utf16_bytes.h"
#include "test_files.h"
#include "unicode/utf16_stream_to_utf8.h"

#include <kilnutil/frame.h>
#include <kilnutil/unicode.h>

#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <optional>
#include <random>
#include <string>
#include <vector>

namespace {

using kiln_test::TempFolder;
using kiln_test::write_file;

const std::string kText =
    "Gr\xC3\xBC\xC3\x9F"
    "e \xE2\x82\xAC\r\nzweite Zeile\r\n";

std::string read_rest(FILE* stream) {
  std::string text;
  for (int c; (c = std::fgetc(stream)) != EOF;) text += static_cast<char>(c);
  return text;
}

std::string temporary_path(const TextFileToUTF8Context& context) {
  char path[2048];
  return KILNUTIL_UNICODE_UTF16_to_UTF8_buffers(path, sizeof path, context.temp_path) > 0 ? path : "";
}

// One file opened through the protocol, with the system's temporary folder
// pointing into the test's folder so the converted copy can be watched.
class OpenAsUtf8 : public ::testing::Test {
protected:
  void SetUp() override {
    copies_.emplace();
    temporary_folder_.emplace(kiln_test::temporary_folder_variable(), kiln_test::utf8_string(copies_->path()));
    KILNUTIL_UNICODE_open_text_file_to_UTF8_INIT(&context_);
    context_.fallback_mode = "rb";
    context_.binary_reopen = 1;
    context_.guess = 1;
  }
  FILE* begin(const std::string& bytes) {
    path_ = files_.file("input.txt");
    write_file(path_, bytes);
    std::strcpy(context_.path, path_.c_str());
    caller_stream_ = std::fopen(path_.c_str(), "rb");
    return KILNUTIL_UNICODE_open_text_file_to_UTF8_BEGIN(caller_stream_, &context_);
  }

  TempFolder files_;
  std::optional<TempFolder> copies_;
  std::optional<kiln_test::ScopedVariable> temporary_folder_;
  TextFileToUTF8Context context_;
  std::string path_;
  FILE* caller_stream_ = nullptr;
};

// Whether `path` names a converted copy: a file in `folder` whose name
// starts with VU8.
bool is_copy_in(const std::string& path, const std::filesystem::path& folder) {
  const std::filesystem::path copy = kiln_test::utf8_path(path);
  return copy.parent_path() == folder && kiln_test::utf8_string(copy.filename()).rfind("VU8", 0) == 0;
}

// Everything but UTF-8 and big-endian text goes into a copy in the temporary
// folder, which END deletes.
TEST_F(OpenAsUtf8, ConvertedCopies) {
  using namespace std::string_literals;
  const std::string japanese = "\xE6\x97\xA5\xE6\x9C\xAC\xE8\xAA\x9E\n";
  // Long enough to be converted in pieces, with a surrogate pair across the first boundary.
  const std::string long_text = std::string(kiln::unicode::kUtf16ChunkUnits - 1, 'x') + "\xF0\x9F\x98\x80" + kText;
  const struct {
    const char* what;
    std::string bytes;
    unsigned code_page;
    int write_mark, guess;
    std::string copy;
  } cases[] = {
      {"UTF-16LE", "\xFF\xFE" + kiln_test::utf16le(long_text), 1252, 0, 1, long_text},
      {"unmarked UTF-16LE, guessed; mark asked for", kiln_test::utf16le(kText), 1252, 1, 1, "\xEF\xBB\xBF" + kText},
      {"code-page text in the effective code page", "\x93\xFA\x96\x7B\x8C\xEA\n", 932, 0, 1, japanese},
      {"plain ASCII", "just ASCII\n", 1252, 0, 1, "just ASCII\n"},
      {"unmarked UTF-16 without guessing: code-page text up to its first zero byte", "a\0b\0"s, 1252, 0, 0, "a"},
      {"an empty file", "", 1252, 1, 1, "\xEF\xBB\xBF"},
  };
  for (const auto& c : cases) {
    context_.write_mark = c.write_mark;
    context_.guess = c.guess;
    const unsigned previous = set_code_page_for_string_process(c.code_page);
    FILE* stream = begin(c.bytes);
    set_code_page_for_string_process(previous);
    ASSERT_NE(stream, nullptr) << c.what;
    EXPECT_EQ(stream, context_.converted_stream) << c.what;
    EXPECT_TRUE(is_copy_in(temporary_path(context_), copies_->path())) << c.what << ": " << temporary_path(context_);
    EXPECT_EQ(context_.mark_size, c.write_mark ? 3 : 0) << c.what;
    EXPECT_EQ(read_rest(stream), c.copy) << c.what;
    KILNUTIL_UNICODE_open_text_file_to_UTF8_END(stream, &context_);
    EXPECT_EQ(context_.converted_stream, nullptr) << c.what;
    EXPECT_EQ(context_.temp_path[0], 0) << c.what;
    EXPECT_EQ(copies_->entry_count(), 0u) << c.what;
  }
}

// UTF-8 (and anything with conversion off) is read in place past its mark;
// big-endian text is handed back at its start.
TEST_F(OpenAsUtf8, StreamsHandedBackInPlace) {
  using namespace std::string_literals;
  const struct {
    const char* what;
    std::string bytes;
    int keep_mark, no_conversion, mark_size;
    long position;
  } cases[] = {
      {"UTF-8", "\xEF\xBB\xBF" + kText, 0, 0, 3, 3},
      {"UTF-8, mark kept", "\xEF\xBB\xBF" + kText, 1, 0, 3, 0},
      {"UTF-16BE", "\xFE\xFF" + kiln_test::utf16be(kText), 0, 0, 2, 0},
      {"UTF-16LE, no conversion",
       "\xFF\xFE"
       "a\0b\0\0"s,
       0, 1, 2, 2},
  };
  for (const auto& c : cases) {
    context_.keep_mark = c.keep_mark;
    context_.no_conversion = c.no_conversion;
    FILE* stream = begin(c.bytes);
    EXPECT_EQ(stream, caller_stream_) << c.what;
    EXPECT_EQ(context_.mark_size, c.mark_size) << c.what;
    EXPECT_EQ(std::ftell(stream), c.position) << c.what;
    EXPECT_EQ(read_rest(stream), c.bytes.substr(static_cast<size_t>(c.position))) << c.what;
    EXPECT_EQ(context_.converted_stream, nullptr) << c.what;
    EXPECT_EQ(copies_->entry_count(), 0u) << c.what;
    KILNUTIL_UNICODE_open_text_file_to_UTF8_END(stream, &context_);
  }
}

TEST_F(OpenAsUtf8, TextThatConvertsToNothingFallsBack) {
  // Zero bytes only: code-page text that converts to an empty string.
  FILE* stream = begin(std::string(8, '\0'));
  ASSERT_NE(stream, nullptr);
  EXPECT_EQ(context_.converted_stream, nullptr);
  EXPECT_EQ(context_.temp_path[0], 0);
  EXPECT_EQ(copies_->entry_count(), 0u);
  KILNUTIL_UNICODE_open_text_file_to_UTF8_END(stream, &context_);
}

TEST_F(OpenAsUtf8, MissingSettingsLeaveTheStreamAlone) {
  context_.fallback_mode = nullptr;
  FILE* stream = begin("abc");
  EXPECT_EQ(stream, caller_stream_);
  EXPECT_EQ(std::ftell(stream), 0);
  std::fclose(stream);
  EXPECT_EQ(KILNUTIL_UNICODE_open_text_file_to_UTF8_BEGIN(nullptr, nullptr), nullptr);
}

// The chunked conversion against the whole text converted at once, with
// chunks small enough that pairs, lone surrogates, a zero unit, an odd last
// byte and the byte limit all meet chunk boundaries.
TEST(Utf16StreamToUtf8, MatchesTheWholeTextConversionAtEveryChunkSize) {
  std::mt19937 random(7);
  const KILN_WCHAR kUnits[] = {KILN_TEXT('a'), 0x00E9, 0x20AC, 0xD83D, 0xDE00, 0xDC00, 0xDBFF};
  for (int round = 0; round < 400; ++round) {
    std::basic_string<KILN_WCHAR> units;  // the model: units up to the first zero, an odd last byte a unit of its own
    for (int i = static_cast<int>(random() % 24); i > 0; --i) {
      units += random() % 40 == 0 ? KILN_WCHAR{0} : kUnits[random() % std::size(kUnits)];
    }
    std::string bytes(reinterpret_cast<const char*>(units.data()), units.size() * 2);  // little-endian host
    if (random() % 3 == 0) {
      bytes += random() % 2 ? 'z' : '\0';
      units += static_cast<KILN_WCHAR>(bytes.back());
    }
    std::string expected(units.size() * 3 + 1, '\0');
    expected.resize(static_cast<size_t>(std::max(
        0, KILNUTIL_UNICODE_UTF16_to_UTF8_buffers(expected.data(), static_cast<int>(expected.size()), units.c_str()))));
    for (const size_t chunk_units : {2, 3, 5, 64}) {
      FILE* in = kiln_test::temporary_stream();
      FILE* out = kiln_test::temporary_stream();
      std::fwrite((bytes + "A").data(), 1, bytes.size() + 1, in);  // the "A" lies past the byte limit
      std::rewind(in);
      ASSERT_EQ(kiln::unicode::utf16le_stream_to_utf8(in, bytes.size(), out, chunk_units),
                kiln::unicode::StreamConversion::kOk);
      std::rewind(out);
      EXPECT_EQ(read_rest(out), expected) << "round " << round << ", chunks of " << chunk_units;
      std::fclose(in);
      std::fclose(out);
    }
  }
}

TEST(OpenAsUtf8Init, ClearsTheWholeRecord) {
  TextFileToUTF8Context context;
  std::memset(&context, 0xAB, sizeof context);
  KILNUTIL_UNICODE_open_text_file_to_UTF8_INIT(&context);
  const auto* bytes = reinterpret_cast<const unsigned char*>(&context);
  for (size_t i = 0; i < sizeof context; ++i) ASSERT_EQ(bytes[i], 0) << i;
  // The layout a host relies on.
  EXPECT_EQ(offsetof(TextFileToUTF8Context, temp_path), 1040u);
  EXPECT_EQ(offsetof(TextFileToUTF8Context, binary_reopen), 2080u);
  EXPECT_EQ(offsetof(TextFileToUTF8Context, mark_size), 2104u);
  EXPECT_EQ(offsetof(TextFileToUTF8Context, no_conversion), 2128u);
}

}  // namespace
