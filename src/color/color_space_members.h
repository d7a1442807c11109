// Shared pieces of the ColorSpace class members: moving components between
// the classes and the formula triplets, and the same-type copy.
#pragma once

#include "color/model_formulas.h"

#include <kilnutil/color.h>

namespace kiln::color {

inline Triplet triplet_of(const ColorSpace::Rgb& rgb) { return {rgb.r, rgb.g, rgb.b}; }

inline void assign_rgb(ColorSpace::Rgb& rgb, const Triplet& t) {
  rgb.r = t.c0;
  rgb.g = t.c1;
  rgb.b = t.c2;
}

// Copies `source` into `target` when `target` is a T; anything else is left
// alone (the copy is only defined between objects of one type).
template <typename T>
void copy_same_type(const T& source, ColorSpace::IColorSpace& target) {
  if (auto* same = dynamic_cast<T*>(&target)) *same = source;
}

}  // namespace kiln::color
