// The model conversions on plain RGB triples and the integer HSL.
#include "color/packed_models.h"

#include <kilnutil/color.h>

using namespace kiln::color;

namespace {

void store(const Triplet& t, double* first, double* second, double* third, double scale = 1) {
  if (first != nullptr) *first = t.c0 * scale;
  if (second != nullptr) *second = t.c1 * scale;
  if (third != nullptr) *third = t.c2 * scale;
}

}  // namespace

extern "C" {

unsigned int HSVtoRGB(double hue, double saturation, double value) {
  return rgb_from_hsv_values(hue, saturation, value);
}

void RGBtoHSV(unsigned int rgb, double* hue, double* saturation, double* value) {
  store(hsv_values_from_rgb(rgb), hue, saturation, value);
}

unsigned int LABtoRGB(double l, double a, double b) { return rgb_from_lab_values(l, a, b); }

void RGBtoLAB(unsigned int rgb, double* l, double* a, double* b) { store(lab_values_from_rgb(rgb), l, a, b); }

unsigned int LCHtoRGB(double l, double chroma, double hue) { return rgb_from_lch_values(l, chroma, hue); }

void RGBtoLCH(unsigned int rgb, double* l, double* chroma, double* hue) {
  store(lch_values_from_rgb(rgb), l, chroma, hue);
}

int RGBtoHSL(unsigned int rgb, double* hue, double* saturation, double* lightness) {
  store(hsl_fractions_from_rgb(rgb), hue, saturation, lightness);
  return 0;
}

unsigned int HSLtoRGB(double hue, double saturation, double lightness) {
  return rgb_from_hsl_fractions(hue, saturation, lightness);
}

int KILNUTIL_RGBtoHSL(unsigned int rgb, double* hue, double* saturation, double* lightness) {
  store(hsl_fractions_from_rgb(rgb), hue, saturation, lightness, 240);
  return 0;
}

unsigned int KILNUTIL_HLStoRGB(unsigned short hue, unsigned short lum, unsigned short sat) {
  return rgb_from_hls240(hue, lum, sat);
}

}  // extern "C"
