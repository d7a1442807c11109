// Colour reversal: one component (or all three for grays) inverted or only
// pulled toward the middle by a strength in percent. Only the gray, default
// and HSL methods invert; HSV, Lab and LCh pull without inverting.
#include "color/color_utilities.h"

#include "color/packed_models.h"

#include "math/nint.h"

#include <algorithm>

#include <kilnutil/color.h>

namespace kiln::color {

namespace {

// s > 0 pulls f toward the middle: ((100 - s)/100 - s/100) f + s/100.
double pull(double f, int strength) {
  if (strength <= 0) return f;
  const double s = strength / 100.0;
  return ((100 - strength) / 100.0 - s) * f + s;
}

std::uint32_t by_gray(std::uint32_t rgb, int strength) {
  const auto channel = [strength](unsigned byte) {
    return static_cast<unsigned>(math::nint(pull(1 - byte / 255.0, strength) * 255));
  };
  return rgb_of(channel(red_of(rgb)), channel(green_of(rgb)), channel(blue_of(rgb)));
}

// The lightness the default method inverts: for nearly saturated colours the
// relative luminance, kept between 0.3 and (above 0.7) luminance / 1.2.
double default_lightness_source(std::uint32_t rgb) {
  const double lum = luminance(rgb, KILNUTIL_COLOR_LUMINANCE_RELATIVE);
  double source = std::max(lum, 0.3);
  if (lum > 0.7) source = std::max(lum / 1.2, 0.7);
  return source;
}

std::uint32_t by_default(std::uint32_t rgb, int strength) {
  Triplet hsl = hsl_fractions_from_rgb(rgb);
  double lightness = 1 - hsl.c2;
  if (hsl.c1 > 0.99 && strength >= 1) {
    hsl.c1 *= 0.6;
    lightness = 1 - default_lightness_source(rgb);
  }
  return rgb_from_hsl_fractions(hsl.c0, hsl.c1, pull(lightness, strength));
}

std::uint32_t by_hsl(std::uint32_t rgb, int strength) {
  const Triplet hsl = hsl_fractions_from_rgb(rgb);
  return rgb_from_hsl_fractions(hsl.c0, hsl.c1, pull(1 - hsl.c2, strength));
}

std::uint32_t by_hsv(std::uint32_t rgb, int strength) {
  const Triplet hsv = hsv_values_from_rgb(rgb);
  return rgb_from_hsv_values(pull(hsv.c0 / 100, strength) * 100, hsv.c1, hsv.c2);
}

std::uint32_t by_lab(std::uint32_t rgb, int strength) {
  const Triplet lab = lab_values_from_rgb(rgb);
  return rgb_from_lab_values(pull(lab.c0 / 100, strength) * 100, lab.c1, lab.c2);
}

std::uint32_t by_lch(std::uint32_t rgb, int strength) {
  const Triplet lch = lch_values_from_rgb(rgb);
  return rgb_from_lch_values(pull(lch.c0 / 100, std::clamp(strength, 0, 100)) * 100, lch.c1, lch.c2);
}

}  // namespace

std::uint32_t reverse_color(std::uint32_t rgb, int strength, ReverseMethod method) {
  switch (method) {
    case ReverseMethod::kGray: return by_gray(rgb, strength);
    case ReverseMethod::kDefault: return by_default(rgb, strength);
    case ReverseMethod::kHsl: return by_hsl(rgb, strength);
    case ReverseMethod::kHsv: return by_hsv(rgb, strength);
    case ReverseMethod::kLab: return by_lab(rgb, strength);
    case ReverseMethod::kLch: return by_lch(rgb, strength);
  }
  return rgb;
}

std::uint32_t reverse_by_number(std::uint32_t rgb, int strength, int method) {
  if (is_gray(rgb)) return by_gray(rgb, strength);
  switch (method) {
    case KILNUTIL_COLOR_REVERSE_DEFAULT: return by_default(rgb, strength);
    case KILNUTIL_COLOR_REVERSE_HSL: return by_hsl(rgb, strength);
    case KILNUTIL_COLOR_REVERSE_LCH: return by_lch(rgb, strength);
    case KILNUTIL_COLOR_REVERSE_LAB: return by_lab(rgb, strength);
    default: return rgb;
  }
}

}  // namespace kiln::color
