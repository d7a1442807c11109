// Shewhart control-chart factors for a subgroup of n measurements: d2 (the
// mean range in standard deviations) and the range-chart limits D3 and D4.
#pragma once

namespace kiln::math {

// n is truncated toward zero; n = 0 and 1 give -0, n >= 26, a negative n or
// NaN the missing value.
double control_chart_d2(double n);
double control_chart_d3(double n);
double control_chart_d4(double n);

}  // namespace kiln::math
