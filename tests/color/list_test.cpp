// The colour list through its exports: the built-in names and values, the
// index conversions, searches, palette numbers and the command dispatcher.
#include <kilnutil/color.h>

#include <gtest/gtest.h>

#include <string>

namespace {

int command(int cmd, int index = 0, void* argument = nullptr, int extra = 0) {
  return KILNUTIL_Color_ex(nullptr, index, argument, cmd, extra);
}

// Every test starts from the built-in list.
class ColorListTest : public ::testing::Test {
protected:
  void SetUp() override { command(KILNUTIL_COLOR_CMD_RESTORE); }
  void TearDown() override { command(KILNUTIL_COLOR_CMD_RESTORE); }
};

TEST_F(ColorListTest, BuiltInNamesAndValues) {
  const struct {
    const char* name;
    unsigned rgb;
  } builtin[] = {
      {"Black", 0x000000},     {"Red", 0x0000FF},     {"Green", 0x00FF00},      {"Blue", 0xFF0000},
      {"Cyan", 0xFFFF00},      {"Magenta", 0xFF00FF}, {"Yellow", 0x00FFFF},     {"Dark Yellow", 0x008080},
      {"Navy", 0x800000},      {"Purple", 0x800080},  {"Wine", 0x000080},       {"Olive", 0x008000},
      {"Dark Cyan", 0x808000}, {"Royal", 0xA00000},   {"Orange", 0x0080FF},     {"Violet", 0xFF0080},
      {"Pink", 0x8000FF},      {"White", 0xFFFFFF},   {"LT Gray", 0xC0C0C0},    {"Gray", 0x808080},
      {"LT Yellow", 0x80FFFF}, {"LT Cyan", 0xFFFF80}, {"LT Magenta", 0xFF80FF}, {"Dark Gray", 0x404040},
  };
  ASSERT_EQ(command(KILNUTIL_COLOR_CMD_COUNT), 24);
  for (int i = 0; i < 24; ++i) {
    char name[KILNUTIL_COLOR_NAME_SIZE];
    ASSERT_EQ(color_index_to_name(i, name, sizeof name), 1);
    EXPECT_STREQ(name, builtin[i].name);
    EXPECT_EQ(static_cast<unsigned>(command(KILNUTIL_COLOR_CMD_RGB, i)), builtin[i].rgb) << name;
    EXPECT_EQ(command(KILNUTIL_COLOR_CMD_FIND_NAME, 0, const_cast<char*>(builtin[i].name)), i + 1);
  }
  char cut[4];
  EXPECT_EQ(color_index_to_name(-1, cut, sizeof cut), 1);  // negative: the last colour, cut to fit
  EXPECT_STREQ(cut, "Dar");
  EXPECT_EQ(color_index_to_name(24, cut, sizeof cut), 0);
}

TEST_F(ColorListTest, IndexToRgbAndSearches) {
  const struct {
    int index, mode;
    unsigned rgb;
    int status;
  } lookups[] = {
      {150, 0, 0, 0},                // above 99: 0 without a lookup
      {25, 1, 0x0000FF, 0},          // modulo the count: red
      {-1, 0, 0x404040, 0},          // the last colour
      {0x01123456, 0, 0x123456, 0},  // an RGB value gives its colour
      {30, 0, 0, 1},                 // beyond the list and the custom colours
  };
  for (const auto& l : lookups) {
    int status = -1;
    EXPECT_EQ(color_index_to_rgb(l.index, l.mode, &status), l.rgb) << l.index;
    EXPECT_EQ(status, l.status) << l.index;
  }
  const struct {
    unsigned rgb;
    int mode, index;
  } searches[] = {
      {0x808080, 0, 19},   {0x7F7F7F, 1, 19}, {0x7F7F7F, 0, -1},
      {0x01FFFFFF, 0, 17}, {0x000001, 1, 0},  // Black wins; it comes first
      {0xFFFFFF, 1, 17},
  };
  for (const auto& s : searches) EXPECT_EQ(color_rgb_to_index(s.rgb, s.mode), s.index) << std::hex << s.rgb;

  // Equally near entries: the first wins. Gray (19) and LT Gray (18) are
  // both 32*32*3 from 160,160,160; LT Gray comes first.
  EXPECT_EQ(color_rgb_to_index(0xA0A0A0, 1), 18);
}

TEST_F(ColorListTest, PaletteNumbersAndFixedCodes) {
  const struct {
    int value, offset;
    unsigned flags;
    int number;
  } to_index[] = {
      {-4, 1, 0x1000, 0},     {5, 1, 0, 6},          {0x12340005, 0, 0, 5},
      {-9, 1, 0, -8},         {0x010000FF, 1, 0, 2},  // nearest of pure red is Red (index 1)
      {-4, 1, 0, 0xFFFC + 1},
  };
  for (const auto& c : to_index) EXPECT_EQ(KILNUTIL_ColorToIndex(c.value, c.offset, c.flags), c.number) << c.value;
  EXPECT_EQ(KILNUTIL_IndexToColor(0, 1, 0x1000), -4);
  EXPECT_EQ(KILNUTIL_IndexToColor(0, 1, 0), -1);
  EXPECT_EQ(KILNUTIL_IndexToColor(7, 1, 0x1000), 6);

  const struct { int value, index; } fixed[] = {{-2, 17}, {-5, 18}, {-6, 23}, {-7, 19}, {-3, 0}, {12, 12}};
  for (const auto& f : fixed) EXPECT_EQ(KILNUTIL_get_color_index(f.value), f.index) << f.value;

  const struct {
    int index, up, after, result;
  } shifts[] = {
      {0, 1, 1, 1}, {23, 1, 24, 1}, {24, 1, 24, 0}, {-1, 1, -1, 0},
      {1, 0, 0, 1}, {24, 0, 23, 1}, {0, 0, 0, 0},   {25, 0, 25, 0},
  };
  for (const auto& s : shifts) {
    int index = s.index;
    EXPECT_EQ(check_correct_index_color(&index, s.up), s.result) << s.index << ' ' << s.up;
    EXPECT_EQ(index, s.after);
  }
}

TEST_F(ColorListTest, CommandArguments) {
  char small[3] = "xy";
  EXPECT_EQ(command(KILNUTIL_COLOR_CMD_NAME, 1, small, sizeof small), 1);
  EXPECT_STREQ(small, "Re");
  EXPECT_EQ(command(KILNUTIL_COLOR_CMD_NAME, 1, nullptr, 10), 0);
  EXPECT_EQ(command(KILNUTIL_COLOR_CMD_NAME, 1, small, 0), 0);
  EXPECT_EQ(command(KILNUTIL_COLOR_CMD_NAME, 24, small, sizeof small), 0);
  EXPECT_EQ(command(KILNUTIL_COLOR_CMD_RGB_WRAP, -23), 0x0000FF);  // -23 modulo 24 is 1: red
  EXPECT_EQ(command(KILNUTIL_COLOR_CMD_RGB_WRAP, 48), 0);
  EXPECT_EQ(command(KILNUTIL_COLOR_CMD_RGB, -1), KILNUTIL_COLOR_FAILED);
  EXPECT_EQ(command(KILNUTIL_COLOR_CMD_FIND_EXACT, 0x7F0000FF), 2);  // the top byte is not compared
  EXPECT_EQ(command(KILNUTIL_COLOR_CMD_FIND_EXACT, 0x010101), 0);
  EXPECT_EQ(command(KILNUTIL_COLOR_CMD_FIND_NEAREST, 0x0000F0), 1);
  EXPECT_EQ(command(KILNUTIL_COLOR_CMD_FIND_NAME), 0);  // null name

  // A second entry of the same colour and name: the first is found.
  char red[] = "Red";
  ASSERT_EQ(command(KILNUTIL_COLOR_CMD_SET, 24, red, 0x0000FF), 1);
  EXPECT_EQ(color_rgb_to_index(0x0000FF, 0), 1);
  EXPECT_EQ(KILNUTIL_str2vcolor("red", 0), 2);
  // Renaming keeps the colour; a null name keeps the name.
  char renamed[] = "Scarlet";
  ASSERT_EQ(command(KILNUTIL_COLOR_CMD_SET, 1, renamed, 0x0000FE), 1);
  ASSERT_EQ(command(KILNUTIL_COLOR_CMD_SET, 1, nullptr, 0x0000FD), 1);
  char name[KILNUTIL_COLOR_NAME_SIZE];
  color_index_to_name(1, name, sizeof name);
  EXPECT_STREQ(name, "Scarlet");
  EXPECT_EQ(color_index_to_rgb(1, 0, nullptr), 0x0000FDu);
}

TEST_F(ColorListTest, SetCustomColoursAndRestore) {
  char name[] = "Teal";
  EXPECT_EQ(command(KILNUTIL_COLOR_CMD_SET, 24, name, 0x808000), 1);  // appends
  EXPECT_EQ(command(KILNUTIL_COLOR_CMD_COUNT), 25);
  EXPECT_EQ(command(KILNUTIL_COLOR_CMD_FIND_NAME, 0, const_cast<char*>("teal")), 25);
  EXPECT_EQ(command(KILNUTIL_COLOR_CMD_SET, 26, name, 0), KILNUTIL_COLOR_FAILED);  // no gaps

  // Custom colours continue the indices; the table grows 16 at a time, white.
  EXPECT_EQ(command(KILNUTIL_COLOR_CMD_SET_CUSTOM, 10, nullptr, 0x123456), KILNUTIL_COLOR_FAILED);
  EXPECT_EQ(command(KILNUTIL_COLOR_CMD_SET_CUSTOM, 27, nullptr, 0x123456), 1);
  int status = -1;
  EXPECT_EQ(color_index_to_rgb(27, 0, &status), 0x123456u);
  EXPECT_EQ(color_index_to_rgb(25, 0, &status), 0xFFFFFFu);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(command(KILNUTIL_COLOR_CMD_RGB, 25 + 15), 0xFFFFFF);
  EXPECT_EQ(command(KILNUTIL_COLOR_CMD_RGB, 25 + 16), KILNUTIL_COLOR_FAILED);

  EXPECT_EQ(command(KILNUTIL_COLOR_CMD_RESTORE), 24);
  EXPECT_EQ(command(KILNUTIL_COLOR_CMD_FIND_NAME, 0, const_cast<char*>("Teal")), 0);
  EXPECT_EQ(command(KILNUTIL_COLOR_CMD_RGB, 27), KILNUTIL_COLOR_FAILED);

  // The user-interface commands touch nothing.
  for (int ui :
       {KILNUTIL_COLOR_CMD_DRAW, KILNUTIL_COLOR_CMD_PEN, KILNUTIL_COLOR_CMD_BRUSH, KILNUTIL_COLOR_CMD_DIALOG, 55}) {
    EXPECT_EQ(command(ui, 3, name, 7), KILNUTIL_COLOR_NOT_SUPPORTED);
  }
  EXPECT_EQ(command(KILNUTIL_COLOR_CMD_COUNT), 24);
  EXPECT_STREQ(name, "Teal");
}

}  // namespace
