// Colour text and the small colour utilities.
#include "color/color_text.h"
#include "color/color_utilities.h"

#include <kilnutil/color.h>

using namespace kiln::color;

extern "C" {

int KILNUTIL_str2vcolor(const char* text, unsigned int flags) { return color_from_text(text, flags); }

char* KILNUTIL_vcolor_format(char* buffer, int value, unsigned int flags) {
  if (buffer != nullptr) format_color(buffer, value, flags);
  return buffer;
}

char* KILNUTIL_RGB_to_HTML(char* buffer, unsigned int rgb) {
  if (buffer != nullptr) format_rgb_text(buffer, rgb, KILNUTIL_COLOR_TEXT_HTML);
  return buffer;
}

int KILNUTIL_same_color(unsigned int a, unsigned int b, int tolerance) { return same_color(a, b, tolerance) ? 1 : 0; }

unsigned int KILNUTIL_RGBtoBGR(unsigned int value) { return swap_red_blue(value); }

double RGB_luminance(unsigned int rgb, int mode) { return luminance(rgb, mode); }

unsigned int RGB_reverse(unsigned int rgb, int strength, int method) {
  return reverse_by_number(rgb, strength, method);
}

unsigned int RGB_reverse_by_Gray(unsigned int rgb, int strength) {
  return reverse_color(rgb, strength, ReverseMethod::kGray);
}

unsigned int RGB_reverse_by_HSL(unsigned int rgb, int strength) {
  return reverse_color(rgb, strength, ReverseMethod::kHsl);
}

unsigned int RGB_reverse_by_HSV(unsigned int rgb, int strength) {
  return reverse_color(rgb, strength, ReverseMethod::kHsv);
}

unsigned int RGB_reverse_by_LAB(unsigned int rgb, int strength) {
  return reverse_color(rgb, strength, ReverseMethod::kLab);
}

unsigned int RGB_reverse_by_LCH(unsigned int rgb, int strength) {
  return reverse_color(rgb, strength, ReverseMethod::kLch);
}

int colormap_rgb_ramp(unsigned int start, unsigned int end, int n, unsigned int* out, int three, int marker) {
  if (out != nullptr) fill_ramp(start, end, n, out, three != 0, marker != 0);
  return 0;
}

}  // extern "C"
