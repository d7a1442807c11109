// Building and reshaping cell ranges.
#include "import/range_pairs.h"

using namespace kiln::import;

namespace {

void fill(CellRange* range, int value) {
  if (range == nullptr) return;
  *range = CellRange{value, value, value, value};
}

// A pair whose two values are both negative becomes (0, -1).
bool make_whole_if_negative(CellRange& range, Dim dim) {
  const Pair pair = kiln::import::pair_of(range, dim);
  if (pair.first >= 0 || pair.last >= 0) return false;
  set_pair(range, dim, Pair{0, -1});
  return true;
}

}  // namespace

extern "C" {

void KILNUTIL_InitRange(CellRange* range) { fill(range, kAll); }

void KILNUTIL_InitEmptyRange(CellRange* range) { fill(range, kEmpty); }

void KILNUTIL_InitRangeWhole(CellRange* range) {
  if (range != nullptr) *range = CellRange{0, 0, -1, -1};
}

void KILNUTIL_InitRangeCell(CellRange* range, int row, int col) {
  if (range != nullptr) *range = CellRange{row, col, row, col};
}

void KILNUTIL_InitRangeRow(CellRange* range, int row) {
  if (range != nullptr) *range = CellRange{row, 0, row, -1};
}

void KILNUTIL_InitRangeCol(CellRange* range, int col) {
  if (range != nullptr) *range = CellRange{0, col, -1, col};
}

void KILNUTIL_SetRangeAllRows(CellRange* range) {
  if (range != nullptr) set_pair(*range, Dim::rows, Pair{0, -1});
}

void KILNUTIL_SetRangeAllColumns(CellRange* range) {
  if (range != nullptr) set_pair(*range, Dim::cols, Pair{0, -1});
}

void KILNUTIL_SetRangeAllRowsColumns(CellRange* range) {
  if (range == nullptr) return;
  set_pair(*range, Dim::rows, Pair{0, -1});
  set_pair(*range, Dim::cols, Pair{0, -1});
}

void KILNUTIL_TransposeRange(CellRange* range) {
  if (range != nullptr) *range = CellRange{range->c1, range->r1, range->c2, range->r2};
}

int KILNUTIL_CheckWholeRowCol(CellRange* range) {
  if (range == nullptr) return 0;
  const bool rows_changed = make_whole_if_negative(*range, Dim::rows);
  const bool cols_changed = make_whole_if_negative(*range, Dim::cols);
  return rows_changed || cols_changed ? 1 : 0;
}

void KILNUTIL_ConvertRangeSelection(CellRange* range, int* selection, int direction) {
  if (range == nullptr || selection == nullptr) return;
  if (direction == 0) {
    *range = CellRange{selection[2], selection[0], wrapping_add(selection[3], -1), wrapping_add(selection[1], -1)};
    return;
  }
  if (!covers_all(*range, Dim::cols)) {
    selection[0] = range->c1;
    selection[1] = wrapping_add(range->c2, 1);
  }
  if (!covers_all(*range, Dim::rows)) {
    selection[2] = range->r1;
    selection[3] = wrapping_add(range->r2, 1);
  }
}

}  // extern "C"
