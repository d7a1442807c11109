#include "test_files.h"

#include "unicode/file_replacement.h"
#include "unicode/file_rewrites.h"

#include <kilnutil/frame.h>
#include <kilnutil/unicode.h>

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>
#include <string>

namespace {

using kiln_test::iconv_convert;
using kiln_test::read_file;
using kiln_test::TempFolder;
using kiln_test::write_file;

const std::string kMark = "\xEF\xBB\xBF";
const std::string kCafe = "caf\xC3\xA9 cr\xC3\xA8me\n";

// Runs `call` in a child process whose files may grow to at most `limit`
// bytes (writes beyond fail instead of killing it) and returns its result.
int with_file_size_limit(rlim_t limit, const std::function<int()>& call) {
  int channel[2];
  if (pipe(channel) != 0) return 12345;
  const pid_t child = fork();
  if (child == 0) {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit rl{limit, limit};
    setrlimit(RLIMIT_FSIZE, &rl);
    const int result = call();
    ssize_t ignored = write(channel[1], &result, sizeof result);
    (void)ignored;
    _exit(0);
  }
  close(channel[1]);
  int result = 12345;
  if (read(channel[0], &result, sizeof result) != sizeof result) result = 12345;
  close(channel[0]);
  waitpid(child, nullptr, 0);
  return result;
}

TEST(InsertUtf8Mark, ResultCodes) {
  TempFolder folder;
  const std::string path = folder.file("a.txt");
  write_file(path, "ascii only\n");
  EXPECT_EQ(InsertUTF8BOM(path.c_str(), 1), 1);
  EXPECT_EQ(read_file(path), "ascii only\n");
  EXPECT_EQ(InsertUTF8BOM(path.c_str(), 0), 2);
  EXPECT_EQ(read_file(path), kMark + "ascii only\n");
  EXPECT_EQ(InsertUTF8BOM(path.c_str(), 0), 0);
  EXPECT_EQ(read_file(path), kMark + "ascii only\n");
  write_file(path, kCafe);
  EXPECT_EQ(InsertUTF8BOM(path.c_str(), 1), 2);
  EXPECT_EQ(read_file(path), kMark + kCafe);
  write_file(path, "");
  EXPECT_EQ(InsertUTF8BOM(path.c_str(), 0), -328);
  EXPECT_EQ(InsertUTF8BOM(folder.file("missing").c_str(), 0), -329);
  EXPECT_EQ(InsertUTF8BOM(nullptr, 0), -329);
  EXPECT_EQ(folder.entry_count(), 1u);
}

TEST(InsertUtf8Mark, KeepsThePermissions) {
  TempFolder folder;
  const std::string path = folder.file("script.sh");
  write_file(path, "echo hi\n");
  chmod(path.c_str(), 0751);
  ASSERT_EQ(InsertUTF8BOM(path.c_str(), 0), 2);
  struct stat info {};
  stat(path.c_str(), &info);
  EXPECT_EQ(info.st_mode & 07777, 0751u);
}

TEST(ConvertToCodePage, ResultCodes) {
  TempFolder folder;
  const std::string path = folder.file("c.txt");
  write_file(path, kMark + kCafe);
  EXPECT_EQ(ConvertUTF8TextFileToCodePageIfPossible(path.c_str(), 1252), 1);
  EXPECT_EQ(read_file(path), *iconv_convert("UTF-8", "CP1252", kCafe));
  const std::string japanese = kMark + "\xE6\x97\xA5\xE6\x9C\xAC";
  write_file(path, japanese);
  EXPECT_EQ(ConvertUTF8TextFileToCodePageIfPossible(path.c_str(), 1252), 0);
  EXPECT_EQ(read_file(path), japanese);
  EXPECT_EQ(ConvertUTF8TextFileToCodePageIfPossible(path.c_str(), 932), 1);
  EXPECT_EQ(read_file(path), "\x93\xFA\x96\x7B");
  EXPECT_EQ(ConvertUTF8TextFileToCodePageIfPossible(path.c_str(), 932), -324);  // no mark any more
  write_file(path, kMark);
  EXPECT_EQ(ConvertUTF8TextFileToCodePageIfPossible(path.c_str(), 1252), -323);
  write_file(path, kMark + "abc");
  EXPECT_EQ(ConvertUTF8TextFileToCodePageIfPossible(path.c_str(), 12345), -330);
  write_file(path, "");
  EXPECT_EQ(ConvertUTF8TextFileToCodePageIfPossible(path.c_str(), 1252), -328);
  EXPECT_EQ(ConvertUTF8TextFileToCodePageIfPossible(folder.file("missing").c_str(), 1252), -329);
  EXPECT_EQ(folder.entry_count(), 1u);
}

TEST(ConvertToCodePage, NegativeCodePageIsTheEffectiveOne) {
  TempFolder folder;
  const std::string path = folder.file("c.txt");
  write_file(path, kMark + "\xE4\xB8\xAD\xE6\x96\x87");
  const unsigned previous = set_code_page_for_string_process(936);
  EXPECT_EQ(ConvertUTF8TextFileToCodePageIfPossible(path.c_str(), -1), 1);
  set_code_page_for_string_process(previous);
  EXPECT_EQ(read_file(path), *iconv_convert("UTF-8", "CP936", "\xE4\xB8\xAD\xE6\x96\x87"));
}

TEST(ConvertToCodePage, LargeFilesStreamOneCharacterAtATime) {
  TempFolder folder;
  const std::string path = folder.file("big.txt");
  using kiln::unicode::convert_utf8_file_to_code_page;
  write_file(path, kMark + kCafe);
  EXPECT_EQ(convert_utf8_file_to_code_page(path.c_str(), 1252, 0), 1);
  EXPECT_EQ(read_file(path), *iconv_convert("UTF-8", "CP1252", kCafe));
  // Characters above U+FFFF go as their low 16 bits alone: U+1F600 as U+F600,
  // which 1252 has no form for.
  const std::string emoji = kMark + "a\xF0\x9F\x98\x80";
  write_file(path, emoji);
  EXPECT_EQ(convert_utf8_file_to_code_page(path.c_str(), 1252, 0), 0);
  EXPECT_EQ(read_file(path), emoji);
  write_file(path, "\xEF\xBB");
  EXPECT_EQ(convert_utf8_file_to_code_page(path.c_str(), 1252, 0), -324);
  write_file(path, "abc");
  EXPECT_EQ(convert_utf8_file_to_code_page(path.c_str(), 1252, 0), -324);
}

TEST(MakeFileUtf16, CreatesMissingFilesWithTheirFolders) {
  TempFolder folder;
  const std::string path = folder.file("new/sub/w.txt");
  std::u16string wide(path.begin(), path.end());
  EXPECT_EQ(KILNUTIL_MakeFileUTF16(wide.c_str()), 1);
  EXPECT_EQ(read_file(path), "\xFF\xFE");
  EXPECT_EQ(KILNUTIL_MakeFileUTF16(wide.c_str()), 0);  // already UTF-16LE
  EXPECT_EQ(read_file(path), "\xFF\xFE");
}

TEST(MakeFileUtf16, LeavesOtherUnicodeAloneAndConvertsCodePageText) {
  TempFolder folder;
  const std::string path = folder.file("w.txt");
  const std::u16string wide(path.begin(), path.end());
  write_file(path, kMark + kCafe);
  EXPECT_EQ(KILNUTIL_MakeFileUTF16(wide.c_str()), 0);
  EXPECT_EQ(read_file(path), kMark + kCafe);
  write_file(path, "");
  EXPECT_EQ(KILNUTIL_MakeFileUTF16(wide.c_str()), 1);
  EXPECT_EQ(read_file(path), "\xFF\xFE");
  const unsigned previous = set_code_page_for_string_process(1252);
  write_file(path, "caf\xE9");
  EXPECT_EQ(KILNUTIL_MakeFileUTF16(wide.c_str()), 0);
  set_code_page_for_string_process(previous);
  EXPECT_EQ(read_file(path), "\xFF\xFE" + *iconv_convert("UTF-8", "UTF-16LE", "caf\xC3\xA9"));
  EXPECT_EQ(folder.entry_count(), 1u);
}

TEST(MakeFileUtf16, Utf8PathAndDeleteFirst) {
  TempFolder folder;
  const std::string path = folder.file("d\xC3\xA9j\xC3\xA0.txt");
  write_file(path, kMark + kCafe);
  make_file_UTF16(path.c_str(), 0);
  EXPECT_EQ(read_file(path), kMark + kCafe);
  make_file_UTF16(path.c_str(), 1);
  EXPECT_EQ(read_file(path), "\xFF\xFE");
}

// ---- The original survives every failed rewrite.

TEST(RewriteFailure, FileSizeLimitLeavesTheOriginal) {
  TempFolder folder;
  const std::string path = folder.file("limited.txt");
  const std::string original = std::string(5000, 'x') + kCafe;
  write_file(path, original);
  EXPECT_EQ(with_file_size_limit(4096, [&] { return InsertUTF8BOM(path.c_str(), 0); }), -321);
  EXPECT_EQ(read_file(path), original);
  EXPECT_EQ(folder.entry_count(), 1u);

  write_file(path, kMark + original);
  EXPECT_EQ(with_file_size_limit(4096, [&] { return ConvertUTF8TextFileToCodePageIfPossible(path.c_str(), 1252); }),
            -321);
  EXPECT_EQ(read_file(path), kMark + original);
  EXPECT_EQ(folder.entry_count(), 1u);

  const std::string code_page_text(5000, 'y');
  write_file(path, code_page_text);
  const std::u16string wide(path.begin(), path.end());
  EXPECT_EQ(with_file_size_limit(4096, [&] { return KILNUTIL_MakeFileUTF16(wide.c_str()); }), 0);
  EXPECT_EQ(read_file(path), code_page_text);
  EXPECT_EQ(folder.entry_count(), 1u);
}

TEST(RewriteFailure, NoRoomForTheTemporaryName) {
  // The temporary file's name is the original's plus a suffix; with a name
  // near the system's limit it can't be created, whoever runs the test.
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
  if (geteuid() == 0) GTEST_SKIP() << "a read-only folder does not stop root (see NoRoomForTheTemporaryName)";
  TempFolder folder;
  const std::string path = folder.file("ro.txt");
  write_file(path, kMark + kCafe);
  chmod(folder.path().c_str(), 0555);
  EXPECT_EQ(ConvertUTF8TextFileToCodePageIfPossible(path.c_str(), 1252), -322);
  EXPECT_EQ(InsertUTF8BOM(path.c_str(), 0), 0);
  chmod(folder.path().c_str(), 0755);
  EXPECT_EQ(read_file(path), kMark + kCafe);
  EXPECT_EQ(folder.entry_count(), 1u);
}

TEST(RewriteFailure, AFileThatVanishesIsNotRecreated) {
  using namespace kiln::unicode;
  TempFolder folder;
  const std::string path = folder.file("gone.txt");
  write_file(path, "old");
  FileReplacement replacement(path.c_str());
  ASSERT_TRUE(replacement.create());
  ASSERT_TRUE(replacement.write("new", 3));
  std::remove(path.c_str());
  EXPECT_EQ(replacement.commit(), ReplaceStatus::kVanished);
  EXPECT_EQ(folder.entry_count(), 0u);
}

TEST(RewriteFailure, AFileReplacedMeanwhileIsLeftToItsNewOwner) {
  using namespace kiln::unicode;
  TempFolder folder;
  const std::string path = folder.file("swapped.txt");
  write_file(path, "old");
  FileReplacement replacement(path.c_str());
  ASSERT_TRUE(replacement.create());
  ASSERT_TRUE(replacement.write("new", 3));
  write_file(folder.file("other"), "someone else's");
  std::rename(folder.file("other").c_str(), path.c_str());
  EXPECT_EQ(replacement.commit(), ReplaceStatus::kVanished);
  EXPECT_EQ(read_file(path), "someone else's");
  EXPECT_EQ(folder.entry_count(), 1u);
}

TEST(RewriteFailure, UncommittedReplacementsLeaveNothing) {
  using namespace kiln::unicode;
  TempFolder folder;
  const std::string path = folder.file("kept.txt");
  write_file(path, "old");
  {
    FileReplacement replacement(path.c_str());
    ASSERT_TRUE(replacement.create());
    ASSERT_TRUE(replacement.write("new", 3));
    EXPECT_EQ(folder.entry_count(), 2u);
  }
  EXPECT_EQ(read_file(path), "old");
  EXPECT_EQ(folder.entry_count(), 1u);
}

}  // namespace
