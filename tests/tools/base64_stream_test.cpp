// The tool's Base64 pieces: the same text however the input is cut, and the
// strict decoder's answers where the common tools answer.
#include "base64_stream.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using kilnutil_cli::Base64Decoder;
using kilnutil_cli::Base64Encoder;

std::string encode_in_pieces(const std::string& bytes, std::size_t wrap, std::size_t piece) {
  Base64Encoder encoder(wrap);
  std::string out;
  for (std::size_t at = 0; at < bytes.size(); at += piece) encoder.add(std::string_view(bytes).substr(at, piece), out);
  encoder.finish(out);
  return out;
}

TEST(ToolBase64, KnownTextsAndWrapping) {
  struct Case {
    std::string bytes;
    std::size_t wrap;
    std::string text;
  };
  const Case cases[] = {
      {"", 76, ""},
      {"f", 76, "Zg==\n"},
      {"fo", 76, "Zm8=\n"},
      {"foo", 76, "Zm9v\n"},
      {"foob", 0, "Zm9vYg=="},
      {"fooba", 3, "Zm9\nvYm\nE=\n"},
      {"foobar", 4, "Zm9v\nYmFy\n"},
      {"foobar", 1, "Z\nm\n9\nv\nY\nm\nF\ny\n"},
  };
  for (const Case& c : cases) {
    for (std::size_t piece : {1, 2, 5, 64}) EXPECT_EQ(encode_in_pieces(c.bytes, c.wrap, piece), c.text) << c.bytes;
  }
}

TEST(ToolBase64, PiecesDoNotChangeTheText) {
  std::mt19937 random(11);
  std::string bytes(100000, '\0');
  for (char& byte : bytes) byte = static_cast<char>(random() & 0xFF);
  for (std::size_t wrap : {0, 1, 76, 77}) {
    const std::string whole = encode_in_pieces(bytes, wrap, bytes.size());
    for (std::size_t piece : {1, 7, 4096, 65537}) EXPECT_EQ(encode_in_pieces(bytes, wrap, piece), whole) << piece;
    for (std::size_t piece : {1, 13, 4096}) {
      Base64Decoder decoder(false);
      std::string back;
      for (std::size_t at = 0; at < whole.size(); at += piece) {
        ASSERT_TRUE(decoder.add(std::string_view(whole).substr(at, piece), back)) << decoder.error();
      }
      EXPECT_TRUE(decoder.finish(back));
      EXPECT_TRUE(back == bytes) << wrap << " " << piece;
    }
  }
}

TEST(ToolBase64, StrictDecoding) {
  struct Case {
    const char* text;
    bool ignore_garbage;
    const char* bytes;  // written, also before a failure
    const char* error;  // part of the error, or "" for success
  };
  const Case cases[] = {
      {"Zm9v\nYmFy\n", false, "foobar", ""},
      {"YQ==YQ==", false, "aa", ""},
      {"Zm9v\r\nYmFy", false, "foo", "character 0x0D at offset 4"},
      {"YW Jj", false, "a", "character 0x20 at offset 2"},
      {"YW Jj", true, "abc", ""},
      {"YQ=a", false, "a", "misplaced padding"},
      {"YWJ", false, "ab", "ends inside a group"},
      {"Y", false, "", "ends inside a group"},
      {"=", false, "", "ends inside a group"},
      {"YQ==*", true, "a", ""},
  };
  for (const Case& c : cases) {
    Base64Decoder decoder(c.ignore_garbage);
    std::string bytes;
    const bool ok = decoder.add(c.text, bytes) && decoder.finish(bytes);
    EXPECT_EQ(bytes, c.bytes) << c.text;
    EXPECT_EQ(ok, *c.error == '\0') << c.text;
    EXPECT_NE(decoder.error().find(c.error), std::string::npos) << c.text << ": " << decoder.error();
  }
}

}  // namespace
