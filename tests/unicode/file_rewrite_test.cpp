#include "support/file_access.h"
#include "support/utf16_bytes.h"
#include "test_files.h"

#include "platform/file_replacement.h"
#include "unicode/file_rewrites.h"

#include <kilnutil/frame.h>
#include <kilnutil/unicode.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>

namespace {

using kiln::platform::FileReplacement;
using kiln::platform::ReplaceStatus;
using kiln_test::read_file;
using kiln_test::TempFolder;
using kiln_test::write_file;

const std::string kMark = "\xEF\xBB\xBF";
const std::string kCafe = "caf\xC3\xA9 cr\xC3\xA8me\n";

using Rewrite = std::function<int(const std::string&)>;

Rewrite insert_mark(int only_if_non_ascii) {
  return [=](const std::string& path) { return InsertUTF8BOM(path.c_str(), only_if_non_ascii); };
}
Rewrite to_code_page(int page) {
  return [=](const std::string& path) { return ConvertUTF8TextFileToCodePageIfPossible(path.c_str(), page); };
}
Rewrite to_code_page_streamed(int page) {  // the path large files take
  return [=](const std::string& path) { return kiln::unicode::convert_utf8_file_to_code_page(path.c_str(), page, 0); };
}
int make_utf16(const std::string& path) {
  const std::basic_string<KILN_WCHAR> wide(path.begin(), path.end());
  return KILNUTIL_MakeFileUTF16(wide.c_str());
}

// Each rewrite's result code and the file afterwards; no temporary file is left.
TEST(Rewrites, ResultCodesAndContents) {
  const std::string japanese = kMark + "\xE6\x97\xA5\xE6\x9C\xAC";
  // Characters above U+FFFF go to the streamed path as their low 16 bits: U+F600, which 1252 has no form for.
  const std::string emoji = kMark + "a\xF0\x9F\x98\x80";
  const std::string cafe_1252 = "caf\xE9 cr\xE8me\n";
  const struct {
    std::string before;
    Rewrite rewrite;
    unsigned string_page;
    int result;
    std::string after;
  } cases[] = {
      {"ascii only\n", insert_mark(1), 0, 1, "ascii only\n"},
      {"ascii only\n", insert_mark(0), 0, 2, kMark + "ascii only\n"},
      {kMark + "ascii only\n", insert_mark(0), 0, 0, kMark + "ascii only\n"},
      {kCafe, insert_mark(1), 0, 2, kMark + kCafe},
      {"", insert_mark(0), 0, -328, ""},
      {kMark + kCafe, to_code_page(1252), 0, 1, cafe_1252},
      {japanese, to_code_page(1252), 0, 0, japanese},
      {japanese, to_code_page(932), 0, 1, "\x93\xFA\x96\x7B"},
      {japanese, to_code_page(-1), 932, 1, "\x93\xFA\x96\x7B"},
      {"\x93\xFA\x96\x7B", to_code_page(932), 0, -324, "\x93\xFA\x96\x7B"},
      {kMark, to_code_page(1252), 0, -323, kMark},
      {kMark + "abc", to_code_page(12345), 0, -330, kMark + "abc"},
      {"", to_code_page(1252), 0, -328, ""},
      {kMark + kCafe, to_code_page_streamed(1252), 0, 1, cafe_1252},
      {emoji, to_code_page_streamed(1252), 0, 0, emoji},
      {"\xEF\xBB", to_code_page_streamed(1252), 0, -324, "\xEF\xBB"},
      {"abc", to_code_page_streamed(1252), 0, -324, "abc"},
      {kMark + kCafe, make_utf16, 0, 0, kMark + kCafe},
      {"", make_utf16, 0, 1, "\xFF\xFE"},
      {"\xFF\xFE", make_utf16, 0, 0, "\xFF\xFE"},
      {"caf\xE9", make_utf16, 1252, 0, "\xFF\xFE" + kiln_test::utf16le("caf\xC3\xA9")},
  };
  TempFolder folder;
  const std::string path = folder.file("a.txt");
  for (const auto& c : cases) {
    write_file(path, c.before);
    const unsigned previous = c.string_page != 0 ? set_code_page_for_string_process(c.string_page) : 0;
    EXPECT_EQ(c.rewrite(path), c.result) << testing::PrintToString(c.before);
    if (c.string_page != 0) set_code_page_for_string_process(previous);
    EXPECT_EQ(read_file(path), c.after) << testing::PrintToString(c.before);
    EXPECT_EQ(folder.entry_count(), 1u);
  }
  EXPECT_EQ(InsertUTF8BOM(folder.file("missing").c_str(), 0), -329);
  EXPECT_EQ(InsertUTF8BOM(nullptr, 0), -329);
  EXPECT_EQ(ConvertUTF8TextFileToCodePageIfPossible(folder.file("missing").c_str(), 1252), -329);
  // A rewritten file keeps its permissions (on Windows: whether it is
  // writable, all the system reports of them).
  write_file(path, "echo hi\n");
  using std::filesystem::perms;
  std::filesystem::permissions(kiln_test::utf8_path(path),
                               perms::owner_all | perms::group_read | perms::group_exec | perms::others_exec);
  const perms before = std::filesystem::status(kiln_test::utf8_path(path)).permissions();
  ASSERT_EQ(InsertUTF8BOM(path.c_str(), 0), 2);
  EXPECT_EQ(std::filesystem::status(kiln_test::utf8_path(path)).permissions(), before);
}

TEST(MakeFileUtf16, CreatesMissingFilesWithTheirFoldersAndTakesUtf8Paths) {
  TempFolder folder;
  const std::string path = folder.file("new/sub/w.txt");
  EXPECT_EQ(make_utf16(path), 1);
  EXPECT_EQ(read_file(path), "\xFF\xFE");
  const std::string utf8_path = folder.file("d\xC3\xA9j\xC3\xA0.txt");
  write_file(utf8_path, kMark + kCafe);
  make_file_UTF16(utf8_path.c_str(), 0);
  EXPECT_EQ(read_file(utf8_path), kMark + kCafe);
  make_file_UTF16(utf8_path.c_str(), 1);  // deleted first
  EXPECT_EQ(read_file(utf8_path), "\xFF\xFE");
}

// ---- The original survives every failed rewrite.

TEST(RewriteFailure, NoRoomForTheTemporaryName) {
  // The POSIX backend names the temporary file after the original; with a
  // name near the system's limit it can't be created, whoever runs the test.
  if (!kiln::platform::temporary_name_extends_original()) {
    GTEST_SKIP() << "the temporary file's name does not grow with the original's (Windows: GetTempFileNameW)";
  }
  TempFolder folder;
  const std::string path = folder.file(std::string(250, 'n'));
  write_file(path, kMark + kCafe);
  EXPECT_EQ(InsertUTF8BOM(path.c_str(), 0), 0);
  write_file(path, kCafe);
  EXPECT_EQ(InsertUTF8BOM(path.c_str(), 0), 1);  // couldn't be rewritten
  EXPECT_EQ(read_file(path), kCafe);
  write_file(path, kMark + kCafe);
  EXPECT_EQ(ConvertUTF8TextFileToCodePageIfPossible(path.c_str(), 1252), -322);
  EXPECT_EQ(read_file(path), kMark + kCafe);
  EXPECT_EQ(folder.entry_count(), 1u);
}

TEST(RewriteFailure, ReadOnlyFolder) {
  TempFolder folder;
  const std::string path = folder.file("ro.txt");
  write_file(path, kMark + kCafe);
  if (!kiln_test::make_folder_read_only(folder.path())) {
    GTEST_SKIP() << "this process can't make a folder refuse new files (see support/file_access.h)";
  }
  EXPECT_EQ(ConvertUTF8TextFileToCodePageIfPossible(path.c_str(), 1252), -322);
  EXPECT_EQ(InsertUTF8BOM(path.c_str(), 0), 0);
  kiln_test::make_folder_writable(folder.path());
  EXPECT_EQ(read_file(path), kMark + kCafe);
  EXPECT_EQ(folder.entry_count(), 1u);
}

// A replacement whose original vanishes or is replaced meanwhile commits
// nothing; one never committed leaves nothing behind.
TEST(RewriteFailure, ReplacementsOnlyEverReplaceTheirOriginal) {
  using namespace kiln::unicode;
  TempFolder folder;
  const std::string path = folder.file("old.txt");
  const std::string other = folder.file("other");
  const struct {
    const char* what;
    std::function<void()> meanwhile;
    const char* left;
    size_t entries;
  } cases[] = {
      {"vanished", [&] { std::remove(path.c_str()); }, "", 0},
      {"replaced",
       [&] {
         write_file(other, "someone else's");
         std::filesystem::rename(kiln_test::utf8_path(other), kiln_test::utf8_path(path));  // replaces on Windows too
       },
       "someone else's", 1},
      {"never committed", nullptr, "old", 1},
  };
  for (const auto& c : cases) {
    write_file(path, "old");
    {
      FileReplacement replacement(path.c_str());
      ASSERT_TRUE(replacement.create());
      ASSERT_TRUE(replacement.write("new", 3));
      EXPECT_EQ(folder.entry_count(), 2u);
      if (c.meanwhile) {
        c.meanwhile();
        EXPECT_EQ(replacement.commit(), ReplaceStatus::kVanished) << c.what;
      }
    }
    EXPECT_EQ(read_file(path), c.left) << c.what;
    EXPECT_EQ(folder.entry_count(), c.entries) << c.what;
  }
}

}  // namespace
