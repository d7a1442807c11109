// Gauss-Jordan elimination with full pivoting in the compact form: the inverse
// is built in the storage of the matrix, each step's pivot row and column are
// recorded, and the exchanges are undone in reverse order at the end. The
// exchanges change the sign of the element moved away; the signs cancel in
// pairs between the elimination and the undoing.
#include "math/matrix_inverse.h"

#include "platform/global_memory.h"

#include <cmath>
#include <cstdint>
#include <cstring>

namespace kiln::math {

namespace {

class Elimination {
public:
  Elimination(unsigned n, double* a) : n_(n), a_(a) {}

  // KILNUTIL_INVERSE_OK, or KILNUTIL_INVERSE_SINGULAR with the matrix partly
  // transformed.
  int run(double threshold) {
    for (unsigned k = 0; k < n_; ++k) {
      const Pivot pivot = find_pivot(k);
      const double p = at(pivot.row, pivot.col);
      if (std::fabs(p) < threshold) return KILNUTIL_INVERSE_SINGULAR;
      pivot_row_[k] = static_cast<std::uint8_t>(pivot.row);
      pivot_col_[k] = static_cast<std::uint8_t>(pivot.col);
      if (pivot.row > k) exchange_rows_negating_second(k, pivot.row);
      if (pivot.col > k) exchange_cols_negating_second(k, pivot.col);
      eliminate(k, p);
    }
    for (unsigned k = n_; k-- > 0;) {
      if (pivot_row_[k] > k) exchange_cols_negating_first(k, pivot_row_[k]);
      if (pivot_col_[k] > k) exchange_rows_negating_first(k, pivot_col_[k]);
    }
    return KILNUTIL_INVERSE_OK;
  }

private:
  struct Pivot {
    unsigned row;
    unsigned col;
  };

  double& at(unsigned i, unsigned j) { return a_[static_cast<std::size_t>(i) * n_ + j]; }
  double* row(unsigned i) { return a_ + static_cast<std::size_t>(i) * n_; }

  // The largest magnitude in rows and columns k.., scanned row by row; the
  // last of equal candidates wins.
  Pivot find_pivot(unsigned k) {
    Pivot best{k, k};
    double best_magnitude = -1.0;
    for (unsigned i = k; i < n_; ++i) {
      const double* r = row(i);
      for (unsigned j = k; j < n_; ++j) {
        const double magnitude = std::fabs(r[j]);
        if (magnitude >= best_magnitude) {
          best_magnitude = magnitude;
          best = {i, j};
        }
      }
    }
    return best;
  }

  // Elimination: a[k][j] takes a[r][j], a[r][j] the old a[k][j] negated.
  void exchange_rows_negating_second(unsigned k, unsigned r) {
    double* dst = row(k);
    double* src = row(r);
    for (unsigned j = 0; j < n_; ++j) {
      const double old = dst[j];
      dst[j] = src[j];
      src[j] = -old;
    }
  }

  void exchange_cols_negating_second(unsigned k, unsigned c) {
    for (unsigned j = 0; j < n_; ++j) {
      const double old = at(j, k);
      at(j, k) = at(j, c);
      at(j, c) = -old;
    }
  }

  // Undoing: a[j][k] takes a[j][r] negated, a[j][r] the old a[j][k].
  void exchange_cols_negating_first(unsigned k, unsigned r) {
    for (unsigned j = 0; j < n_; ++j) {
      const double old = at(j, k);
      at(j, k) = -at(j, r);
      at(j, r) = old;
    }
  }

  void exchange_rows_negating_first(unsigned k, unsigned c) {
    double* dst = row(k);
    double* src = row(c);
    for (unsigned j = 0; j < n_; ++j) {
      const double old = dst[j];
      dst[j] = -src[j];
      src[j] = old;
    }
  }

  // Column k divided by -P, the rest reduced, row k divided by P, the pivot
  // replaced by 1/P.
  void eliminate(unsigned k, double p) {
    const double minus_p = -p;
    for (unsigned i = 0; i < n_; ++i) {
      if (i != k) at(i, k) /= minus_p;
    }
    const double* pivot_row = row(k);
    for (unsigned i = 0; i < n_; ++i) {
      if (i == k) continue;
      double* r = row(i);
      const double factor = r[k];
      add_scaled(r, pivot_row, factor, 0, k);
      add_scaled(r, pivot_row, factor, k + 1, n_);
    }
    double* rk = row(k);
    for (unsigned j = 0; j < n_; ++j) {
      if (j != k) rk[j] /= p;
    }
    rk[k] = 1.0 / p;
  }

  // dst[j] += factor * src[j] for j in from..to-1 (dst and src are distinct rows).
  static void add_scaled(double* dst, const double* src, double factor, unsigned from, unsigned to) {
    for (unsigned j = from; j < to; ++j) dst[j] = dst[j] + factor * src[j];
  }

  unsigned n_;
  double* a_;
  std::uint8_t pivot_row_[KILNUTIL_INVERSE_MAX_ORDER] = {};
  std::uint8_t pivot_col_[KILNUTIL_INVERSE_MAX_ORDER] = {};
};

int invert_in_place(unsigned n, double* a) { return Elimination(n, a).run(std::pow(10.0, -pivot_exponent())); }

// Works on a zero-filled global-memory copy, copied back only on success.
int invert_copy(unsigned n, double* a) {
  const std::size_t bytes = static_cast<std::size_t>(n) * n * sizeof(double);
  HGLOBAL block = platform::global_alloc(GPTR, bytes);
  if (block == nullptr) return KILNUTIL_INVERSE_NO_ROOM;
  auto* work = static_cast<double*>(block);
  std::memcpy(work, a, bytes);
  const int result = invert_in_place(n, work);
  if (result == KILNUTIL_INVERSE_OK) std::memcpy(a, work, bytes);
  platform::global_free(block);
  return result;
}

}  // namespace

int invert_matrix(unsigned n, double* a, unsigned mode) {
  if (n > KILNUTIL_INVERSE_MAX_ORDER) return KILNUTIL_INVERSE_NO_ROOM;
  if (n == 0) return KILNUTIL_INVERSE_OK;
  return mode == KILNUTIL_INVERSE_MODE_COPY ? invert_copy(n, a) : invert_in_place(n, a);
}

}  // namespace kiln::math
