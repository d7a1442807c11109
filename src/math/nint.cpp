// The double-to-integer family.
#include "math/nint.h"

#include <cmath>
#include <limits>

namespace kiln::math {

namespace {

constexpr double kInt32Upper = 2147483647.0;
constexpr double kInt32Lower = -2147483648.0;
constexpr double kNarrowLimit = 2147483600.0;
constexpr double kLastNintTolerance = -1e-10;

// Clamp of the last four conversions; false when x needs no clamp.
bool clamp_narrow(double x, int& clamped) {
  if (x > kNarrowLimit) {
    clamped = static_cast<int>(kNarrowLimit);
    return true;
  }
  if (x < -kNarrowLimit) {
    clamped = -static_cast<int>(kNarrowLimit);
    return true;
  }
  return false;
}

// Negation that wraps for the lowest value as the processor's does (nint of
// -2147483647.9 rounds to 2147483648, which converts to the lowest value).
std::int64_t negate_wrapping(std::int64_t v) { return static_cast<std::int64_t>(0u - static_cast<std::uint64_t>(v)); }

int negate_wrapping(int v) { return static_cast<int>(0u - static_cast<std::uint32_t>(v)); }

// n - 1, wrapping for the lowest value (only NaN produces it here).
int minus_one_wrapping(int n) { return static_cast<int>(static_cast<std::uint32_t>(n) - 1u); }

}  // namespace

std::int32_t truncate_to_int32(double x) {
  if (x > -2147483649.0 && x < 2147483648.0) return static_cast<std::int32_t>(x);
  return std::numeric_limits<std::int32_t>::min();
}

std::int64_t truncate_to_int64(double x) {
  if (x >= -9223372036854775808.0 && x < 9223372036854775808.0) return static_cast<std::int64_t>(x);
  return std::numeric_limits<std::int64_t>::min();
}

int nint(double x) {
  if (x >= kInt32Upper) return std::numeric_limits<int>::max();
  if (x <= kInt32Lower) return std::numeric_limits<int>::min();
  const int magnitude = truncate_to_int32(std::fabs(x) + 0.5);
  return x < 0 ? negate_wrapping(magnitude) : magnitude;
}

int nint2(double x) {
  if (x >= kInt32Upper) return std::numeric_limits<int>::max();
  if (x <= kInt32Lower) return std::numeric_limits<int>::min();
  const int t = truncate_to_int32(x);
  return x < 0 ? t - 1 : t;
}

std::int64_t nint64(double x) {
  const std::int64_t magnitude = truncate_to_int64(std::fabs(x) + 0.5);
  return x < 0 ? negate_wrapping(magnitude) : magnitude;
}

int tint(double x) {
  int clamped = 0;
  if (clamp_narrow(x, clamped)) return clamped;
  return truncate_to_int32(x);
}

int nnint(double x) {
  int clamped = 0;
  if (clamp_narrow(x, clamped)) return clamped;
  const int t = truncate_to_int32(x);
  return x > t ? t + 1 : t;
}

int last_nint(double x) {
  int clamped = 0;
  if (clamp_narrow(x, clamped)) return clamped;
  const int n = truncate_to_int32(x + 0.5);
  return x - n > kLastNintTolerance ? n : minus_one_wrapping(n);
}

int lnint(double x) {
  int clamped = 0;
  if (clamp_narrow(x, clamped)) return clamped;
  const float single = static_cast<float>(x);
  const int n = nint(single);
  const float difference = single - static_cast<float>(n);
  return difference > kLastNintTolerance ? n : minus_one_wrapping(n);
}

}  // namespace kiln::math
