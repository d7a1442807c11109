// RGB and the hue models (HSL in percent, HSV in fractions) and the
// subtractive models CMY and CMYK.
#include "color/model_formulas.h"

#include <algorithm>
#include <cmath>

namespace kiln::color {

namespace {

Triplet unit_rgb(const Triplet& rgb) { return {rgb.c0 / 255, rgb.c1 / 255, rgb.c2 / 255}; }

double largest(const Triplet& t) { return std::max({t.c0, t.c1, t.c2}); }
double smallest(const Triplet& t) { return std::min({t.c0, t.c1, t.c2}); }

// Hue in degrees [0, 360) from the hue in sixths.
double hue_degrees(double sixths) { return std::fmod(60 * sixths + 360, 360); }

// One channel of HSL to RGB; t is the channel's shifted hue (fraction).
double hsl_channel(double t, double t1, double t2) {
  if (t < 0) {
    t += 1;
  } else if (t > 1) {
    t -= 1;
  }
  if (6 * t < 1) return t1 + (t2 - t1) * 6 * t;
  if (2 * t < 1) return t2;
  if (3 * t < 2) return t1 + (t2 - t1) * (2.0 / 3 - t) * 6;
  return t1;
}

// The sector 0-5 of a hue in sixths; anything else (5 included, negative,
// 6 and more, NaN) is the catch-all sector -1.
int hsv_sector(double sixths) {
  const double sector = std::floor(sixths);
  if (!(sector >= 0 && sector <= 4)) return -1;
  return static_cast<int>(sector);
}

}  // namespace

double hue_sixths(const Triplet& unit, double max, double delta) {
  if (unit.c0 == max) return (unit.c1 - unit.c2) / delta;
  if (unit.c1 == max) return 2 + (unit.c2 - unit.c0) / delta;
  return 4 + (unit.c0 - unit.c1) / delta;
}

Triplet hsl_from_rgb(const Triplet& rgb) {
  const Triplet unit = unit_rgb(rgb);
  const double max = largest(unit);
  const double min = smallest(unit);
  const double delta = max - min;
  const double lightness = (max + min) / 2;
  if (delta == 0) return {0, 0, 100 * lightness};
  const double saturation =
      lightness < 0.5 ? 100 * delta / (max + min) : 100 * delta / (1 - std::fabs(2 * lightness - 1));
  return {hue_degrees(hue_sixths(unit, max, delta)), saturation, 100 * lightness};
}

Triplet rgb_from_hsl(const Triplet& hsl) {
  if (hsl.c1 == 0) {
    const double gray = hsl.c2 * 255;  // lightness still in percent
    return {gray, gray, gray};
  }
  const double h = hsl.c0 / 360;
  const double s = hsl.c1 / 100;
  const double l = hsl.c2 / 100;
  const double t2 = l < 0.5 ? l * (1 + s) : l + s - l * s;
  const double t1 = 2 * l - t2;
  return {hsl_channel(h + 1.0 / 3, t1, t2) * 255, hsl_channel(h, t1, t2) * 255, hsl_channel(h - 1.0 / 3, t1, t2) * 255};
}

Triplet hsv_from_rgb(const Triplet& rgb) {
  const Triplet unit = unit_rgb(rgb);
  const double max = largest(unit);
  const double delta = max - smallest(unit);
  const double saturation = max > 0.001 ? delta / max : 0;
  const double hue = delta == 0 ? 0 : hue_degrees(hue_sixths(unit, max, delta));
  return {hue, saturation, max};
}

Triplet rgb_from_hsv(const Triplet& hsv) {
  const double x = hsv.c0 / 60;
  const double chroma = hsv.c2 * hsv.c1;
  const double m = hsv.c2 - chroma;
  const double second = chroma * (1 - std::fabs(std::fmod(x, 2) - 1));
  Triplet unit;
  switch (hsv_sector(x)) {
    case 0: unit = {chroma, second, 0}; break;
    case 1: unit = {second, chroma, 0}; break;
    case 2: unit = {0, chroma, second}; break;
    case 3: unit = {0, second, chroma}; break;
    case 4: unit = {second, 0, chroma}; break;
    default: unit = {chroma, 0, second}; break;
  }
  return {(unit.c0 + m) * 255, (unit.c1 + m) * 255, (unit.c2 + m) * 255};
}

Triplet cmy_from_rgb(const Triplet& rgb) {
  const Triplet unit = unit_rgb(rgb);
  return {1 - unit.c0, 1 - unit.c1, 1 - unit.c2};
}

Triplet rgb_from_cmy(const Triplet& cmy) { return {(1 - cmy.c0) * 255, (1 - cmy.c1) * 255, (1 - cmy.c2) * 255}; }

Quadruplet cmyk_from_rgb(const Triplet& rgb) {
  const Triplet cmy = cmy_from_rgb(rgb);
  const double k = std::min({1.0, cmy.c0, cmy.c1, cmy.c2});
  if (std::fabs(k - 1) < 0.001) return {0, 0, 0, k};
  return {(cmy.c0 - k) / (1 - k), (cmy.c1 - k) / (1 - k), (cmy.c2 - k) / (1 - k), k};
}

Triplet rgb_from_cmyk(const Quadruplet& cmyk) {
  const double k = cmyk.c3;
  return rgb_from_cmy({cmyk.c0 * (1 - k) + k, cmyk.c1 * (1 - k) + k, cmyk.c2 * (1 - k) + k});
}

}  // namespace kiln::color
