// Looking up the exports that share a C runtime name in the built shared
// library, as a host does by name: each must be the library's function (its
// domain rule, the missing value), not the runtime's. The domain rules and
// error codes themselves are checked on the internal functions.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "frame/missing_value.h"
#include "platform/shared_library.h"

namespace {

constexpr double kMissing = kiln::frame::kMissingValue;

struct UnaryCase {
  const char* name;
  double x;
  double expected;  // differs from what the C runtime's function gives
};

class MathRuntimeNamesTest : public ::testing::Test {
protected:
  void SetUp() override {
#ifndef KILNUTIL_SHARED_LIBRARY_FILE
    GTEST_SKIP() << "this build has no shared library with runtime-named exports";
#else
    library_ = kiln::platform::load_shared_library(KILNUTIL_SHARED_LIBRARY_FILE);
    ASSERT_NE(library_, nullptr);
#endif
  }
  void TearDown() override {
    if (library_ != nullptr) kiln::platform::unload_shared_library(library_);
  }

  template <typename Function>
  Function find(const char* name) {
    void* address = kiln::platform::find_exported_symbol(library_, name);
    EXPECT_NE(address, nullptr) << name;
    return reinterpret_cast<Function>(address);
  }

  void* library_ = nullptr;
};

TEST_F(MathRuntimeNamesTest, SqrtOfMinusOneGivesMissingValueAndCode) {
  const auto error_code = find<unsigned (*)()>("get_error_code");
  const auto sqrt_export = find<double (*)(double)>("sqrt");
  ASSERT_TRUE(error_code != nullptr && sqrt_export != nullptr);
  ASSERT_EQ(error_code(), 0u);
  EXPECT_EQ(sqrt_export(-1.0), kMissing);
  EXPECT_EQ(error_code(), 1u);
}

TEST_F(MathRuntimeNamesTest, EveryRuntimeNameIsTheLibrarys) {
  const UnaryCase unary[] = {
      {"log10", 0.0, kMissing},
      {"log1p", -1.0, kMissing},
      {"acos", 2.0, kMissing},
      {"asin", -1.5, kMissing},
      {"cosh", 1000.0, kMissing},
      {"sinh", -1000.0, kMissing},
      {"tan", kMissing, kMissing},
      {"asinh", kMissing, kMissing},
      {"acosh", 0.5, kMissing},
      {"atanh", 1.0, kMissing},
      {"ceil", HUGE_VAL, kMissing},
      {"floor", -HUGE_VAL, kMissing},
      {"expm1", 1e-10, std::exp(1e-10) - 1.0},  // the runtime's expm1 is exact: 1.00000000005e-10
  };
  for (const UnaryCase& c : unary) {
    const auto function = find<double (*)(double)>(c.name);
    if (function == nullptr) continue;
    EXPECT_EQ(function(c.x), c.expected) << c.name << "(" << c.x << ")";
  }
  const auto hypot_export = find<double (*)(double, double)>("hypot");
  const auto pow_export = find<double (*)(double, double)>("pow");
  const auto round_export = find<double (*)(double, int)>("round");
  ASSERT_TRUE(hypot_export != nullptr && pow_export != nullptr && round_export != nullptr);
  EXPECT_EQ(hypot_export(-3, 4), kMissing);
  EXPECT_EQ(pow_export(0, 0), kMissing);
  EXPECT_EQ(round_export(2.675, 2), 2.68);
  EXPECT_EQ(round_export(1234.5678, -2), 1200.0);
}

}  // namespace
