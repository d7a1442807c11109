// Combining cell ranges: intersection, merge and bounding range.
#include "import/range_pairs.h"

#include <algorithm>
#include <optional>

using namespace kiln::import;

namespace {

// A's value when it lies in B's pair, else B's value when it lies in A's.
std::optional<int> value_inside_other(int a_value, int b_value, Pair pa, Pair pb) {
  if (index_in_pair(a_value, pb)) return a_value;
  if (index_in_pair(b_value, pa)) return b_value;
  return std::nullopt;
}

// The common part of one dimension, or nothing. A pair that covers the whole
// dimension yields the other one; two to-the-end pairs start at the later first.
std::optional<Pair> intersect_pairs(const CellRange& a, const CellRange& b, Dim dim) {
  const Pair pa = pair_of(a, dim);
  const Pair pb = pair_of(b, dim);
  if (covers_all(a, dim)) return pb;
  if (covers_all(b, dim)) return pa;
  if (runs_to_end(pa) && runs_to_end(pb)) return Pair{std::max(pa.first, pb.first), -1};
  const std::optional<int> first = value_inside_other(pa.first, pb.first, pa, pb);
  if (!first) return std::nullopt;
  const std::optional<int> last = value_inside_other(pa.last, pb.last, pa, pb);
  if (!last) return std::nullopt;
  return Pair{*first, *last};
}

bool within(int value, int low, int high) { return low <= value && value <= high; }

// Merges B's pair of one dimension into A's, comparing -1 as a number. Pairs
// that do not overlap (touching ones included) are left apart.
bool merge_dimension(CellRange& a, const CellRange& b, Dim dim) {
  if (covers_all(a, dim)) return true;
  if (covers_all(b, dim)) {
    a = b;
    return true;
  }
  Pair pa = pair_of(a, dim);
  const Pair pb = pair_of(b, dim);
  if (within(pb.first, pa.first, pa.last)) {
    if (pa.last < pb.last) pa.last = pb.last;
  } else if (within(pb.last, pa.first, pa.last)) {
    if (pa.first > pb.first) pa.first = pb.first;
  } else if (within(pa.first, pb.first, pb.last)) {
    if (pa.last < pb.last) pa.last = pb.last;
    pa.first = pb.first;
  } else if (within(pa.last, pb.first, pb.last)) {
    if (pa.first > pb.first) pa.first = pb.first;
    pa.last = pb.last;
  } else {
    return false;
  }
  set_pair(a, dim, pa);
  return true;
}

// Widens one dimension of the bound by a range, unless the bound already
// covers all of it.
void widen(CellRange& bound, const CellRange& range, Dim dim) {
  if (covers_all(bound, dim)) return;
  const Pair pr = pair_of(range, dim);
  if (covers_all(range, dim)) {
    set_pair(bound, dim, pr);
    return;
  }
  const Pair pb = pair_of(bound, dim);
  set_pair(bound, dim, Pair{std::min(pb.first, pr.first), std::max(pb.last, pr.last)});
}

}  // namespace

extern "C" {

int KILNUTIL_IntersectRange(const CellRange* a, const CellRange* b, CellRange* out) {
  if (a == nullptr || b == nullptr || out == nullptr || is_empty(*a) || is_empty(*b)) return 0;
  const std::optional<Pair> cols = intersect_pairs(*a, *b, Dim::cols);
  if (!cols) return 0;
  const std::optional<Pair> rows = intersect_pairs(*a, *b, Dim::rows);
  if (!rows) return 0;
  *out = CellRange{rows->first, cols->first, rows->last, cols->last};
  return 1;
}

int KILNUTIL_UnionRange(CellRange* a, const CellRange* b) {
  if (a == nullptr || b == nullptr) return 0;
  if (a->c1 == b->c1 && a->c2 == b->c2) return merge_dimension(*a, *b, Dim::rows) ? 1 : 0;
  if (a->r1 == b->r1 && a->r2 == b->r2) return merge_dimension(*a, *b, Dim::cols) ? 1 : 0;
  return 0;
}

int KILNUTIL_GetBoundingRange(const CellRange* ranges, int count, CellRange* out) {
  if (ranges == nullptr || count < 1 || out == nullptr) return 0;
  CellRange bound = ranges[0];
  for (int i = 1; i < count; ++i) {
    widen(bound, ranges[i], Dim::cols);
    widen(bound, ranges[i], Dim::rows);
  }
  *out = bound;
  return 1;
}

}  // extern "C"
