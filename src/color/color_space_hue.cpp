// The ColorSpace classes of the hue and subtractive models: Hsl, Hsv, Hsb,
// Cmy and Cmyk.
#include "color/color_space_members.h"

namespace ColorSpace {

using kiln::color::assign_rgb;
using kiln::color::copy_same_type;
using kiln::color::Triplet;
using kiln::color::triplet_of;

Hsl::Hsl() : h(0), s(0), l(0) {}
Hsl::Hsl(double h_, double s_, double l_) : h(h_), s(s_), l(l_) {}
Hsl::~Hsl() = default;
void Hsl::FromRgb(const Rgb& rgb) {
  const Triplet t = kiln::color::hsl_from_rgb(triplet_of(rgb));
  h = t.c0, s = t.c1, l = t.c2;
}
void Hsl::ToRgb(Rgb& rgb) { assign_rgb(rgb, kiln::color::rgb_from_hsl({h, s, l})); }
void Hsl::CopyTo(IColorSpace& target) { copy_same_type(*this, target); }

Hsv::Hsv() : h(0), s(0), v(0) {}
Hsv::Hsv(double h_, double s_, double v_) : h(h_), s(s_), v(v_) {}
Hsv::~Hsv() = default;
void Hsv::FromRgb(const Rgb& rgb) {
  const Triplet t = kiln::color::hsv_from_rgb(triplet_of(rgb));
  h = t.c0, s = t.c1, v = t.c2;
}
void Hsv::ToRgb(Rgb& rgb) { assign_rgb(rgb, kiln::color::rgb_from_hsv({h, s, v})); }
void Hsv::CopyTo(IColorSpace& target) { copy_same_type(*this, target); }

// Hsv under another name: both directions go through an Hsv.
Hsb::Hsb() : h(0), s(0), b(0) {}
Hsb::Hsb(double h_, double s_, double b_) : h(h_), s(s_), b(b_) {}
Hsb::~Hsb() = default;
void Hsb::FromRgb(const Rgb& rgb) {
  Hsv hsv;
  hsv.FromRgb(rgb);
  h = hsv.h, s = hsv.s, b = hsv.v;
}
void Hsb::ToRgb(Rgb& rgb) {
  Hsv hsv(h, s, b);
  hsv.ToRgb(rgb);
}
void Hsb::CopyTo(IColorSpace& target) { copy_same_type(*this, target); }

Cmy::Cmy() : c(0), m(0), y(0) {}
Cmy::Cmy(double c_, double m_, double y_) : c(c_), m(m_), y(y_) {}
Cmy::~Cmy() = default;
void Cmy::FromRgb(const Rgb& rgb) {
  const Triplet t = kiln::color::cmy_from_rgb(triplet_of(rgb));
  c = t.c0, m = t.c1, y = t.c2;
}
void Cmy::ToRgb(Rgb& rgb) { assign_rgb(rgb, kiln::color::rgb_from_cmy({c, m, y})); }
void Cmy::CopyTo(IColorSpace& target) { copy_same_type(*this, target); }

Cmyk::Cmyk() : c(0), m(0), y(0), k(0) {}
Cmyk::Cmyk(double c_, double m_, double y_, double k_) : c(c_), m(m_), y(y_), k(k_) {}
Cmyk::~Cmyk() = default;
void Cmyk::FromRgb(const Rgb& rgb) {
  const kiln::color::Quadruplet t = kiln::color::cmyk_from_rgb(triplet_of(rgb));
  c = t.c0, m = t.c1, y = t.c2, k = t.c3;
}
void Cmyk::ToRgb(Rgb& rgb) { assign_rgb(rgb, kiln::color::rgb_from_cmyk({c, m, y, k})); }
void Cmyk::CopyTo(IColorSpace& target) { copy_same_type(*this, target); }

}  // namespace ColorSpace
