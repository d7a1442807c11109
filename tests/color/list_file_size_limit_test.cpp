// A colour-list save whose writes fail as on a full disk leaves the old file
// whole (POSIX only: the failure is made by a file size limit on a child
// process).
#include "support/file_size_limit_posix.h"
#include "unicode/test_files.h"

#include <kilnutil/color.h>

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(ColorListFile, FailedSaveKeepsTheOldFile) {
  kiln_test::TempFolder folder;
  const std::string path = folder.file("keep.ini");
  const std::string old = "[Color List]\nOnly=1 2 3\n";
  kiln_test::write_file(path, old);
  KILNUTIL_Color_ex(nullptr, 0, nullptr, KILNUTIL_COLOR_CMD_RESTORE, 0);
  const int result = kiln_test::with_file_size_limit(
      40, [&] { return KILNUTIL_Color_ex(nullptr, 0, const_cast<char*>(path.c_str()), KILNUTIL_COLOR_CMD_SAVE, 0); });
  EXPECT_EQ(result, KILNUTIL_COLOR_FAILED);
  EXPECT_EQ(kiln_test::read_file(path), old);
  EXPECT_EQ(folder.entry_count(), 1u);  // no temporary file left behind
}

}  // namespace
