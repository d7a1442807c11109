#include "support/file_access.h"
#include "support/utf16_bytes.h"
#include "test_files.h"

#include <kilnutil/unicode.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using kiln_test::read_file;
using kiln_test::TempFolder;
using kiln_test::write_file;

TEST(Utf8Paths, FopenTakesRuntimeModes) {
  TempFolder folder;
  const std::string path = folder.file("\xC3\xBC\xE6\x97\xA5.txt");
  FILE* out = KILNUTIL_UTF8_fopen(path.c_str(), "wtN");
  ASSERT_NE(out, nullptr);
  std::fputs("line\n", out);
  std::fclose(out);
  FILE* in = KILNUTIL_UTF8_fopen(path.c_str(), "rt, ccs=UTF-8");
  ASSERT_NE(in, nullptr);
  char buffer[16] = {};
  EXPECT_NE(std::fgets(buffer, sizeof buffer, in), nullptr);
  EXPECT_STREQ(buffer, "line\n");
  std::fclose(in);
  EXPECT_EQ(KILNUTIL_UTF8__access(path.c_str(), 0), 0);
  EXPECT_EQ(KILNUTIL_UTF8__access(path.c_str(), 6), 0);
  EXPECT_EQ(KILNUTIL_UTF8__access(folder.file("missing").c_str(), 0), -1);
}

TEST(Utf8Paths, PathsLongerThanTheWideBufferFail) {
  const std::string long_path = "/tmp/" + std::string(1040, 'a');
  EXPECT_EQ(KILNUTIL_UTF8_fopen(long_path.c_str(), "rb"), nullptr);
  EXPECT_EQ(KILNUTIL_UTF8__access(long_path.c_str(), 0), -1);
  EXPECT_EQ(KILNUTIL_UTF8_CreateFile(long_path.c_str(), 0x80000000u, 0, nullptr, 3, 0, nullptr), INVALID_HANDLE_VALUE);
  EXPECT_EQ(KILNUTIL_UTF8_fopen(nullptr, "rb"), nullptr);
}

TEST(Utf8Paths, CreateFileDispositions) {
  TempFolder folder;
  const std::string path = folder.file("c.bin");
  constexpr unsigned kRead = 0x80000000u, kWrite = 0x40000000u;
  EXPECT_EQ(KILNUTIL_UTF8_CreateFile(path.c_str(), kRead, 0, nullptr, 3, 0, nullptr), INVALID_HANDLE_VALUE);
  HANDLE created = KILNUTIL_UTF8_CreateFile(path.c_str(), kWrite, 0, nullptr, 1, 0x80, nullptr);
  ASSERT_NE(created, INVALID_HANDLE_VALUE);
  EXPECT_TRUE(kiln_test::write_to_handle(created, "abc"));
  EXPECT_TRUE(kiln_test::close_handle(created));
  EXPECT_EQ(KILNUTIL_UTF8_CreateFile(path.c_str(), kWrite, 0, nullptr, 1, 0, nullptr), INVALID_HANDLE_VALUE);
  HANDLE truncated = KILNUTIL_UTF8_CreateFile(path.c_str(), kWrite, 0, nullptr, 5, 0, nullptr);
  ASSERT_NE(truncated, INVALID_HANDLE_VALUE);
  EXPECT_TRUE(kiln_test::close_handle(truncated));
  EXPECT_EQ(read_file(path), "");
  EXPECT_EQ(KILNUTIL_UTF8_CreateFile(path.c_str(), kRead, 0, nullptr, 9, 0, nullptr), INVALID_HANDLE_VALUE);
}

// UTF-16 text is written as ANSI text (the C locale's ANSI code page is
// 1252), its first two bytes skipped even without a mark; anything else
// leaves the destination empty.
TEST(UnicodeFileToAnsi, WritesUtf16TextAsAnsiText) {
  TempFolder folder;
  const std::string source = folder.file("w.txt");
  const std::string target = folder.file("a.txt");
  const struct {
    std::string source;
    int result;
    std::string target;
  } cases[] = {
      {"\xFF\xFE" + kiln_test::utf16le("caf\xC3\xA9\r\n"), 1, "caf\xE9\r\n"},
      {kiln_test::utf16le("xy\r\n"), 1, "y\r\n"},
      {"plain narrow text\n", 0, ""},
      {"\xFE\xFF" + kiln_test::utf16be("big"), 0, ""},
  };
  for (const auto& c : cases) {
    write_file(source, c.source);
    write_file(target, "previous");
    EXPECT_EQ(KILNUTIL_ConvertUNICODEtoMBCS(source.c_str(), target.c_str()), c.result) << c.target;
    EXPECT_EQ(read_file(target), c.target);
  }
  EXPECT_EQ(KILNUTIL_ConvertUNICODEtoMBCS(folder.file("missing").c_str(), target.c_str()), 0);
  EXPECT_EQ(KILNUTIL_ConvertUNICODEtoMBCS(source.c_str(), folder.file("no/such/dir").c_str()), 0);
}

}  // namespace
