// The colour list saved to and loaded from the "Color List" section of an
// initialisation file: round trips, other sections kept, files in UTF-16.
// Saves whose writes fail are in list_file_size_limit_test.cpp (POSIX only).
#include "unicode/test_files.h"

#include "color/ini_section.h"

#include <kilnutil/color.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using kiln_test::read_file;
using kiln_test::TempFolder;
using kiln_test::write_file;

int command(int cmd, const std::string& path, int index = 0, int extra = 0) {
  return KILNUTIL_Color_ex(nullptr, index, const_cast<char*>(path.c_str()), cmd, extra);
}

class ColorListFileTest : public ::testing::Test {
protected:
  void SetUp() override { KILNUTIL_Color_ex(nullptr, 0, nullptr, KILNUTIL_COLOR_CMD_RESTORE, 0); }
  void TearDown() override { SetUp(); }
  TempFolder folder_;
};

// Saved with a non-ASCII name, the list comes back exactly after a restore.
TEST_F(ColorListFileTest, SaveAndLoadRoundTrip) {
  const std::string path = folder_.file("colors.ini");
  write_file(path, "[General]\r\nLanguage=E\r\n[color list]\r\nOld=1 2 3\r\n[Other]\r\nKey=Value\r\n");
  const std::string bleu = "Bleu \xC3\xA9t\xC3\xA9";  // "Bleu été"
  ASSERT_EQ(command(KILNUTIL_COLOR_CMD_SET, bleu, 24, 0x804020), 1);
  ASSERT_EQ(command(KILNUTIL_COLOR_CMD_SAVE, path), 1);

  const std::string saved = read_file(path);
  EXPECT_EQ(saved.rfind("[General]\r\nLanguage=E\r\n[Color List]\r\nBlack=0 0 0\r\nRed=255 0 0\r\n", 0), 0u) << saved;
  EXPECT_NE(saved.find("\r\n" + bleu + "=32 64 128\r\n[Other]\r\nKey=Value\r\n"), std::string::npos) << saved;
  EXPECT_EQ(saved.find("Old="), std::string::npos);

  KILNUTIL_Color_ex(nullptr, 0, nullptr, KILNUTIL_COLOR_CMD_RESTORE, 0);
  ASSERT_EQ(command(KILNUTIL_COLOR_CMD_LOAD, path), 25);
  char name[KILNUTIL_COLOR_NAME_SIZE];
  ASSERT_EQ(color_index_to_name(24, name, sizeof name), 1);
  EXPECT_EQ(name, bleu);
  EXPECT_EQ(color_index_to_rgb(24, 0, nullptr), 0x804020u);
  EXPECT_EQ(KILNUTIL_str2vcolor(bleu.c_str(), 0), 25);
}

// Loading reads any encoding, skips unusable lines, cuts long names at a
// character boundary and stops at the capacity; nothing usable leaves the list.
TEST_F(ColorListFileTest, LoadRules) {
  const std::string utf16 = folder_.file("utf16.ini");
  std::string bytes = "\xFF\xFE";
  for (char c : std::string("[Color List]\r\nCrimson=220 20 60\r\n")) bytes += {c, '\0'};
  write_file(utf16, bytes);
  ASSERT_EQ(command(KILNUTIL_COLOR_CMD_LOAD, utf16), 1);
  EXPECT_EQ(color_index_to_rgb(0, 0, nullptr), 0x3C14DCu);

  const std::string mixed = folder_.file("mixed.ini");
  const std::string long_name = std::string(26, 'x') + "\xC3\xA9" + "yz";  // the 2-byte character straddles 27
  std::string text = "[Color List]\n; a comment\nBad=1 2\nNoValue\n" + long_name + "=1 2 3 extra\n";
  for (int i = 0; i < 45; ++i) text += "C" + std::to_string(i) + "=" + std::to_string(i) + " 0 0\n";
  write_file(mixed, text);
  ASSERT_EQ(command(KILNUTIL_COLOR_CMD_LOAD, mixed), KILNUTIL_COLOR_LIST_CAPACITY);
  char name[KILNUTIL_COLOR_NAME_SIZE];
  color_index_to_name(0, name, sizeof name);
  EXPECT_EQ(std::string(name), std::string(26, 'x'));
  color_index_to_name(-1, name, sizeof name);
  EXPECT_STREQ(name, "C38");

  const std::string none = folder_.file("none.ini");
  write_file(none, "[Other]\nRed=1 2 3\n");
  for (const std::string& path : {none, folder_.file("missing.ini")}) {
    EXPECT_EQ(command(KILNUTIL_COLOR_CMD_LOAD, path), KILNUTIL_COLOR_FAILED);
  }
  EXPECT_EQ(KILNUTIL_Color_ex(nullptr, 0, nullptr, KILNUTIL_COLOR_CMD_COUNT, 0), KILNUTIL_COLOR_LIST_CAPACITY);
}

TEST_F(ColorListFileTest, SaveToAMissingFolderFails) {
  EXPECT_EQ(command(KILNUTIL_COLOR_CMD_SAVE, folder_.file("no/such/folder.ini")), KILNUTIL_COLOR_FAILED);
  EXPECT_EQ(folder_.entry_count(), 0u);
}

TEST(ColorIniSection, ReplaceAndRead) {
  using kiln::color::IniEntry;
  const std::vector<IniEntry> entries = {{"A", "1 2 3"}};
  const struct {
    const char* before;
    const char* after;
  } cases[] = {
      {"", "[Color List]\nA=1 2 3\n"},
      {"[x]\nk=v", "[x]\nk=v\n[Color List]\nA=1 2 3\n"},
      {" [ COLOR LIST ] \nB=4\n\n[y]\n", "[Color List]\nA=1 2 3\n[y]\n"},
  };
  for (const auto& c : cases) EXPECT_EQ(kiln::color::with_section_replaced(c.before, "Color List", entries), c.after);
  const auto read = kiln::color::section_entries("[Color List]\n  Key  =  v w \n=x\n[Next]\nZ=1\n", "Color List");
  ASSERT_EQ(read.size(), 1u);
  EXPECT_EQ(read[0].key, "Key");
  EXPECT_EQ(read[0].value, "v w");
}

}  // namespace
