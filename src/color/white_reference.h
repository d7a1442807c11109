// The process-wide white of the L*u*v* conversions.
#pragma once

#include "color/model_formulas.h"

namespace kiln::color {

// ColorSpace::WhiteReference as a triplet (X, Y, Z): set at load to the D65
// white and never changed.
Triplet white_reference();

}  // namespace kiln::color
