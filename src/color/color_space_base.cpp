// The ColorSpace interface, its process-wide white and the conversion
// between any two colour objects.
#include "color/white_reference.h"

#include <kilnutil/color.h>

#include <typeinfo>

namespace ColorSpace {

// Constructed at load; read-only afterwards, so any thread may read it.
Xyz WhiteReference(kiln::color::kD65White.c0, kiln::color::kD65White.c1, kiln::color::kD65White.c2);

IColorSpace::~IColorSpace() = default;

void ConvertTo(IColorSpace& source, IColorSpace& target) {
  if (typeid(source) == typeid(target)) {
    source.CopyTo(target);
    return;
  }
  Rgb rgb;
  source.ToRgb(rgb);
  target.FromRgb(rgb);
}

}  // namespace ColorSpace

namespace kiln::color {

Triplet white_reference() {
  const ColorSpace::Xyz& white = ColorSpace::WhiteReference;
  return {white.x, white.y, white.z};
}

}  // namespace kiln::color
