// Smith chart mapping: a normalised impedance z = r + jx and its reflection
// coefficient u + jv = (z - 1)/(z + 1), one component at a time, so that each
// chart axis is a coordinate transform.
#pragma once

namespace kiln::math {

struct ChartPoint {
  double u;
  double v;
};

// (r, x) -> (u, v) by the plain formulas: no test of the pole z = -1 and no
// missing-value handling.
ChartPoint smith_to_chart(double r, double x);

// u and v of (r, x); the missing value in, or the pole r = -1, x = 0, gives
// the missing value. With invert and r < 0 the point is reflected through the
// unit circle (u, v)/(u^2 + v^2), so negative resistances land inside.
double smith_chart_u(double r, double x, bool invert);
double smith_chart_v(double r, double x, bool invert);

// r and x of the chart point (u, v); the missing value in, or the point
// u = 1, v = 0, gives the missing value.
double smith_resistance(double u, double v);
double smith_reactance(double u, double v);

}  // namespace kiln::math
