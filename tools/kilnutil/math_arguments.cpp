// Number arguments of the math commands.
#include "math_arguments.h"

#include <kilnutil/frame.h>
#include <kilnutil/numeric.h>

#include <cmath>
#include <cstdio>
#include <string>

namespace kilnutil_cli {

std::optional<double> parse_real(const char* argument) {
  std::string text = argument;
  double value = 0;
  if (KILNUTIL_cvtstr2real_ex(text.data(), &value, 1, nullptr) == 0) return std::nullopt;
  return value;
}

std::optional<int> parse_int32(const char* argument) {
  const std::optional<double> value = parse_real(argument);
  if (!value || *value != std::trunc(*value) || *value < -2147483648.0 || *value > 2147483647.0) return std::nullopt;
  return static_cast<int>(*value);
}

void print_value(double value) {
  if (is_missing_value(value) != 0) {
    std::printf("%s\n", KILNUTIL_get_missing_as_text(nullptr));
  } else {
    std::printf("%.17g\n", value);
  }
}

}  // namespace kilnutil_cli
