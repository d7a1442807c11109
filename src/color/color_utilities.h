// Small colour utilities on plain RGB triples: tolerant comparison, byte
// swap, relative luminance, reversal and ramps.
#pragma once

#include <cstdint>

namespace kiln::color {

bool same_color(std::uint32_t a, std::uint32_t b, int tolerance);
// Low and third bytes swapped, the top byte cleared.
std::uint32_t swap_red_blue(std::uint32_t value);

// Mode 1: the HSL lightness (0-1). Otherwise gray byte/255, or
// 0.2126 R^2.2 + 0.7152 G^2.2 + 0.0722 B^2.2 on 0-1 components.
double luminance(std::uint32_t rgb, int mode);

enum class ReverseMethod { kGray, kDefault, kHsl, kHsv, kLab, kLch };
// `strength` is a percent pulling the changed component toward the middle.
std::uint32_t reverse_color(std::uint32_t rgb, int strength, ReverseMethod method);
// RGB_reverse's choice: gray colours by gray; method 0 default, 1 HSL, 2 LCH,
// 3 Lab; any other method leaves the colour as it is.
std::uint32_t reverse_by_number(std::uint32_t rgb, int strength, int method);

// n colours from `start` to `end` (see colormap_rgb_ramp); nothing for n < 1.
void fill_ramp(std::uint32_t start, std::uint32_t end, int n, std::uint32_t* out, bool three, bool marker);

}  // namespace kiln::color
