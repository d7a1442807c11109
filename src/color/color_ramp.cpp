// Colour ramps. Three-colour ramps weight start, middle and end as a
// quadratic Bezier curve over t = i / (n - 1): (1 - t)^2, 2 t (1 - t), t^2,
// the middle point being max(0, 255 - start - end) per channel. Two-colour
// ramps use the linear weights 1 - t, 0, t (the same curve with its control
// point halfway, so no dip in the middle). n = 1 gives the start colour.
#include "color/color_utilities.h"

#include "color/packed_models.h"
#include "color/color_text.h"

#include <algorithm>

namespace kiln::color {

namespace {

struct Weights {
  double start, middle, end;
};

Weights ramp_weights(int i, int n, bool three) {
  const double t = n > 1 ? static_cast<double>(i) / (n - 1) : 0.0;
  if (!three) return {1 - t, 0, t};
  return {(1 - t) * (1 - t), 2 * t * (1 - t), t * t};
}

unsigned ramp_channel(const Weights& w, unsigned start, unsigned end, bool three) {
  const int middle = three ? std::max(0, 255 - static_cast<int>(start) - static_cast<int>(end)) : 0;
  const double value = w.start * start + w.middle * middle + w.end * end + 0.5;
  return std::min(static_cast<unsigned>(value), 255u);
}

}  // namespace

void fill_ramp(std::uint32_t start, std::uint32_t end, int n, std::uint32_t* out, bool three, bool marker) {
  for (int i = 0; i < n; ++i) {
    const Weights w = ramp_weights(i, n, three);
    const std::uint32_t rgb = rgb_of(ramp_channel(w, red_of(start), red_of(end), three),
                                     ramp_channel(w, green_of(start), green_of(end), three),
                                     ramp_channel(w, blue_of(start), blue_of(end), three));
    out[i] = marker ? rgb | kRgbMarker : rgb;
  }
}

}  // namespace kiln::color
