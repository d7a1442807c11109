// The ColorSpace classes of RGB and the CIE models: Rgb, Xyz, Lab, Lch, Luv,
// HunterLab and Yxy.
#include "color/color_space_members.h"
#include "color/white_reference.h"

namespace ColorSpace {

using kiln::color::assign_rgb;
using kiln::color::copy_same_type;
using kiln::color::Triplet;
using kiln::color::triplet_of;

Rgb::Rgb() : r(0), g(0), b(0) {}
Rgb::Rgb(double r_, double g_, double b_) : r(r_), g(g_), b(b_) {}
Rgb::~Rgb() = default;
void Rgb::FromRgb(const Rgb& rgb) { assign_rgb(*this, triplet_of(rgb)); }
void Rgb::ToRgb(Rgb& rgb) { assign_rgb(rgb, triplet_of(*this)); }
void Rgb::CopyTo(IColorSpace& target) { copy_same_type(*this, target); }

Xyz::Xyz() : x(0), y(0), z(0) {}
Xyz::Xyz(double x_, double y_, double z_) : x(x_), y(y_), z(z_) {}
Xyz::~Xyz() = default;
void Xyz::FromRgb(const Rgb& rgb) {
  const Triplet t = kiln::color::xyz_from_rgb(triplet_of(rgb));
  x = t.c0, y = t.c1, z = t.c2;
}
void Xyz::ToRgb(Rgb& rgb) { assign_rgb(rgb, kiln::color::rgb_from_xyz({x, y, z})); }
void Xyz::CopyTo(IColorSpace& target) { copy_same_type(*this, target); }

Lab::Lab() : l(0), a(0), b(0) {}
Lab::Lab(double l_, double a_, double b_) : l(l_), a(a_), b(b_) {}
Lab::~Lab() = default;
void Lab::FromRgb(const Rgb& rgb) {
  const Triplet t = kiln::color::lab_from_rgb(triplet_of(rgb));
  l = t.c0, a = t.c1, b = t.c2;
}
void Lab::ToRgb(Rgb& rgb) { assign_rgb(rgb, kiln::color::rgb_from_lab({l, a, b})); }
void Lab::CopyTo(IColorSpace& target) { copy_same_type(*this, target); }

Lch::Lch() : l(0), c(0), h(0) {}
Lch::Lch(double l_, double c_, double h_) : l(l_), c(c_), h(h_) {}
Lch::~Lch() = default;
void Lch::FromRgb(const Rgb& rgb) {
  const Triplet t = kiln::color::lch_from_rgb(triplet_of(rgb));
  l = t.c0, c = t.c1, h = t.c2;
}
// The hue is left in radians: a second ToRgb gives another colour.
void Lch::ToRgb(Rgb& rgb) { assign_rgb(rgb, kiln::color::rgb_from_lch(l, c, h)); }
void Lch::CopyTo(IColorSpace& target) { copy_same_type(*this, target); }

Luv::Luv() : l(0), u(0), v(0) {}
Luv::Luv(double l_, double u_, double v_) : l(l_), u(u_), v(v_) {}
Luv::~Luv() = default;
void Luv::FromRgb(const Rgb& rgb) {
  const Triplet t = kiln::color::luv_from_rgb(triplet_of(rgb), kiln::color::white_reference());
  l = t.c0, u = t.c1, v = t.c2;
}
void Luv::ToRgb(Rgb& rgb) { assign_rgb(rgb, kiln::color::rgb_from_luv({l, u, v}, kiln::color::white_reference())); }
void Luv::CopyTo(IColorSpace& target) { copy_same_type(*this, target); }

HunterLab::HunterLab() : l(0), a(0), b(0) {}
HunterLab::HunterLab(double l_, double a_, double b_) : l(l_), a(a_), b(b_) {}
HunterLab::~HunterLab() = default;
void HunterLab::FromRgb(const Rgb& rgb) {
  const Triplet t = kiln::color::hunter_lab_from_rgb(triplet_of(rgb));
  l = t.c0, a = t.c1, b = t.c2;
}
void HunterLab::ToRgb(Rgb& rgb) { assign_rgb(rgb, kiln::color::rgb_from_hunter_lab({l, a, b})); }
void HunterLab::CopyTo(IColorSpace& target) { copy_same_type(*this, target); }

Yxy::Yxy() : Y(0), x(0), y(0) {}
Yxy::Yxy(double Y_, double x_, double y_) : Y(Y_), x(x_), y(y_) {}
Yxy::~Yxy() = default;
void Yxy::FromRgb(const Rgb& rgb) {
  const Triplet t = kiln::color::yxy_from_rgb(triplet_of(rgb));
  Y = t.c0, x = t.c1, y = t.c2;
}
void Yxy::ToRgb(Rgb& rgb) { assign_rgb(rgb, kiln::color::rgb_from_yxy({Y, x, y})); }
void Yxy::CopyTo(IColorSpace& target) { copy_same_type(*this, target); }

}  // namespace ColorSpace
