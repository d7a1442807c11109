// Inputs and outputs named on the command line: the system's reason for
// every failure, offsets and seeking, and the adopted copy of a pipe.
#include "file_io.h"
#include "support/temporary_stream.h"
#include "tool_input.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace {

namespace fs = std::filesystem;

TEST(ToolIo, FailuresCarryTheSystemsReason) {
  const fs::path folder = fs::temp_directory_path();
  struct Case {
    std::string name;
    const char* reason;
  };
  const Case cases[] = {
      {(folder / "kilnutil_no_such_file").string(), "No such file or directory"},
      {folder.string(), "Is a directory"},
  };
  for (const Case& c : cases) {
    kilnutil_cli::InputFile input;
    EXPECT_FALSE(input.open(c.name)) << c.name;
    EXPECT_EQ(input.error(), c.reason) << c.name;
  }
  kilnutil_cli::OutputFile output;
  EXPECT_FALSE(output.open((folder / "kilnutil_no_such_folder" / "out").string()));
  EXPECT_EQ(output.error(), "No such file or directory");
  EXPECT_EQ(kilnutil_cli::OutputFile().name(), "");
}

TEST(ToolIo, OffsetsSizesAndSeeking) {
  const fs::path path = kilnutil_cli_test::temporary_path("kilnutil_tool_io_test");
  std::ofstream(path, std::ios::binary) << "0123456789";
  kilnutil_cli::InputFile input;
  ASSERT_TRUE(input.open(path.string()));
  EXPECT_TRUE(input.seekable());
  EXPECT_EQ(input.size(), 10u);
  char buffer[16] = {};
  EXPECT_EQ(input.read_full(buffer, 4), 4u);
  EXPECT_EQ(input.offset(), 4u);
  EXPECT_EQ(input.read_full(buffer, 16), 6u);
  EXPECT_EQ(std::string(buffer, 6), "456789");
  ASSERT_TRUE(input.seek_back(2));
  EXPECT_EQ(input.read_full(buffer, 3), 3u);
  EXPECT_EQ(std::string(buffer, 3), "234");
  // A copy adopted in its place continues at the same offset and can't seek.
  std::FILE* copy = kiln_test::temporary_stream();
  std::fputs("rest", copy);
  std::rewind(copy);
  input.adopt(copy, 5);
  EXPECT_FALSE(input.seekable());
  EXPECT_FALSE(input.seek_back(0));
  EXPECT_EQ(input.read_full(buffer, 16), 4u);
  EXPECT_EQ(input.offset(), 9u);
  fs::remove(path);
}

}  // namespace
