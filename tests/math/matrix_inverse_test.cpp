// KilnMath_Inverse: A * inv(A) close to I within a bound proportional to the
// condition number for every order 1 to 128, row- and column-major callers,
// exact inverses of permutation matrices, and the singular cases with the
// threshold moved through its accessor.
#include <kilnutil/math.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <cstring>
#include <numeric>
#include <random>
#include <vector>

namespace {

using Matrix = std::vector<double>;

double& at(Matrix& m, int n, int i, int j) { return m[static_cast<std::size_t>(i * n + j)]; }

Matrix multiply(const Matrix& a, const Matrix& b, int n) {
  Matrix c(a.size(), 0.0);
  for (int i = 0; i < n; ++i)
    for (int k = 0; k < n; ++k)
      for (int j = 0; j < n; ++j)
        c[static_cast<std::size_t>(i * n + j)] +=
            a[static_cast<std::size_t>(i * n + k)] * b[static_cast<std::size_t>(k * n + j)];
  return c;
}

Matrix transpose(Matrix m, int n) {
  for (int i = 0; i < n; ++i)
    for (int j = i + 1; j < n; ++j) std::swap(at(m, n, i, j), at(m, n, j, i));
  return m;
}

double norm_1(const Matrix& m, int n) {
  double best = 0;
  for (int j = 0; j < n; ++j) {
    double sum = 0;
    for (int i = 0; i < n; ++i) sum += std::fabs(m[static_cast<std::size_t>(i * n + j)]);
    best = std::max(best, sum);
  }
  return best;
}

double distance_from_identity(const Matrix& m, int n) {
  double worst = 0;
  for (int i = 0; i < n; ++i)
    for (int j = 0; j < n; ++j) worst = std::max(worst, std::fabs(m[static_cast<std::size_t>(i * n + j)] - (i == j)));
  return worst;
}

Matrix random_matrix(int n, std::mt19937& random) {
  std::uniform_real_distribution<double> entry(-1.0, 1.0);
  Matrix m(static_cast<std::size_t>(n * n));
  for (double& x : m) x = entry(random);
  return m;
}

int invert(Matrix& m, int n, unsigned mode = KILNUTIL_INVERSE_MODE_IN_PLACE) {
  return KilnMath_Inverse(static_cast<unsigned short>(n), m.data(), static_cast<unsigned short>(mode));
}

TEST(KilnMathInverse, EveryOrderWithinTheConditionBound) {
  std::mt19937 random(12);
  for (int n = 1; n <= KILNUTIL_INVERSE_MAX_ORDER; ++n) {
    const Matrix a = random_matrix(n, random);
    Matrix inverse = a;
    ASSERT_EQ(invert(inverse, n, n % 2 ? KILNUTIL_INVERSE_MODE_COPY : KILNUTIL_INVERSE_MODE_IN_PLACE), 0) << n;
    const double condition = norm_1(a, n) * norm_1(inverse, n);
    const double bound = 4.0 * n * DBL_EPSILON * condition;
    EXPECT_LE(distance_from_identity(multiply(a, inverse, n), n), bound) << "A*inv(A), n=" << n;
    EXPECT_LE(distance_from_identity(multiply(inverse, a, n), n), bound) << "inv(A)*A, n=" << n;
    // A column-major caller hands over the transpose and reads the result the same way.
    Matrix column_major = transpose(a, n);
    ASSERT_EQ(invert(column_major, n), 0);
    const Matrix back = transpose(column_major, n);
    const double tolerance = bound * norm_1(inverse, n);
    for (std::size_t k = 0; k < back.size(); ++k) ASSERT_NEAR(back[k], inverse[k], tolerance) << "n=" << n;
  }
}

TEST(KilnMathInverse, KnownTwoByTwo) {
  Matrix m{4, 7, 2, 6};
  ASSERT_EQ(invert(m, 2), KILNUTIL_INVERSE_OK);
  const double expected[] = {0.6, -0.7, -0.2, 0.4};
  for (int k = 0; k < 4; ++k) EXPECT_NEAR(m[static_cast<std::size_t>(k)], expected[k], 1e-15);
}

// Only exchanges and divisions by 1 happen: the inverse is the exact transpose.
TEST(KilnMathInverse, PermutationMatricesInvertExactly) {
  std::mt19937 random(3);
  for (const int n : {2, 3, 5, 17, 128}) {
    std::vector<int> image(static_cast<std::size_t>(n));
    std::iota(image.begin(), image.end(), 0);
    std::shuffle(image.begin(), image.end(), random);
    Matrix p(static_cast<std::size_t>(n * n), 0.0);
    for (int i = 0; i < n; ++i) at(p, n, i, image[static_cast<std::size_t>(i)]) = 1.0;
    Matrix inverse = p;
    ASSERT_EQ(invert(inverse, n), 0);
    EXPECT_EQ(inverse, transpose(p, n)) << n;
  }
}

TEST(KilnMathInverse, SingularAndNearSingular) {
  struct Case {
    int n;
    Matrix m;
  };
  const Case singular[] = {
      {3, {1, 2, 3, 0, 0, 0, 4, 5, 6}},  // zero row
      {3, {1, 2, 3, 2, 4, 6, 1, 0, 1}},  // dependent rows
      {2, {1, 1, 1, 1 + 1e-16}},         // equal in doubles
  };
  for (const Case& c : singular) {
    Matrix copy = c.m;
    EXPECT_EQ(invert(copy, c.n, KILNUTIL_INVERSE_MODE_COPY), KILNUTIL_INVERSE_SINGULAR);
    EXPECT_EQ(std::memcmp(copy.data(), c.m.data(), copy.size() * sizeof(double)), 0) << "copy mode touched the input";
    EXPECT_EQ(invert(copy, c.n), KILNUTIL_INVERSE_SINGULAR);
  }

  double exponent = 0;
  EXPECT_EQ(gaussjordan_pivotmin_export_ptr(&exponent, KILNUTIL_PIVOT_EXPONENT_GET), 0);
  EXPECT_EQ(exponent, KILNUTIL_PIVOT_EXPONENT_DEFAULT);
  Matrix tiny{1e-36};
  EXPECT_EQ(invert(tiny, 1), KILNUTIL_INVERSE_SINGULAR);
  double forty = 40;
  gaussjordan_pivotmin_export_ptr(&forty, KILNUTIL_PIVOT_EXPONENT_SET);
  EXPECT_EQ(invert(tiny, 1), KILNUTIL_INVERSE_OK);
  EXPECT_DOUBLE_EQ(tiny[0], 1e36);
  double three = 3;  // a stricter threshold: 1e-3
  gaussjordan_pivotmin_export_ptr(&three, KILNUTIL_PIVOT_EXPONENT_SET);
  Matrix small{1e-4, 0, 0, 1};
  EXPECT_EQ(invert(small, 2), KILNUTIL_INVERSE_SINGULAR);
  double restore = KILNUTIL_PIVOT_EXPONENT_DEFAULT;
  gaussjordan_pivotmin_export_ptr(&restore, KILNUTIL_PIVOT_EXPONENT_SET);
}

TEST(KilnMathInverse, OrderLimits) {
  Matrix big(129 * 129, 1.0);
  const Matrix before = big;
  EXPECT_EQ(KilnMath_Inverse(129, big.data(), 0), KILNUTIL_INVERSE_NO_ROOM);
  EXPECT_EQ(big, before);
  EXPECT_EQ(KilnMath_Inverse(0, nullptr, 0), KILNUTIL_INVERSE_OK);
}

}  // namespace
