// Rewrites whose writes fail as on a full disk leave the original whole
// (POSIX only: the failure is made by a file size limit on a child process).
#include "support/file_size_limit_posix.h"
#include "test_files.h"

#include <kilnutil/unicode.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace {

using kiln_test::read_file;
using kiln_test::TempFolder;
using kiln_test::write_file;

TEST(RewriteFailure, FileSizeLimitLeavesTheOriginal) {
  TempFolder folder;
  const std::string path = folder.file("limited.txt");
  const std::string mark = "\xEF\xBB\xBF";
  const std::string text = std::string(5000, 'x') + "caf\xC3\xA9 cr\xC3\xA8me\n";
  const std::basic_string<KILN_WCHAR> wide_path(path.begin(), path.end());
  const struct {
    std::string original;
    std::function<int()> rewrite;
    int result;
  } cases[] = {
      {text, [&] { return InsertUTF8BOM(path.c_str(), 0); }, -321},
      {mark + text, [&] { return ConvertUTF8TextFileToCodePageIfPossible(path.c_str(), 1252); }, -321},
      {std::string(5000, 'y'), [&] { return KILNUTIL_MakeFileUTF16(wide_path.c_str()); }, 0},
  };
  for (const auto& c : cases) {
    write_file(path, c.original);
    EXPECT_EQ(kiln_test::with_file_size_limit(4096, c.rewrite), c.result);
    EXPECT_EQ(read_file(path), c.original);
    EXPECT_EQ(folder.entry_count(), 1u);
  }
}

}  // namespace
