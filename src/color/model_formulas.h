// The colour-model formulas on plain numbers. Every model converts from and
// to RGB (components 0-255); nothing is clamped, so out-of-gamut and
// out-of-range inputs flow through and may give values outside 0-255,
// infinities or NaN. The ColorSpace classes and the flat exports both use
// these.
#pragma once

namespace kiln::color {

// Three components in the order the model names them.
struct Triplet {
  double c0 = 0;
  double c1 = 0;
  double c2 = 0;
};

struct Quadruplet {
  double c0 = 0;
  double c1 = 0;
  double c2 = 0;
  double c3 = 0;
};

// The D65 white for the 2 degree observer (X, Y, Z).
inline constexpr Triplet kD65White{95.047, 100.0, 108.883};

// XYZ with Y = 100 for white.
Triplet xyz_from_rgb(const Triplet& rgb);
Triplet rgb_from_xyz(const Triplet& xyz);

// CIE L*a*b* against the D65 white.
Triplet lab_from_rgb(const Triplet& rgb);
Triplet rgb_from_lab(const Triplet& lab);

// L, chroma, hue in degrees [0, 360).
Triplet lch_from_rgb(const Triplet& rgb);
// `hue` is in degrees on entry and is left in radians: the caller's object
// keeps the converted hue.
Triplet rgb_from_lch(double lightness, double chroma, double& hue);

// CIE L*u*v* against `white` (X, Y, Z).
Triplet luv_from_rgb(const Triplet& rgb, const Triplet& white);
Triplet rgb_from_luv(const Triplet& luv, const Triplet& white);

Triplet hunter_lab_from_rgb(const Triplet& rgb);
Triplet rgb_from_hunter_lab(const Triplet& lab);

// Y, x, y.
Triplet yxy_from_rgb(const Triplet& rgb);
Triplet rgb_from_yxy(const Triplet& yxy);

// Hue in degrees, saturation and lightness in percent.
Triplet hsl_from_rgb(const Triplet& rgb);
Triplet rgb_from_hsl(const Triplet& hsl);

// Hue in degrees, saturation and value as fractions.
Triplet hsv_from_rgb(const Triplet& rgb);
Triplet rgb_from_hsv(const Triplet& hsv);

// Fractions 0-1.
Triplet cmy_from_rgb(const Triplet& rgb);
Triplet rgb_from_cmy(const Triplet& cmy);
Quadruplet cmyk_from_rgb(const Triplet& rgb);
Triplet rgb_from_cmyk(const Quadruplet& cmyk);

// The hue of R, G, B (0-1 each) in sixths, before scaling: (G - B)/delta when
// R is the largest, 2 + (B - R)/delta when G is, else 4 + (R - G)/delta.
double hue_sixths(const Triplet& unit_rgb, double max, double delta);

}  // namespace kiln::color
