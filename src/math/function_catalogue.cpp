// Catalogue look-up and evaluation; owner of the last-found index (see
// docs/state.md).
#include "math/function_catalogue.h"

#include "frame/missing_value.h"
#include "math/error_code.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstring>

namespace kiln::math {

namespace {

std::atomic<std::size_t> g_last_found{0};

constexpr double kRadiansPerDegree = 0.017453292519943295;
constexpr double kRadiansPerGradian = 0.015707963267948967;
constexpr double kDegreesPerRadian = 57.29577951308232;
constexpr double kGradiansPerRadian = 63.66197723675813;

bool has_flag(const CatalogueEntry& entry, unsigned flag) { return (entry.flags & flag) != 0; }

bool names_match(const CatalogueEntry& entry, const char* name) { return std::strcmp(entry.name, name) == 0; }

// An angle argument in degrees or gradians, reduced by one turn and converted
// to radians; radians (and unknown units) pass unchanged.
double angle_to_radians(double x, unsigned unit) {
  if (unit == KILNUTIL_MATHFN_UNIT_DEGREES) return std::fmod(x, 360.0) * kRadiansPerDegree;
  if (unit == KILNUTIL_MATHFN_UNIT_GRADIANS) return std::fmod(x, 400.0) * kRadiansPerGradian;
  return x;
}

double angle_from_radians(double value, unsigned unit) {
  if (frame::is_missing(value) || std::isnan(value)) return value;
  if (unit == KILNUTIL_MATHFN_UNIT_DEGREES) return value * kDegreesPerRadian;
  if (unit == KILNUTIL_MATHFN_UNIT_GRADIANS) return value * kGradiansPerRadian;
  return value;
}

bool outside_domain(const CatalogueEntry& entry, double x) {
  return (has_flag(entry, KILNUTIL_MATHFN_FLAG_UNIT_RANGE) && std::abs(x) > 1.0) ||
         (has_flag(entry, KILNUTIL_MATHFN_FLAG_NON_NEGATIVE) && x < 0.0) ||
         (has_flag(entry, KILNUTIL_MATHFN_FLAG_POSITIVE) && x <= 0.0);
}

}  // namespace

std::span<const CatalogueEntry> catalogue_functions() {
  const std::span<const CatalogueEntry> all = catalogue_with_end();
  return all.first(all.size() - 1);
}

std::optional<std::size_t> find_catalogue_function(const char* name) {
  if (name == nullptr) return std::nullopt;
  const std::span<const CatalogueEntry> functions = catalogue_functions();
  const std::size_t last = g_last_found.load(std::memory_order_relaxed);
  if (last < functions.size() && names_match(functions[last], name)) return last;
  // The names are in strcmp order, so a binary search finds any of them.
  const auto before = [](const CatalogueEntry& entry, const char* key) { return std::strcmp(entry.name, key) < 0; };
  const auto found = std::lower_bound(functions.begin(), functions.end(), name, before);
  if (found == functions.end() || !names_match(*found, name)) return std::nullopt;
  const auto index = static_cast<std::size_t>(found - functions.begin());
  g_last_found.store(index, std::memory_order_relaxed);
  return index;
}

unsigned evaluate_catalogue_function(std::size_t index, const double* arguments, double& result, unsigned unit) {
  clear_error_code();
  const std::span<const CatalogueEntry> functions = catalogue_functions();
  if (index >= functions.size() || arguments == nullptr) {
    result = frame::kMissingValue;
    set_error_code(KILNUTIL_MATH_ERR_DOMAIN);
    return error_code();
  }
  const CatalogueEntry& entry = functions[index];
  double value = 0.0;
  if (entry.argument_count > 1) {
    value = entry.array(arguments);
  } else {
    double x = arguments[0];
    if (has_flag(entry, KILNUTIL_MATHFN_FLAG_ANGLE_ARG)) x = angle_to_radians(x, unit);
    if (outside_domain(entry, x)) {
      result = 0.0;
      set_error_code(KILNUTIL_MATH_ERR_DOMAIN);
      return KILNUTIL_MATH_ERR_DOMAIN;
    }
    value = entry.unary(x);
  }
  result = has_flag(entry, KILNUTIL_MATHFN_FLAG_ANGLE_RESULT) ? angle_from_radians(value, unit) : value;
  return error_code();
}

}  // namespace kiln::math
