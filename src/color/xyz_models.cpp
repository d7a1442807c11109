// RGB and the CIE models built on XYZ: XYZ itself, L*a*b*, LCh, L*u*v*,
// Hunter Lab and Yxy.
#include "color/model_formulas.h"

#include <cmath>
#include <numbers>

namespace kiln::color {

namespace {

constexpr double kLabEpsilon = 0.008856;
constexpr double kLabKappa = 7.787;
constexpr double kLabOffset = 16.0 / 116.0;
constexpr double kLuvEpsilon = 0.008856451679035631;
constexpr double kLuvKappa = 903.2962962962963;
constexpr double kInverseGamma = 0.4166666666666667;

double linear_from_srgb(double c) { return c > 0.04045 ? std::pow((c + 0.055) / 1.055, 2.4) : c / 12.92; }

double srgb_from_linear(double c) { return c > 0.0031308 ? 1.055 * std::pow(c, kInverseGamma) - 0.055 : 12.92 * c; }

double lab_f(double t) { return t > kLabEpsilon ? std::cbrt(t) : kLabKappa * t + kLabOffset; }

double lab_f_inverse(double f) {
  const double cube = f * f * f;
  return cube > kLabEpsilon ? cube : (f - kLabOffset) / kLabKappa;
}

double white_denominator(const Triplet& white) { return white.c0 + 15 * white.c1 + 3 * white.c2; }

}  // namespace

Triplet xyz_from_rgb(const Triplet& rgb) {
  const double r = linear_from_srgb(rgb.c0 / 255) * 100;
  const double g = linear_from_srgb(rgb.c1 / 255) * 100;
  const double b = linear_from_srgb(rgb.c2 / 255) * 100;
  return {0.4124564 * r + 0.3575761 * g + 0.1804375 * b, 0.2126729 * r + 0.7151522 * g + 0.072175 * b,
          0.0193339 * r + 0.119192 * g + 0.9503041 * b};
}

Triplet rgb_from_xyz(const Triplet& xyz) {
  const double x = xyz.c0 / 100;
  const double y = xyz.c1 / 100;
  const double z = xyz.c2 / 100;
  const double r = 3.2404542 * x - 1.5371385 * y - 0.4985314 * z;
  const double g = -0.969266 * x + 1.8760108 * y + 0.041556 * z;
  const double b = 0.0556434 * x - 0.2040259 * y + 1.0572252 * z;
  return {srgb_from_linear(r) * 255, srgb_from_linear(g) * 255, srgb_from_linear(b) * 255};
}

Triplet lab_from_rgb(const Triplet& rgb) {
  const Triplet xyz = xyz_from_rgb(rgb);
  const double fx = lab_f(xyz.c0 / kD65White.c0);
  const double fy = lab_f(xyz.c1 / kD65White.c1);
  const double fz = lab_f(xyz.c2 / kD65White.c2);
  return {116 * fy - 16, 500 * (fx - fy), 200 * (fy - fz)};
}

Triplet rgb_from_lab(const Triplet& lab) {
  const double fy = (lab.c0 + 16) / 116;
  const double fx = lab.c1 / 500 + fy;
  const double fz = fy - lab.c2 / 200;
  return rgb_from_xyz(
      {lab_f_inverse(fx) * kD65White.c0, lab_f_inverse(fy) * kD65White.c1, lab_f_inverse(fz) * kD65White.c2});
}

Triplet lch_from_rgb(const Triplet& rgb) {
  const Triplet lab = lab_from_rgb(rgb);
  double hue = std::atan2(lab.c2, lab.c1) * 180 / std::numbers::pi;
  if (hue < 0) {
    hue += 360;
  } else if (hue >= 360) {
    hue -= 360;
  }
  return {lab.c0, std::sqrt(lab.c1 * lab.c1 + lab.c2 * lab.c2), hue};
}

Triplet rgb_from_lch(double lightness, double chroma, double& hue) {
  hue = hue * std::numbers::pi / 180;
  return rgb_from_lab({lightness, chroma * std::cos(hue), chroma * std::sin(hue)});
}

Triplet luv_from_rgb(const Triplet& rgb, const Triplet& white) {
  const Triplet xyz = xyz_from_rgb(rgb);
  const double y = xyz.c1 / white.c1;
  const double lightness = y > kLuvEpsilon ? 116 * std::cbrt(y) - 16 : kLuvKappa * y;
  const double d = xyz.c0 + 15 * xyz.c1 + 3 * xyz.c2;
  const double dw = white_denominator(white);
  const double x_share = d > 0.001 ? xyz.c0 / d : 0;
  const double y_share = d > 0.001 ? xyz.c1 / d : 0;
  return {lightness, 52 * lightness * (x_share - white.c0 / dw), 117 * lightness * (y_share - white.c1 / dw)};
}

Triplet rgb_from_luv(const Triplet& luv, const Triplet& white) {
  const double lightness = luv.c0;
  const double y = lightness > 8 ? std::pow((lightness + 16) / 116, 3) : lightness / kLuvKappa;
  const double dw = white_denominator(white);
  const double uw = 4 * white.c0 / dw;
  const double vw = 9 * white.c1 / dw;
  const double a = (52 * lightness / (luv.c1 + 13 * lightness * uw) - 1) / 3;
  const double b = -5 * y;
  const double d = y * (39 * lightness / (luv.c2 + 13 * lightness * vw) - 5);
  const double x = (d - b) / (a + 1.0 / 3);
  const double z = x * a + b;
  return rgb_from_xyz({100 * x, 100 * y, 100 * z});
}

Triplet hunter_lab_from_rgb(const Triplet& rgb) {
  const Triplet xyz = xyz_from_rgb(rgb);
  const double root_y = std::sqrt(xyz.c1);
  if (xyz.c1 == 0) return {10 * root_y, 0, 0};
  return {10 * root_y, 17.5 * (1.02 * xyz.c0 - xyz.c1) / root_y, 7 * (xyz.c1 - 0.847 * xyz.c2) / root_y};
}

Triplet rgb_from_hunter_lab(const Triplet& lab) {
  const double y = lab.c0 * lab.c0 / 100;
  const double x = (lab.c1 / 17.5 * lab.c0 / 10 + y) / 1.02;
  const double z = -(lab.c2 / 7 * lab.c0 / 10 - y) / 0.847;
  return rgb_from_xyz({x, y, z});
}

Triplet yxy_from_rgb(const Triplet& rgb) {
  const Triplet xyz = xyz_from_rgb(rgb);
  const double sum = xyz.c0 + xyz.c1 + xyz.c2;
  if (sum == 0) return {xyz.c1, 0, 0};
  return {xyz.c1, xyz.c0 / sum, xyz.c1 / sum};
}

Triplet rgb_from_yxy(const Triplet& yxy) {
  const double scale = yxy.c0 / yxy.c2;
  return rgb_from_xyz({yxy.c1 * scale, yxy.c0, (1 - yxy.c1 - yxy.c2) * scale});
}

}  // namespace kiln::color
