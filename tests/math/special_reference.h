// The reference tables of data/special_reference.inc and the comparison by
// relative error that every special-function test uses.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace special_test {

struct Reference {
  double x, y, z, value;
};

#include "math/data/special_reference.inc"

// |actual - expected| <= tolerance · max(|expected|, floor): relative error,
// with an absolute floor for values near zero.
inline ::testing::AssertionResult close_to(double actual, double expected, double tolerance, double floor = 0) {
  const double bound = tolerance * std::max(std::fabs(expected), floor);
  if (std::fabs(actual - expected) <= bound) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << actual << " differs from " << expected << " by "
                                       << std::fabs(actual - expected) / std::max(std::fabs(expected), floor)
                                       << " relative (limit " << tolerance << ")";
}

}  // namespace special_test
