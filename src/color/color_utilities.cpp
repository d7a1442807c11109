// Tolerant comparison, byte swap and luminance of RGB triples.
#include "color/color_utilities.h"

#include "color/packed_models.h"

#include <kilnutil/color.h>

#include <algorithm>
#include <cmath>

namespace kiln::color {

namespace {

bool channel_differs(unsigned x, unsigned y, int tolerance) {
  const int forward = static_cast<int>(x) - static_cast<int>(y);
  return std::max(forward, -forward) > tolerance;
}

double linear_share(unsigned channel) { return std::pow(channel / 255.0, 2.2); }

}  // namespace

bool same_color(std::uint32_t a, std::uint32_t b, int tolerance) {
  return !channel_differs(red_of(a), red_of(b), tolerance) && !channel_differs(green_of(a), green_of(b), tolerance) &&
         !channel_differs(blue_of(a), blue_of(b), tolerance);
}

std::uint32_t swap_red_blue(std::uint32_t value) { return rgb_of(blue_of(value), green_of(value), red_of(value)); }

double luminance(std::uint32_t rgb, int mode) {
  if (mode == KILNUTIL_COLOR_LUMINANCE_HSL) return hsl_fractions_from_rgb(rgb).c2;
  if (is_gray(rgb)) return red_of(rgb) / 255.0;
  return 0.2126 * linear_share(red_of(rgb)) + 0.7152 * linear_share(green_of(rgb)) +
         0.0722 * linear_share(blue_of(rgb));
}

}  // namespace kiln::color
