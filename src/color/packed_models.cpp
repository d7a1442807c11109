// The model conversions on plain RGB triples.
#include "color/packed_models.h"

#include "math/nint.h"

#include <algorithm>
#include <cmath>

namespace kiln::color {

namespace {

constexpr std::int32_t kIntegerIndefinite = INT32_MIN;

std::int32_t truncated(double x) {
  if (!(x > -2147483649.0 && x < 2147483648.0)) return kIntegerIndefinite;
  return static_cast<std::int32_t>(x);
}

std::uint32_t pack(std::int32_t red, std::int32_t green, std::int32_t blue) {
  return rgb_of(static_cast<unsigned>(red), static_cast<unsigned>(green), static_cast<unsigned>(blue));
}

}  // namespace

Triplet unpack(std::uint32_t rgb) { return {double(red_of(rgb)), double(green_of(rgb)), double(blue_of(rgb))}; }

std::uint32_t pack_truncated(const Triplet& rgb) {
  return pack(truncated(rgb.c0), truncated(rgb.c1), truncated(rgb.c2));
}

std::uint32_t pack_rounded(const Triplet& rgb) {
  return pack(math::nint(rgb.c0), math::nint(rgb.c1), math::nint(rgb.c2));
}

std::uint32_t rgb_from_hsv_values(double hue, double saturation, double value) {
  return pack_truncated(rgb_from_hsv({hue, saturation, value}));
}

Triplet hsv_values_from_rgb(std::uint32_t rgb) { return hsv_from_rgb(unpack(rgb)); }

std::uint32_t rgb_from_lab_values(double l, double a, double b) { return pack_rounded(rgb_from_lab({l, a, b})); }

Triplet lab_values_from_rgb(std::uint32_t rgb) { return lab_from_rgb(unpack(rgb)); }

std::uint32_t rgb_from_lch_values(double l, double chroma, double hue) {
  return pack_rounded(rgb_from_lch(l, chroma, hue));
}

Triplet lch_values_from_rgb(std::uint32_t rgb) { return lch_from_rgb(unpack(rgb)); }

Triplet hsl_fractions_from_rgb(std::uint32_t rgb) {
  const Triplet unit{red_of(rgb) / 255.0, green_of(rgb) / 255.0, blue_of(rgb) / 255.0};
  const double max = std::max({unit.c0, unit.c1, unit.c2});
  const double min = std::min({unit.c0, unit.c1, unit.c2});
  const double lightness = (max + min) / 2;
  if (max == min) return {0, 0, lightness};
  const double delta = max - min;
  const double saturation = lightness < 0.5 ? delta / (max + min) : delta / (2 - max - min);
  double hue = hue_sixths(unit, max, delta) / 6;
  if (hue < 0) hue += 1;
  return {hue, saturation, lightness};
}

std::uint32_t rgb_from_hsl_fractions(double hue, double saturation, double lightness) {
  const auto scaled = [](double fraction) { return static_cast<std::uint16_t>(math::nint(fraction * 240)); };
  return rgb_from_hls240(scaled(hue), scaled(lightness), scaled(saturation));
}

}  // namespace kiln::color
