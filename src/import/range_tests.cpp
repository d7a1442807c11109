// Tests on cell ranges: equality, the special forms, membership of rows,
// columns and cells, containment and overlap.
#include "import/range_pairs.h"

using namespace kiln::import;

namespace {

bool equal(const CellRange& a, const CellRange& b) {
  return a.r1 == b.r1 && a.c1 == b.c1 && a.r2 == b.r2 && a.c2 == b.c2;
}

// All columns by (0, -1), or 0 <= first <= last.
bool pair_normalized(Pair pair) {
  return (pair.first == 0 && runs_to_end(pair)) || (0 <= pair.first && pair.first <= pair.last);
}

bool both_in_pair(Pair values, Pair pair) {
  return index_in_pair(values.first, pair) && index_in_pair(values.last, pair);
}

// The whole sheet, or the unset range.
bool is_all(const CellRange& range) {
  return equal(range, CellRange{0, 0, -1, -1}) || equal(range, CellRange{kAll, kAll, kAll, kAll});
}

// A negative index is in every range; otherwise the dimension covers it.
bool index_in_range(const CellRange* range, int index, Dim dim) {
  if (index < 0) return true;
  if (range == nullptr) return false;
  return covers_all(*range, dim) || index_in_pair(index, pair_of(*range, dim));
}

bool cell_in_range(const CellRange* range, int col, int row) {
  return index_in_range(range, row, Dim::rows) && index_in_range(range, col, Dim::cols);
}

int find_cell_range(const CellRange* ranges, int count, int col, int row) {
  if (ranges == nullptr || count < 1) return -1;
  for (int i = 0; i < count; ++i) {
    if (cell_in_range(&ranges[i], col, row)) return i;
  }
  return -1;
}

// One dimension of the overlap test.
bool pairs_overlap(const CellRange& a, const CellRange& b, Dim dim) {
  if (covers_all(a, dim) || covers_all(b, dim)) return true;
  const Pair pa = pair_of(a, dim);
  const Pair pb = pair_of(b, dim);
  if (runs_to_end(pa) && runs_to_end(pb)) return true;
  return index_in_pair(pa.first, pb) || index_in_pair(pa.last, pb) || index_in_pair(pb.first, pa) ||
         index_in_pair(pb.last, pa);
}

bool range_in_range(const CellRange& inner, const CellRange& outer) {
  if (is_all(outer)) return true;
  const bool inner_all_rows = covers_all(inner, Dim::rows);
  const bool inner_all_cols = covers_all(inner, Dim::cols);
  if (covers_all(outer, Dim::rows)) {
    if (inner_all_cols) return false;
    return both_in_pair(pair_of(inner, Dim::cols), pair_of(outer, Dim::cols));
  }
  if (!covers_all(outer, Dim::cols)) {
    if (inner_all_rows || inner_all_cols) return false;
    return both_in_pair(pair_of(inner, Dim::rows), pair_of(outer, Dim::rows)) &&
           both_in_pair(pair_of(inner, Dim::cols), pair_of(outer, Dim::cols));
  }
  if (inner_all_rows) return false;
  return both_in_pair(pair_of(inner, Dim::rows), pair_of(outer, Dim::rows));
}

}  // namespace

extern "C" {

int KILNUTIL_AreEqualRanges(const CellRange* a, const CellRange* b) {
  return a != nullptr && b != nullptr && equal(*a, *b) ? 1 : 0;
}

int KILNUTIL_IsEmptyRange(const CellRange* range) { return range != nullptr && is_empty(*range) ? 1 : 0; }

int KILNUTIL_IsRangeAll(const CellRange* range) { return range != nullptr && is_all(*range) ? 1 : 0; }

int KILNUTIL_IsRangeAllRows(const CellRange* range) {
  return range != nullptr && covers_all(*range, Dim::rows) ? 1 : 0;
}

int KILNUTIL_IsRangeAllColumns(const CellRange* range) {
  return range != nullptr && covers_all(*range, Dim::cols) ? 1 : 0;
}

int KILNUTIL_IsRangeRowsToEnd(const CellRange* range) {
  return range != nullptr && range->r1 >= 1 && runs_to_end(pair_of(*range, Dim::rows)) ? 1 : 0;
}

int KILNUTIL_IsRangeColsToEnd(const CellRange* range) {
  return range != nullptr && range->c1 >= 1 && runs_to_end(pair_of(*range, Dim::cols)) ? 1 : 0;
}

int KILNUTIL_IsRangeNormalized(const CellRange* range) {
  if (range == nullptr) return 0;
  return pair_normalized(pair_of(*range, Dim::cols)) && pair_normalized(pair_of(*range, Dim::rows)) ? 1 : 0;
}

int KILNUTIL_IsRangeSingleCell(const CellRange* range) {
  return range != nullptr && range->c1 == range->c2 && range->r1 == range->r2 ? 1 : 0;
}

int is_row_col_in_inside_range(int index, const CellRange* range, unsigned char row_flag) {
  if (range == nullptr) return 0;
  return index_in_pair(index, pair_of(*range, row_flag != 0 ? Dim::rows : Dim::cols)) ? 1 : 0;
}

int KILNUTIL_IsRowInRange(const CellRange* range, int row) { return index_in_range(range, row, Dim::rows) ? 1 : 0; }

int KILNUTIL_IsColInRange(const CellRange* range, int col) { return index_in_range(range, col, Dim::cols) ? 1 : 0; }

int KILNUTIL_IsCellInRange(const CellRange* range, int col, int row) { return cell_in_range(range, col, row) ? 1 : 0; }

int KILNUTIL_FindCellRange(const CellRange* ranges, int count, int col, int row) {
  return find_cell_range(ranges, count, col, row);
}

int KILNUTIL_IsCellInRanges(const CellRange* ranges, int count, int col, int row) {
  return find_cell_range(ranges, count, col, row) >= 0 ? 1 : 0;
}

int KILNUTIL_IsRangeInRange(const CellRange* inner, const CellRange* outer) {
  if (inner == nullptr || outer == nullptr) return 0;
  return range_in_range(*inner, *outer) ? 1 : 0;
}

int KILNUTIL_IsRangeIntersectRange(const CellRange* a, const CellRange* b) {
  if (a == nullptr || b == nullptr || is_empty(*a) || is_empty(*b)) return 0;
  return pairs_overlap(*a, *b, Dim::rows) && pairs_overlap(*a, *b, Dim::cols) ? 1 : 0;
}

}  // extern "C"
