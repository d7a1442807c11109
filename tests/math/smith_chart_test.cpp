// Smith chart mapping: landmark points, the missing value and the pole, the
// reflection of negative resistances, and round trips through the inverse.
#include <kilnutil/frame.h>
#include <kilnutil/math.h>

#include <gtest/gtest.h>

#include <cmath>

namespace {

constexpr double kNanum = KILNUTIL_NANUM;

struct SmithCase {
  double r, x;
  unsigned char invert;
  double u, v;
};

TEST(SmithChart, ForwardMapping) {
  const SmithCase cases[] = {
      {1, 0, 0, 0, 0},    // matched load at the centre
      {0, 1, 0, 0, 1},    // pure inductance on the rim
      {0, -1, 0, 0, -1},  // pure capacitance
      {0, 0, 0, -1, 0},   // short circuit
      {3, 0, 0, 0.5, 0},
      {-0.5, 0, 0, -3, 0},                              // outside the chart without the flag
      {-0.5, 0, KILNUTIL_SMITH_INVERT, -1.0 / 3.0, 0},  // reflected inside with it
      {0.5, 2, KILNUTIL_SMITH_INVERT, 0.52, 0.64},      // positive r is never reflected
      {-1, 0, 0, kNanum, kNanum},                       // the pole
      {-1, 0, 1, kNanum, kNanum},
      {kNanum, 1, 0, kNanum, kNanum},
      {1, kNanum, 1, kNanum, kNanum},
  };
  for (const auto& c : cases) {
    EXPECT_DOUBLE_EQ(KILNUTIL_smith_x_real_space(c.r, c.x, c.invert), c.u) << c.r << ' ' << c.x;
    EXPECT_DOUBLE_EQ(KILNUTIL_smith_y_real_space(c.r, c.x, c.invert), c.v) << c.r << ' ' << c.x;
  }
  double u = 7, v = 7;
  KILNUTIL_smith_XY2UV(0.5, 2, &u, &v);
  EXPECT_DOUBLE_EQ(u, 0.52);
  EXPECT_DOUBLE_EQ(v, 0.64);
  KILNUTIL_smith_XY2UV(-1, 0, &u, &v);  // no pole test: 0/0
  EXPECT_TRUE(std::isnan(u));
  KILNUTIL_smith_XY2UV(1, 1, nullptr, nullptr);
}

TEST(SmithChart, InverseMappingAndRoundTrips) {
  EXPECT_EQ(KILNUTIL_smith_x_real_inv_space(0, 0), 1.0);
  EXPECT_EQ(KILNUTIL_smith_y_real_inv_space(0, 0), 0.0);
  EXPECT_EQ(KILNUTIL_smith_x_real_inv_space(1, 0), kNanum);
  EXPECT_EQ(KILNUTIL_smith_y_real_inv_space(1, 0), kNanum);
  EXPECT_EQ(KILNUTIL_smith_x_real_inv_space(kNanum, 0.2), kNanum);
  EXPECT_EQ(KILNUTIL_smith_y_real_inv_space(0.2, kNanum), kNanum);
  const double impedances[][2] = {{1, 0}, {0.2, -3}, {5, 0.5}, {0, 1}, {1e-3, 1e3}, {50, -50}};
  for (const auto& z : impedances) {
    const double u = KILNUTIL_smith_x_real_space(z[0], z[1], 0);
    const double v = KILNUTIL_smith_y_real_space(z[0], z[1], 0);
    EXPECT_LE(u * u + v * v, 1.0 + 1e-15) << "passive loads stay inside the unit circle";
    EXPECT_NEAR(KILNUTIL_smith_x_real_inv_space(u, v), z[0], 1e-9 * (1 + std::abs(z[0])));
    EXPECT_NEAR(KILNUTIL_smith_y_real_inv_space(u, v), z[1], 1e-9 * (1 + std::abs(z[1])));
  }
}

}  // namespace
