// Integer HSL on the 0-240 scale (hue, lightness, saturation), all integer
// arithmetic. A hue below 0 after the blue shift wraps to a large unsigned
// value and lands in the last branch, which is the right channel value.
#include "color/packed_models.h"

namespace kiln::color {

namespace {

// Signed and wide enough for any 16-bit inputs, as the promoted 16-bit
// arithmetic would be without overflow.
using Wide = long long;

constexpr Wide kScale = 240;
constexpr Wide kHalf = 120;

Wide hue_channel(Wide m1, Wide m2, std::uint16_t hue) {
  Wide h = hue;
  if (h > kScale) h -= kScale;
  if (h < 40) return m1 + ((m2 - m1) * h + 20) / 40;
  if (h < 120) return m2;
  if (h < 160) return m1 + ((m2 - m1) * (160 - h) + 20) / 40;
  return m1;
}

unsigned to_byte_scale(Wide channel) { return static_cast<unsigned>((channel * 255 + kHalf) / kScale); }

}  // namespace

std::uint32_t rgb_from_hls240(std::uint16_t hue, std::uint16_t lum, std::uint16_t sat) {
  if (sat == 0) {
    const auto gray = static_cast<unsigned>(lum * 255 / kScale);
    return rgb_of(gray, gray, gray);
  }
  const Wide l = lum;
  const Wide s = sat;
  const Wide m2 = l <= kHalf ? (l * (kScale + s) + kHalf) / kScale : l + s - (l * s + kHalf) / kScale;
  const Wide m1 = 2 * l - m2;
  const auto shifted = [hue](int by) { return static_cast<std::uint16_t>(hue + by); };
  return rgb_of(to_byte_scale(hue_channel(m1, m2, shifted(80))), to_byte_scale(hue_channel(m1, m2, hue)),
                to_byte_scale(hue_channel(m1, m2, shifted(-80))));
}

}  // namespace kiln::color
