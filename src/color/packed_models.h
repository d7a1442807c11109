// The model conversions on plain RGB triples (red in the low byte): what the
// flat exports compute. Components going into a triple keep only their low
// 8 bits, so out-of-gamut results wrap (256 -> 0, -1 -> 255).
#pragma once

#include "color/model_formulas.h"

#include <cstdint>

namespace kiln::color {

inline constexpr std::uint32_t kRgbMask = 0xFFFFFF;

inline unsigned red_of(std::uint32_t rgb) { return rgb & 0xFF; }
inline unsigned green_of(std::uint32_t rgb) { return (rgb >> 8) & 0xFF; }
inline unsigned blue_of(std::uint32_t rgb) { return (rgb >> 16) & 0xFF; }
inline std::uint32_t rgb_of(unsigned red, unsigned green, unsigned blue) {
  return (red & 0xFF) | (green & 0xFF) << 8 | (blue & 0xFF) << 16;
}
inline bool is_gray(std::uint32_t rgb) { return red_of(rgb) == green_of(rgb) && green_of(rgb) == blue_of(rgb); }

// The triple's components as 0-255 doubles; the top byte is ignored.
Triplet unpack(std::uint32_t rgb);
// Each component truncated toward zero (outside the 32-bit range: the
// processor's "integer indefinite", low byte 0), then its low 8 bits.
std::uint32_t pack_truncated(const Triplet& rgb);
// Each component rounded half away from zero (nint), then its low 8 bits.
std::uint32_t pack_rounded(const Triplet& rgb);

std::uint32_t rgb_from_hsv_values(double hue, double saturation, double value);
Triplet hsv_values_from_rgb(std::uint32_t rgb);
std::uint32_t rgb_from_lab_values(double l, double a, double b);
Triplet lab_values_from_rgb(std::uint32_t rgb);
std::uint32_t rgb_from_lch_values(double l, double chroma, double hue);
Triplet lch_values_from_rgb(std::uint32_t rgb);

// Hue, saturation, lightness as fractions 0-1 (hue = degrees / 360).
Triplet hsl_fractions_from_rgb(std::uint32_t rgb);
// Through the integer form: hue, lightness, saturation each nint(x * 240).
std::uint32_t rgb_from_hsl_fractions(double hue, double saturation, double lightness);
// The integer HSL of the 0-240 scale, hue, lightness, saturation.
std::uint32_t rgb_from_hls240(std::uint16_t hue, std::uint16_t lum, std::uint16_t sat);

}  // namespace kiln::color
