// Control-chart factor tables for subgroup sizes 0 to 25.
#include "math/control_chart.h"

#include "frame/missing_value.h"

#include <array>
#include <cmath>
#include <cstddef>

namespace kiln::math {

namespace {

constexpr std::size_t kTableSize = 26;
using FactorTable = std::array<double, kTableSize>;

// Subgroups of 0 and 1 have no range: their entries are -0.
constexpr FactorTable kD2 = {-0.0,    -0.0,    1.12838, 1.69257, 2.05875, 2.32593, 2.53441, 2.70436, 2.8472,
                             2.97003, 3.07751, 3.17287, 3.25846, 3.33598, 3.40676, 3.47183, 3.53198, 3.58788,
                             3.64006, 3.68896, 3.73495, 3.77834, 3.81938, 3.85832, 3.89353, 3.93063};
constexpr FactorTable kD3 = {-0.0,  -0.0,  0,     0,     0,     0,     0,     0.076, 0.136, 0.184, 0.223, 0.256, 0.283,
                             0.307, 0.328, 0.347, 0.363, 0.378, 0.391, 0.403, 0.415, 0.425, 0.434, 0.443, 0.451, 0.459};
constexpr FactorTable kD4 = {-0.0,  -0.0,  3.267, 2.575, 2.282, 2.115, 2.004, 1.924, 1.864, 1.816, 1.777, 1.744, 1.716,
                             1.692, 1.671, 1.652, 1.636, 1.621, 1.608, 1.596, 1.586, 1.575, 1.566, 1.557, 1.548, 1.541};

double look_up(const FactorTable& table, double n) {
  const double whole = std::trunc(n);
  if (!(whole >= 0.0 && whole < static_cast<double>(kTableSize))) return frame::kMissingValue;
  return table[static_cast<std::size_t>(whole)];
}

}  // namespace

double control_chart_d2(double n) { return look_up(kD2, n); }
double control_chart_d3(double n) { return look_up(kD3, n); }
double control_chart_d4(double n) { return look_up(kD4, n); }

}  // namespace kiln::math
