// Smith chart mapping.
#include "math/smith_chart.h"

#include "frame/missing_value.h"

namespace kiln::math {

namespace {

using frame::is_missing;
using frame::kMissingValue;

bool is_pole(double r, double x) { return r == -1.0 && x == 0.0; }

bool is_open_circuit(double u, double v) { return u == 1.0 && v == 0.0; }

bool unusable_impedance(double r, double x) { return is_missing(r) || is_missing(x) || is_pole(r, x); }

bool unusable_chart_point(double u, double v) { return is_missing(u) || is_missing(v) || is_open_circuit(u, v); }

double impedance_denominator(double r, double x) { return (r + 1.0) * (r + 1.0) + x * x; }

double chart_denominator(double u, double v) { return (1.0 - u) * (1.0 - u) + v * v; }

// The chart point reflected through the unit circle.
ChartPoint reflected(double r, double x) {
  const ChartPoint p = smith_to_chart(r, x);
  const double norm = p.u * p.u + p.v * p.v;
  return {p.u / norm, p.v / norm};
}

bool reflects(double r, bool invert) { return invert && r < 0.0; }

}  // namespace

ChartPoint smith_to_chart(double r, double x) {
  const double d = impedance_denominator(r, x);
  return {(r * r + x * x - 1.0) / d, 2.0 * x / d};
}

double smith_chart_u(double r, double x, bool invert) {
  if (unusable_impedance(r, x)) return kMissingValue;
  if (reflects(r, invert)) return reflected(r, x).u;
  return (r * r + x * x - 1.0) / impedance_denominator(r, x);
}

double smith_chart_v(double r, double x, bool invert) {
  if (unusable_impedance(r, x)) return kMissingValue;
  if (reflects(r, invert)) return reflected(r, x).v;
  return 2.0 * x / impedance_denominator(r, x);
}

double smith_resistance(double u, double v) {
  if (unusable_chart_point(u, v)) return kMissingValue;
  return (1.0 - u * u - v * v) / chart_denominator(u, v);
}

double smith_reactance(double u, double v) {
  if (unusable_chart_point(u, v)) return kMissingValue;
  return 2.0 * v / chart_denominator(u, v);
}

}  // namespace kiln::math
