// Colour text both ways, and the small utilities: comparison, byte swap,
// luminance, reversal and ramps.
#include <kilnutil/color.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <string>
#include <vector>

namespace {

std::string format(int value, unsigned flags) {
  char buffer[KILNUTIL_COLOR_TEXT_SIZE];
  return KILNUTIL_vcolor_format(buffer, value, flags);
}

TEST(ColorTextRead, EveryForm) {
  const struct {
    const char* text;
    unsigned flags;
    int value;
  } cases[] = {
      {nullptr, 0, 0},
      {"", 0, 0},
      {"None", 0, -4},
      {"nONe", 0, -4},
      {"Red", 0, 2},
      {"dark gray", 0, 24},
      {"Dark Gray ", 0, 0},
      {"#F80", 0, 0x010088FF},
      {"#ff8000", 0, 0x010080FF},
      {"#GG0000", 0, 0},
      {"#12 34", 0, 0},
      {"#", 0, 0},
      {"#12345", 0, 0x01053412},  // three fields of at most two digits
      {"RGB(1,2,3)", 0, 0x01030201},
      {"RGB( 1 , 2 , 3 )", 0, 0x01030201},
      {"rgb(1,2,3)", 0, 0},
      {"RGB(1,2)", 0, 0},
      {"RGB(256,2,3)", 0, 0x01030200},  // each number reduced to 8 bits
      {"R(1,2,3)", 0, 0},
      {"HSL(0,120,240)", 0, 0x010000FF},  // hue, lightness, saturation
      {"HSL(160,120,240)", 0, 0x01FF0000},
      // Beyond the 0-240 scale: signed integer arithmetic, then the low bytes
      // (m2 = 270, m1 = -30: red 287 -> 31, green and blue -31 -> 225).
      {"HSL(0,120,300)", 0, 0x01E1E11F},
      {"HSL(70000,120,240)", 0, 0x01000000},  // hue cut to 16 bits (4464), far past the circle: m1

      {"1,2,3", 0x10000, 1},
      {" RGB(1,2,3)", 0x10000, 0x01030201},
      {"(0,120,240)", 0x20000, 0},
      {"hsl(0,120,240)", 0x20000, 0x010000FF},
      {"5", 0, 5},
      {"0", 0, 0},
      {"abc", 0, 0},
      {"100", 0, 100},
      {"101", 0, 0x01000065},
      {"255", 0, 0x010000FF},
      {"256", 0, 256},
      {"257", 0, 257},
      {"356", 0, 356},
      {"357", 0, 0x01000165},
      {"16777216", 0, 16777216},
      {"16777218", 0, 0x01000002},  // v - 1 beyond 0xFFFFFF: taken as RGB
      {"-1", 0, 0x01FFFFFF},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(KILNUTIL_str2vcolor(c.text, c.flags), c.value) << (c.text ? c.text : "(null)") << " flags " << c.flags;
  }
}

TEST(ColorTextWrite, EveryFlag) {
  const struct {
    int value;
    unsigned flags;
    const char* text;
  } cases[] = {
      {-4, 0, "None"},
      {1, 0, "Red"},
      {1, 0x20000000, "Black"},
      {0, 0x20000000, "--"},
      {0x010080FF, 0x10000, "RGB(255,128,0)"},
      {0x010080FF, 0, "#FF8000"},
      {0x010000FF, 0x20000, "HSL(0,240,120)"},
      {2, 0x01000000, "Green #00FF00"},
      {24, 0, "--"},
      {24, 0x40000000, "--"},
      {24, 0x41000000, "24: > 24"},
      {25, 0x61000000, "25: > 24"},
      {24, 0x60000000, "Dark Gray"},
      {7, 0x80000000, "7"},
      {7, 0xA0000000, "7"},
      {25, 0x10000000, "#FF0000"},
      {1, 0x10010000, "RGB(255,0,0)"},
      {100, 0, "--"},         // low byte 100-254 without the marker: neither index nor RGB
      {0x02000005, 0, "--"},  // beyond the index range without the marker
      {-1, 0, "--"},
      {static_cast<int>(0x81000005), 0, "--"},
  };
  for (const auto& c : cases) EXPECT_EQ(format(c.value, c.flags), c.text) << std::hex << c.value << ' ' << c.flags;

  char html[KILNUTIL_COLOR_TEXT_SIZE];
  EXPECT_STREQ(KILNUTIL_RGB_to_HTML(html, 0x01ABCDEF), "#EFCDAB");
  EXPECT_EQ(KILNUTIL_vcolor_format(nullptr, 1, 0), nullptr);
}

// HSL text read and written: the second and third numbers swap meaning.
TEST(ColorTextRead, HslAsymmetryAndRoundTrips) {
  EXPECT_EQ(format(KILNUTIL_str2vcolor("HSL(0,120,240)", 0), 0x20000), "HSL(0,240,120)");
  // Names read as 1-based numbers; the writer needs the 1-based flag for them.
  const struct {
    const char* text;
    unsigned flags;
  } round_trips[] = {
      {"#123456", 0},
      {"RGB(10,20,30)", 0x10000},
      {"Navy", 0x20000000},
      {"None", 0},
  };
  for (const auto& r : round_trips) EXPECT_EQ(format(KILNUTIL_str2vcolor(r.text, r.flags), r.flags), r.text);
  EXPECT_EQ(format(KILNUTIL_str2vcolor("Navy", 0), 0), "Purple");
}

TEST(ColorUtilities, CompareSwapLuminance) {
  EXPECT_TRUE(KILNUTIL_same_color(0x000000, 0x030303, 3));
  EXPECT_FALSE(KILNUTIL_same_color(0x000000, 0x030303, 2));
  EXPECT_TRUE(KILNUTIL_same_color(0xFF000000, 0x00000000, 0));  // top byte ignored
  EXPECT_FALSE(KILNUTIL_same_color(0x000000, 0x000001, -1));
  EXPECT_EQ(KILNUTIL_RGBtoBGR(0x01123456), 0x563412u);

  const struct {
    unsigned rgb;
    int mode;
    double want;
  } luminance[] = {
      {0xFFFFFF, 0, 1},
      {0x00FF00, 0, 0.7152},
      {0x808080, 0, 128 / 255.0},
      {0x0000FF, 1, 0.5},
      {0x000080, 0, 0.2126 * std::pow(128 / 255.0, 2.2)},
  };
  for (const auto& l : luminance) EXPECT_DOUBLE_EQ(RGB_luminance(l.rgb, l.mode), l.want) << std::hex << l.rgb;
}

TEST(ColorUtilities, Reversal) {
  const struct {
    const char* what;
    unsigned got, want;
  } cases[] = {
      {"gray inverts", RGB_reverse(0x000000, 0, 3), 0xFFFFFF},
      {"gray pulled to the middle", RGB_reverse_by_Gray(0x000000, 50), 0x808080},
      {"HSL inverts lightness", RGB_reverse_by_HSL(0x000080, 0), 0x8080FF},
      {"unknown method keeps", RGB_reverse(0x123456, 0, 9), 0x123456},
      {"method 1 is HSL", RGB_reverse(0x123456, 10, 1), RGB_reverse_by_HSL(0x123456, 10)},
      {"method 2 is LCH", RGB_reverse(0x123456, 10, 2), RGB_reverse_by_LCH(0x123456, 10)},
      {"method 3 is Lab", RGB_reverse(0x123456, 10, 3), RGB_reverse_by_LAB(0x123456, 10)},
      {"Lab only pulls", RGB_reverse_by_LAB(0x123456, 0), 0x123456},
      {"Lab pulled all the way inverts L", RGB_reverse_by_LAB(0x000000, 100), 0xFFFFFF},
      {"HSV only pulls", RGB_reverse_by_HSV(0x0000FF, 0), 0x0000FF},
      {"LCH strength limited to 100", RGB_reverse_by_LCH(0x123456, 250), RGB_reverse_by_LCH(0x123456, 100)},
      // Saturated red at strength 1: saturation * 0.6, lightness 1 - max(0.2126, 0.3), pulled by 1%.
      {"default, saturated", RGB_reverse(0x0000FF, 1, 0), HSLtoRGB(0, 0.6, (0.98 * 0.7 + 0.01))},
      {"default, strength 0", RGB_reverse(0x0000FF, 0, 0), HSLtoRGB(0, 1, 0.5)},
  };
  for (const auto& c : cases) EXPECT_EQ(c.got, c.want) << c.what;
}

TEST(ColorUtilities, Ramps) {
  const struct {
    unsigned start, end;
    int n, three, marker;
    std::vector<unsigned> want;
  } cases[] = {
      {0x000000, 0xFFFFFF, 3, 0, 0, {0x000000, 0x808080, 0xFFFFFF}},
      {0x0000FF, 0xFF0000, 1, 0, 1, {0x010000FF}},  // n = 1: the start colour
      // Three colours: the middle point is 255 - start - end per channel.
      {0x0000FF, 0xFF0000, 3, 1, 0, {0x0000FF, 0x408040, 0xFF0000}},
      {0x0000FF, 0xFF0000, 5, 1, 0, {0x0000FF, 0x10608F, 0x408040, 0x8F6010, 0xFF0000}},
  };
  for (const auto& c : cases) {
    std::vector<unsigned> out(c.want.size() + 1, 0xDEAD);
    EXPECT_EQ(colormap_rgb_ramp(c.start, c.end, c.n, out.data(), c.three, c.marker), 0);
    EXPECT_EQ(std::vector<unsigned>(out.begin(), out.end() - 1), c.want);
    EXPECT_EQ(out.back(), 0xDEADu);  // nothing past n
  }
  unsigned untouched = 7;
  colormap_rgb_ramp(0, 0xFFFFFF, 0, &untouched, 0, 0);
  EXPECT_EQ(untouched, 7u);
}

}  // namespace
