// kilnutil smith [--reflect] R X: the Smith chart point (u, v) of the
// impedance r + jx; kilnutil smith --inverse U V: the impedance of a point.
#include "commands.h"
#include "math_arguments.h"

#include <kilnutil/frame.h>
#include <kilnutil/math.h>

#include <cstdio>
#include <string>
#include <vector>

namespace kilnutil_cli {

int run_smith(Args args) {
  bool inverse = false;
  unsigned char reflect = 0;
  std::vector<double> values;
  for (const char* arg : args) {
    const std::string word = arg;
    if (word == "--inverse") {
      inverse = true;
    } else if (word == "--reflect") {
      reflect = KILNUTIL_SMITH_INVERT;
    } else {
      const std::optional<double> value = parse_real(arg);
      if (!value) return input_error(word + ": not a number");
      values.push_back(*value);
    }
  }
  if (values.size() != 2) return usage_error("smith takes two numbers: smith R X or smith --inverse U V");
  const double a = values[0];
  const double b = values[1];
  const double first = inverse ? KILNUTIL_smith_x_real_inv_space(a, b) : KILNUTIL_smith_x_real_space(a, b, reflect);
  const double second = inverse ? KILNUTIL_smith_y_real_inv_space(a, b) : KILNUTIL_smith_y_real_space(a, b, reflect);
  if (is_missing_value(first) != 0 || is_missing_value(second) != 0)
    return input_error(inverse ? "smith: the point (1, 0) is an open circuit and has no impedance"
                               : "smith: the impedance -1 + 0j has no chart point");
  std::printf("%.17g %.17g\n", first, second);
  return kOk;
}

}  // namespace kilnutil_cli
