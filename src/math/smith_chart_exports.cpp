// The Smith chart exports: forwards to math/smith_chart.h.
#include <kilnutil/math.h>

#include "math/smith_chart.h"

extern "C" {

void KILNUTIL_smith_XY2UV(double r, double x, double* u, double* v) {
  const kiln::math::ChartPoint p = kiln::math::smith_to_chart(r, x);
  if (u != nullptr) *u = p.u;
  if (v != nullptr) *v = p.v;
}

double KILNUTIL_smith_x_real_space(double r, double x, unsigned char invert) {
  return kiln::math::smith_chart_u(r, x, invert != 0);
}

double KILNUTIL_smith_y_real_space(double r, double x, unsigned char invert) {
  return kiln::math::smith_chart_v(r, x, invert != 0);
}

double KILNUTIL_smith_x_real_inv_space(double u, double v) { return kiln::math::smith_resistance(u, v); }

double KILNUTIL_smith_y_real_inv_space(double u, double v) { return kiln::math::smith_reactance(u, v); }

}  // extern "C"
