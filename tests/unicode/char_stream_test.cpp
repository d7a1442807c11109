#include "test_files.h"
#include "support/temporary_stream.h"

#include <kilnutil/unicode.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

namespace {

// A byte source over a string, giving back any number of bytes.
class StringByteSource final : public KilnByteSource {
public:
  explicit StringByteSource(std::string bytes) : bytes_(std::move(bytes)) {}
  int next_byte() override {
    if (!pushed_.empty()) {
      const int byte = pushed_.back();
      pushed_.pop_back();
      return byte;
    }
    return position_ < bytes_.size() ? static_cast<unsigned char>(bytes_[position_++]) : -1;
  }
  int push_back_byte(int byte) override {
    pushed_.push_back(byte);
    return byte;
  }

private:
  std::string bytes_;
  size_t position_ = 0;
  std::vector<int> pushed_;
};

// A stdio stream over the bytes (a temporary file), closed at the end.
class ByteStream {
public:
  explicit ByteStream(const std::string& bytes) : file_(kiln_test::temporary_stream()) {
    std::fwrite(bytes.data(), 1, bytes.size(), file_);
    std::rewind(file_);
  }
  ~ByteStream() { std::fclose(file_); }
  FILE* get() const { return file_; }

private:
  FILE* file_;
};

const std::string kMixed = "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80";

// Characters read one after another from a stream over the bytes.
TEST(Utf8Fgetc, ReadsStreamsAndSources) {
  const struct {
    std::string bytes;
    unsigned flags;
    std::vector<int> reads;
  } cases[] = {
      {kMixed, 0, {0x61, 0xE9, 0x20AC, 0x1F600, -1}},
      // Continuation bytes are not checked: the 'A' after C3 is taken as one.
      {"\xC3"
       "AB",
       0,
       {(0x03 << 6) | ('A' & 0x3F), 'B', -1}},
      // A sequence cut by the end takes the end's bits as they come.
      {"\xE2\x82", 0, {(0x2 << 12) | (0x02 << 6) | 0x3F}},
      // A raw unit never reports the end: the second read hits it, then the first.
      {"\x34\x12\x56", KILNUTIL_CHAR_RAW_UTF16, {0x1234, 0xFF56, 0xFF}},
  };
  for (const auto& c : cases) {
    ByteStream stream(c.bytes);
    for (const int expected : c.reads) EXPECT_EQ(KILNUTIL_UTF8_fgetc(stream.get(), c.flags), expected) << c.bytes;
  }
  StringByteSource source(kMixed);
  for (const int expected : cases[0].reads) EXPECT_EQ(KILNUTIL_UTF8_fgetc(&source, KILNUTIL_CHAR_SOURCE), expected);
  EXPECT_EQ(KILNUTIL_UTF8_fgetc(nullptr, 0), -1);
  EXPECT_EQ(KILNUTIL_UTF16_fgetc(nullptr, 0, 0), -1);
  KILNUTIL_UTF8_ungetc('a', nullptr, 0);
  EXPECT_EQ(KILNUTIL_UTF16_ungetc('a', nullptr, 0, 0), -1);
}

// Whether the C runtime takes back two bytes on a stream nothing was read
// from: glibc does; the Windows runtime keeps one, so a character of several
// bytes pushed back there is not whole again.
bool runtime_takes_back_several_bytes() {
  ByteStream probe("z");
  return std::ungetc('a', probe.get()) != EOF && std::ungetc('b', probe.get()) != EOF;
}

TEST(Utf8Ungetc, PushedCharactersComeBackInOrder) {
  ByteStream stream("z");
  StringByteSource source("z");
  const bool whole_on_streams = runtime_takes_back_several_bytes();
  for (const unsigned c : {0x1F600u, 0x20ACu, 0xE9u}) {
    if (whole_on_streams) {
      KILNUTIL_UTF8_ungetc(c, stream.get(), 0);
      EXPECT_EQ(KILNUTIL_UTF8_fgetc(stream.get(), 0), static_cast<int>(c));
    }
    KILNUTIL_UTF8_ungetc(c, &source, KILNUTIL_CHAR_SOURCE);
    EXPECT_EQ(KILNUTIL_UTF8_fgetc(&source, KILNUTIL_CHAR_SOURCE), static_cast<int>(c));
  }
  KILNUTIL_UTF8_ungetc(0x110000, &source, KILNUTIL_CHAR_SOURCE);  // pushes nothing
  EXPECT_EQ(KILNUTIL_UTF8_fgetc(&source, KILNUTIL_CHAR_SOURCE), 'z');
}

TEST(Utf16Units, BothByteOrdersAndPushBack) {
  ByteStream stream(std::string("\x3D\xD8\x00\xDE\x41", 5));
  EXPECT_EQ(KILNUTIL_UTF16_fgetc(stream.get(), 0, 0), 0xD83D);
  EXPECT_EQ(KILNUTIL_UTF16_ungetc(0xD83D, stream.get(), 0, 0), 0x3D);
  EXPECT_EQ(KILNUTIL_UTF16_fgetc(stream.get(), 0, 0), 0xD83D);
  EXPECT_EQ(KILNUTIL_UTF16_fgetc(stream.get(), 1, 0), 0x00DE);
  KILNUTIL_UTF16_ungetc(0x00DE, stream.get(), 1, 0);
  EXPECT_EQ(KILNUTIL_UTF16_fgetc(stream.get(), 1, 0), 0x00DE);
  EXPECT_EQ(KILNUTIL_UTF16_fgetc(stream.get(), 0, 0), -1);  // one byte left
  StringByteSource source(std::string("\x00\x41", 2));
  EXPECT_EQ(KILNUTIL_UTF16_fgetc(&source, 1, KILNUTIL_CHAR_SOURCE), 0x41);
  EXPECT_EQ(KILNUTIL_UTF16_fgetc(&source, 1, KILNUTIL_CHAR_SOURCE), -1);
}

}  // namespace
