// Colour conversions through the flat exports beside a plain loop of the
// same formulas written out here; colour text reading beside sscanf of the
// same patterns; nearest-colour search beside a plain loop over a copy of
// the list. Each reference gives the same results (checked before timing).
#include <kilnutil/color.h>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr std::size_t kColors = 1 << 16;

const std::vector<unsigned>& colors() {
  static const std::vector<unsigned> all = [] {
    std::vector<unsigned> made(kColors);
    std::mt19937 random(7);
    for (unsigned& c : made) c = random() & 0xFFFFFF;
    return made;
  }();
  return all;
}

// The reference formulas, written out directly.
double lin(double c) { return c > 0.04045 ? std::pow((c + 0.055) / 1.055, 2.4) : c / 12.92; }
double gam(double c) { return c > 0.0031308 ? 1.055 * std::pow(c, 0.4166666666666667) - 0.055 : 12.92 * c; }
double f(double t) { return t > 0.008856 ? std::cbrt(t) : 7.787 * t + 16.0 / 116; }
double finv(double v) { return v * v * v > 0.008856 ? v * v * v : (v - 16.0 / 116) / 7.787; }

void plain_rgb_to_lab(unsigned rgb, double& l, double& a, double& b) {
  const double r = lin((rgb & 0xFF) / 255.0) * 100, g = lin(((rgb >> 8) & 0xFF) / 255.0) * 100,
               bl = lin(((rgb >> 16) & 0xFF) / 255.0) * 100;
  const double x = 0.4124564 * r + 0.3575761 * g + 0.1804375 * bl;
  const double y = 0.2126729 * r + 0.7151522 * g + 0.072175 * bl;
  const double z = 0.0193339 * r + 0.119192 * g + 0.9503041 * bl;
  const double fx = f(x / 95.047), fy = f(y / 100), fz = f(z / 108.883);
  l = 116 * fy - 16, a = 500 * (fx - fy), b = 200 * (fy - fz);
}

unsigned byte_of(double c) { return static_cast<unsigned>(static_cast<int>(std::round(c))) & 0xFF; }

unsigned plain_lab_to_rgb(double l, double a, double b) {
  const double fy = (l + 16) / 116, fx = a / 500 + fy, fz = fy - b / 200;
  const double x = finv(fx) * 95.047 / 100, y = finv(fy), z = finv(fz) * 108.883 / 100;
  const double r = 3.2404542 * x - 1.5371385 * y - 0.4985314 * z;
  const double g = -0.969266 * x + 1.8760108 * y + 0.041556 * z;
  const double bl = 0.0556434 * x - 0.2040259 * y + 1.0572252 * z;
  return byte_of(gam(r) * 255) | byte_of(gam(g) * 255) << 8 | byte_of(gam(bl) * 255) << 16;
}

void plain_rgb_to_hsl(unsigned rgb, double& h, double& s, double& l) {
  const double r = (rgb & 0xFF) / 255.0, g = ((rgb >> 8) & 0xFF) / 255.0, b = ((rgb >> 16) & 0xFF) / 255.0;
  const double max = std::max({r, g, b}), min = std::min({r, g, b}), d = max - min;
  l = (max + min) / 2;
  if (d == 0) {
    h = s = 0;
    return;
  }
  s = l < 0.5 ? d / (max + min) : d / (2 - max - min);
  h = (r == max ? (g - b) / d : g == max ? 2 + (b - r) / d : 4 + (r - g) / d) / 6;
  if (h < 0) h += 1;
}

void BM_RgbToLab_Export(benchmark::State& state) {
  double l, a, b, sum = 0;
  for (auto _ : state) {
    for (unsigned c : colors()) {
      RGBtoLAB(c, &l, &a, &b);
      sum += l;
    }
  }
  benchmark::DoNotOptimize(sum);
  state.SetItemsProcessed(static_cast<long>(state.iterations() * kColors));
}
void BM_RgbToLab_PlainLoop(benchmark::State& state) {
  double l, a, b, sum = 0;
  for (auto _ : state) {
    for (unsigned c : colors()) {
      plain_rgb_to_lab(c, l, a, b);
      sum += l;
    }
  }
  benchmark::DoNotOptimize(sum);
  state.SetItemsProcessed(static_cast<long>(state.iterations() * kColors));
}

struct LabColor {
  double l, a, b;
};
const std::vector<LabColor>& labs() {
  static const std::vector<LabColor> all = [] {
    std::vector<LabColor> made;
    for (unsigned c : colors()) {
      LabColor lab;
      RGBtoLAB(c, &lab.l, &lab.a, &lab.b);
      if (LABtoRGB(lab.l, lab.a, lab.b) != plain_lab_to_rgb(lab.l, lab.a, lab.b)) std::abort();
      made.push_back(lab);
    }
    return made;
  }();
  return all;
}

void BM_LabToRgb_Export(benchmark::State& state) {
  unsigned sum = 0;
  for (auto _ : state) {
    for (const LabColor& c : labs()) sum += LABtoRGB(c.l, c.a, c.b);
  }
  benchmark::DoNotOptimize(sum);
  state.SetItemsProcessed(static_cast<long>(state.iterations() * kColors));
}
void BM_LabToRgb_PlainLoop(benchmark::State& state) {
  unsigned sum = 0;
  for (auto _ : state) {
    for (const LabColor& c : labs()) sum += plain_lab_to_rgb(c.l, c.a, c.b);
  }
  benchmark::DoNotOptimize(sum);
  state.SetItemsProcessed(static_cast<long>(state.iterations() * kColors));
}

void BM_RgbToHsl_Export(benchmark::State& state) {
  double h, s, l, sum = 0;
  for (auto _ : state) {
    for (unsigned c : colors()) {
      RGBtoHSL(c, &h, &s, &l);
      sum += h;
    }
  }
  benchmark::DoNotOptimize(sum);
  state.SetItemsProcessed(static_cast<long>(state.iterations() * kColors));
}
void BM_RgbToHsl_PlainLoop(benchmark::State& state) {
  double h, s, l, sum = 0;
  for (auto _ : state) {
    for (unsigned c : colors()) {
      plain_rgb_to_hsl(c, h, s, l);
      sum += h;
    }
  }
  benchmark::DoNotOptimize(sum);
  state.SetItemsProcessed(static_cast<long>(state.iterations() * kColors));
}

// Colour texts: "#RRGGBB" and "RGB(r,g,b)" forms, half each.
const std::vector<std::string>& texts() {
  static const std::vector<std::string> all = [] {
    std::vector<std::string> made;
    char text[32];
    for (std::size_t i = 0; i < 4096; ++i) {
      const unsigned c = colors()[i];
      if (i % 2 == 0) {
        std::snprintf(text, sizeof text, "#%02X%02X%02X", c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF);
      } else {
        std::snprintf(text, sizeof text, "RGB(%u,%u,%u)", c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF);
      }
      made.push_back(text);
    }
    return made;
  }();
  return all;
}

int sscanf_color(const char* text) {
  unsigned r, g, b;
  const bool html = text[0] == '#';
  const int read =
      html ? std::sscanf(text, "#%02X%02X%02X", &r, &g, &b) : std::sscanf(text, "RGB(%u,%u,%u)", &r, &g, &b);
  return read == 3 ? static_cast<int>((r & 0xFF) | (g & 0xFF) << 8 | (b & 0xFF) << 16 | 0x01000000) : 0;
}

void BM_ColorText_str2vcolor(benchmark::State& state) {
  for (const std::string& t : texts()) {
    if (KILNUTIL_str2vcolor(t.c_str(), 0) != sscanf_color(t.c_str())) std::abort();
  }
  int sum = 0;
  for (auto _ : state) {
    for (const std::string& t : texts()) sum += KILNUTIL_str2vcolor(t.c_str(), 0);
  }
  benchmark::DoNotOptimize(sum);
  state.SetItemsProcessed(static_cast<long>(state.iterations() * texts().size()));
}
void BM_ColorText_sscanf(benchmark::State& state) {
  int sum = 0;
  for (auto _ : state) {
    for (const std::string& t : texts()) sum += sscanf_color(t.c_str());
  }
  benchmark::DoNotOptimize(sum);
  state.SetItemsProcessed(static_cast<long>(state.iterations() * texts().size()));
}

void BM_Nearest_Export(benchmark::State& state) {
  int sum = 0;
  for (auto _ : state) {
    for (unsigned c : colors()) sum += color_rgb_to_index(c, KILNUTIL_COLOR_SEARCH_NEAREST);
  }
  benchmark::DoNotOptimize(sum);
  state.SetItemsProcessed(static_cast<long>(state.iterations() * kColors));
}
void BM_Nearest_PlainLoop(benchmark::State& state) {
  std::vector<unsigned> list;
  for (int i = 0; i < KILNUTIL_COLOR_BUILTIN_COUNT; ++i) list.push_back(color_index_to_rgb(i, 0, nullptr));
  const auto nearest = [&list](unsigned c) {
    long best = 4L * 255 * 255;
    int index = 0;
    for (int i = 0; i < static_cast<int>(list.size()); ++i) {
      long d = 0;
      for (int shift = 0; shift < 24; shift += 8) {
        const long x = static_cast<long>((list[static_cast<std::size_t>(i)] >> shift) & 0xFF) - ((c >> shift) & 0xFF);
        d += x * x;
      }
      if (d < best) best = d, index = i;
    }
    return index;
  };
  for (unsigned c : colors()) {
    if (nearest(c) != color_rgb_to_index(c, KILNUTIL_COLOR_SEARCH_NEAREST)) std::abort();
  }
  int sum = 0;
  for (auto _ : state) {
    for (unsigned c : colors()) sum += nearest(c);
  }
  benchmark::DoNotOptimize(sum);
  state.SetItemsProcessed(static_cast<long>(state.iterations() * kColors));
}

}  // namespace

BENCHMARK(BM_RgbToLab_Export);
BENCHMARK(BM_RgbToLab_PlainLoop);
BENCHMARK(BM_LabToRgb_Export);
BENCHMARK(BM_LabToRgb_PlainLoop);
BENCHMARK(BM_RgbToHsl_Export);
BENCHMARK(BM_RgbToHsl_PlainLoop);
BENCHMARK(BM_ColorText_str2vcolor);
BENCHMARK(BM_ColorText_sscanf);
BENCHMARK(BM_Nearest_Export);
BENCHMARK(BM_Nearest_PlainLoop);
