// Cell-range algebra checked cell by cell against a set model on a small grid.
// Index kFar stands for "any index past the grid": only to-the-end and
// whole-dimension pairs reach it, so containment of open ranges is exact.
#include <kilnutil/import.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace {

constexpr int kAll = KILNUTIL_RANGE_ALL;
constexpr int kGrid = 4;        // finite indices 0..3
constexpr int kFar = kGrid;     // beyond every finite pair

struct PairSpec {
  int first;
  int last;
};

// Every kind of pair: finite, to the end, and the three spellings of "all".
std::vector<PairSpec> all_pairs() {
  std::vector<PairSpec> pairs;
  for (int a = 0; a < kGrid; ++a) {
    for (int b = a; b < kGrid; ++b) pairs.push_back({a, b});
    if (a >= 1) pairs.push_back({a, -1});
  }
  pairs.push_back({0, -1});
  pairs.push_back({kAll, kAll});
  pairs.push_back({kAll, 2});
  return pairs;
}

std::vector<CellRange> all_ranges() {
  std::vector<CellRange> ranges;
  for (const PairSpec& rows : all_pairs()) {
    for (const PairSpec& cols : all_pairs()) ranges.push_back({rows.first, cols.first, rows.last, cols.last});
  }
  return ranges;
}

// The model: which indices a pair covers.
bool model_covers(int first, int last, int i) {
  if (first == kAll || last == kAll) return true;
  if (last == -1) return i >= first;
  return first <= i && i <= last;
}

bool model_has(const CellRange& r, int row, int col) {
  if (KILNUTIL_IsEmptyRange(&r)) return false;
  return model_covers(r.r1, r.r2, row) && model_covers(r.c1, r.c2, col);
}

template <typename Pred>
bool every_cell(Pred pred) {
  for (int row = 0; row <= kFar; ++row) {
    for (int col = 0; col <= kFar; ++col) {
      if (!pred(row, col)) return false;
    }
  }
  return true;
}

bool has_open_end(const CellRange& r) {
  const bool rows_open = r.r2 == -1 && r.r1 != 0;
  const bool cols_open = r.c2 == -1 && r.c1 != 0;
  return rows_open || cols_open;
}

bool covers_both_dimensions(const CellRange& r) {
  return KILNUTIL_IsRangeAllRows(&r) && KILNUTIL_IsRangeAllColumns(&r);
}

const std::vector<CellRange>& ranges() {
  static const std::vector<CellRange> r = all_ranges();
  return r;
}

TEST(RangeAlgebra, CellMembershipMatchesModel) {
  for (const CellRange& r : ranges()) {
    ASSERT_TRUE(every_cell([&](int row, int col) {
      return (KILNUTIL_IsCellInRange(&r, col, row) != 0) == model_has(r, row, col);
    })) << r.r1 << "," << r.c1 << "," << r.r2 << "," << r.c2;
  }
}

TEST(RangeAlgebra, IntersectionIsSetIntersection) {
  CellRange empty;
  KILNUTIL_InitEmptyRange(&empty);
  for (const CellRange& a : ranges()) {
    for (const CellRange& b : ranges()) {
      const bool meet = !every_cell([&](int row, int col) { return !(model_has(a, row, col) && model_has(b, row, col)); });
      CellRange out = empty;
      const int result = KILNUTIL_IntersectRange(&a, &b, &out);
      ASSERT_EQ(result, meet ? 1 : 0);
      ASSERT_EQ(KILNUTIL_IsRangeIntersectRange(&a, &b), result);
      if (!result) {
        ASSERT_TRUE(KILNUTIL_IsEmptyRange(&out));  // untouched
        continue;
      }
      ASSERT_TRUE(every_cell([&](int row, int col) {
        return model_has(out, row, col) == (model_has(a, row, col) && model_has(b, row, col));
      })) << a.r1 << "," << a.c1 << "," << a.r2 << "," << a.c2 << " & " << b.r1 << "," << b.c1 << "," << b.r2 << ","
          << b.c2;
    }
  }
}

TEST(RangeAlgebra, ContainmentIsSubset) {
  for (const CellRange& outer : ranges()) {
    // Covering both dimensions without being "all" is a stated blind spot.
    if (covers_both_dimensions(outer) && !KILNUTIL_IsRangeAll(&outer)) continue;
    for (const CellRange& inner : ranges()) {
      const bool subset = every_cell([&](int row, int col) { return !model_has(inner, row, col) || model_has(outer, row, col); });
      ASSERT_EQ(KILNUTIL_IsRangeInRange(&inner, &outer), subset ? 1 : 0)
          << inner.r1 << "," << inner.c1 << "," << inner.r2 << "," << inner.c2 << " in " << outer.r1 << ","
          << outer.c1 << "," << outer.r2 << "," << outer.c2;
    }
  }
}

TEST(RangeAlgebra, MergeOfClosedRangesIsSetUnion) {
  for (const CellRange& a : ranges()) {
    if (has_open_end(a)) continue;
    for (const CellRange& b : ranges()) {
      if (has_open_end(b)) continue;
      CellRange merged = a;
      const bool same_cols = a.c1 == b.c1 && a.c2 == b.c2;
      const bool same_rows = a.r1 == b.r1 && a.r2 == b.r2;
      const int result = KILNUTIL_UnionRange(&merged, &b);
      if (!same_cols && !same_rows) {
        ASSERT_EQ(result, 0);
        continue;
      }
      // Merged exactly when the other dimension overlaps (touching is not
      // enough) or either range covers all of it; the result is then the union.
      const bool rows_merge = same_cols;
      const auto covers = [&](const CellRange& r, int i) {
        return rows_merge ? model_covers(r.r1, r.r2, i) : model_covers(r.c1, r.c2, i);
      };
      bool overlap = covers(a, kFar) || covers(b, kFar);
      for (int i = 0; i <= kFar; ++i) overlap |= covers(a, i) && covers(b, i);
      ASSERT_EQ(result, overlap ? 1 : 0);
      const bool joined = every_cell([&](int row, int col) {
        return model_has(merged, row, col) == (model_has(a, row, col) || model_has(b, row, col));
      });
      if (result) {
        ASSERT_TRUE(joined) << a.r1 << "," << a.c1 << "," << a.r2 << "," << a.c2 << " | " << b.r1 << "," << b.c1
                            << "," << b.r2 << "," << b.c2;
      } else {
        ASSERT_TRUE(KILNUTIL_AreEqualRanges(&merged, &a));
      }
    }
  }
}

// The smallest box holding the indices of two closed pairs.
bool model_box_covers(int a1, int a2, int b1, int b2, int i) {
  if (model_covers(a1, a2, kFar) || model_covers(b1, b2, kFar)) return true;  // either covers everything
  return std::min(a1, b1) <= i && i <= std::max(a2, b2);
}

TEST(RangeAlgebra, BoundingRangeOfClosedRangesIsSmallestBox) {
  for (const CellRange& a : ranges()) {
    if (has_open_end(a)) continue;
    for (const CellRange& b : ranges()) {
      if (has_open_end(b)) continue;
      const CellRange pair[2] = {a, b};
      CellRange box;
      ASSERT_EQ(KILNUTIL_GetBoundingRange(pair, 2, &box), 1);
      ASSERT_TRUE(every_cell([&](int row, int col) {
        return model_has(box, row, col) ==
               (model_box_covers(a.r1, a.r2, b.r1, b.r2, row) && model_box_covers(a.c1, a.c2, b.c1, b.c2, col));
      })) << a.r1 << "," << a.c1 << "," << a.r2 << "," << a.c2 << " + " << b.r1 << "," << b.c1 << "," << b.r2 << ","
          << b.c2;
    }
  }
}

TEST(RangeSpecialValues, AllTestsKeepTheirBlindSpots) {
  CellRange whole{0, 0, -1, -1}, unset, odd{0, kAll, -1, 5};
  KILNUTIL_InitRange(&unset);
  EXPECT_EQ(KILNUTIL_IsRangeAll(&whole), 1);
  EXPECT_EQ(KILNUTIL_IsRangeAll(&unset), 1);
  EXPECT_EQ(KILNUTIL_IsRangeAll(&odd), 0);
  EXPECT_EQ(KILNUTIL_IsRangeAllRows(&odd), 1);
  EXPECT_EQ(KILNUTIL_IsRangeAllColumns(&odd), 1);
}

TEST(RangeSpecialValues, ToTheEndPairHoldsMinusOne) {
  const CellRange cols{0, 2, 0, -1};
  EXPECT_EQ(KILNUTIL_IsColInRange(&cols, 7), 1);
  EXPECT_EQ(KILNUTIL_IsColInRange(&cols, 1), 0);
  EXPECT_EQ(is_row_col_in_inside_range(-1, &cols, 0), 1);
  EXPECT_EQ(is_row_col_in_inside_range(-2, &cols, 0), 0);
  EXPECT_EQ(is_row_col_in_inside_range(5, nullptr, 1), 0);
  const CellRange single{3, 3, 3, 3};
  EXPECT_EQ(KILNUTIL_IsColInRange(&single, -5), 1);
  EXPECT_EQ(KILNUTIL_IsRowInRange(&single, -5), 1);
}

TEST(RangeSpecialValues, MergeComparesMinusOneAsNumber) {
  CellRange a{1, 0, 3, 2};
  const CellRange b{4, 0, 6, 2};
  EXPECT_EQ(KILNUTIL_UnionRange(&a, &b), 0);  // touching only
  const CellRange c{3, 0, 6, 2};
  EXPECT_EQ(KILNUTIL_UnionRange(&a, &c), 1);
  EXPECT_EQ(a.r1, 1);
  EXPECT_EQ(a.r2, 6);
  // [1,3] with [2,-1]: the start lies inside, and 3 >= -1 leaves the end.
  CellRange d{1, 0, 3, 2};
  const CellRange open{2, 0, -1, 2};
  EXPECT_EQ(KILNUTIL_UnionRange(&d, &open), 1);
  EXPECT_EQ(d.r2, 3);
  // [3,-1] with [2,5]: the end becomes 5, the open end is lost.
  CellRange e{3, 0, -1, 2};
  const CellRange f{2, 0, 5, 2};
  EXPECT_EQ(KILNUTIL_UnionRange(&e, &f), 1);
  EXPECT_EQ(e.r1, 2);
  EXPECT_EQ(e.r2, 5);
  // B covering all rows replaces A entirely.
  CellRange g{1, 0, 2, 2};
  const CellRange all_rows{0, 0, -1, 2};
  EXPECT_EQ(KILNUTIL_UnionRange(&g, &all_rows), 1);
  EXPECT_TRUE(KILNUTIL_AreEqualRanges(&g, &all_rows));
  EXPECT_EQ(KILNUTIL_UnionRange(nullptr, &f), 0);
}

TEST(RangeSpecialValues, IntersectionOfOpenRowRanges) {
  const CellRange a{5, 1, -1, 4}, b{9, 2, -1, 8};
  CellRange out{};
  ASSERT_EQ(KILNUTIL_IntersectRange(&a, &b, &out), 1);
  EXPECT_EQ(out.r1, 9);
  EXPECT_EQ(out.r2, -1);
  EXPECT_EQ(out.c1, 2);
  EXPECT_EQ(out.c2, 4);
  CellRange empty;
  KILNUTIL_InitEmptyRange(&empty);
  EXPECT_EQ(KILNUTIL_IntersectRange(&a, &empty, &out), 0);
  EXPECT_EQ(KILNUTIL_IsRangeIntersectRange(&empty, &empty), 0);
}

TEST(RangeSpecialValues, BoundingLosesOpenEndToLargerLast) {
  const CellRange ranges[] = {{2, 0, -1, 1}, {1, 0, 7, 1}};
  CellRange out{};
  ASSERT_EQ(KILNUTIL_GetBoundingRange(ranges, 2, &out), 1);
  EXPECT_EQ(out.r1, 1);
  EXPECT_EQ(out.r2, 7);
  const CellRange with_all[] = {{2, 0, 4, 1}, {0, 0, -1, 1}, {9, 0, 12, 1}};
  ASSERT_EQ(KILNUTIL_GetBoundingRange(with_all, 3, &out), 1);
  EXPECT_EQ(out.r1, 0);
  EXPECT_EQ(out.r2, -1);
  EXPECT_EQ(KILNUTIL_GetBoundingRange(with_all, 0, &out), 0);
  EXPECT_EQ(KILNUTIL_GetBoundingRange(nullptr, 2, &out), 0);
}

TEST(RangeBuilding, CellArgumentOrdersDiffer) {
  CellRange r;
  KILNUTIL_InitRangeCell(&r, 4, 7);  // row, then column
  EXPECT_EQ(r.r1, 4);
  EXPECT_EQ(r.c1, 7);
  EXPECT_EQ(KILNUTIL_IsCellInRange(&r, 7, 4), 1);  // column, then row
  EXPECT_EQ(KILNUTIL_IsCellInRange(&r, 4, 7), 0);
}

TEST(RangeBuilding, WholeRowColAndEndTests) {
  CellRange neg{-3, 2, -1, 5};
  EXPECT_EQ(KILNUTIL_CheckWholeRowCol(&neg), 1);
  EXPECT_EQ(neg.r1, 0);
  EXPECT_EQ(neg.r2, -1);
  EXPECT_EQ(KILNUTIL_CheckWholeRowCol(&neg), 0);
  const CellRange to_end{1, 0, -1, 3};
  EXPECT_EQ(KILNUTIL_IsRangeRowsToEnd(&to_end), 1);
  EXPECT_EQ(KILNUTIL_IsRangeNormalized(&to_end), 0);  // only (0, -1) is a normal open pair
  const CellRange normal{0, 1, -1, 3};
  EXPECT_EQ(KILNUTIL_IsRangeNormalized(&normal), 1);
}

TEST(RangeBuilding, SelectionConversionSkipsWholeDimensions) {
  const CellRange r{2, 1, 5, 3};
  int sel[4] = {9, 9, 9, 9};
  CellRange copy = r;
  KILNUTIL_ConvertRangeSelection(&copy, sel, 1);
  EXPECT_EQ(sel[0], 1);
  EXPECT_EQ(sel[1], 4);
  EXPECT_EQ(sel[2], 2);
  EXPECT_EQ(sel[3], 6);
  CellRange back{};
  KILNUTIL_ConvertRangeSelection(&back, sel, 0);
  EXPECT_TRUE(KILNUTIL_AreEqualRanges(&back, &r));

  CellRange all_cols{2, 0, 5, -1};
  int kept[4] = {7, 8, 9, 9};
  KILNUTIL_ConvertRangeSelection(&all_cols, kept, 1);
  EXPECT_EQ(kept[0], 7);
  EXPECT_EQ(kept[1], 8);
  EXPECT_EQ(kept[3], 6);
}

TEST(RangeLists, FindCellTakesColumnThenRow) {
  const CellRange list[] = {{0, 0, 1, 1}, {5, 2, 6, 3}};
  EXPECT_EQ(KILNUTIL_FindCellRange(list, 2, 3, 6), 1);
  EXPECT_EQ(KILNUTIL_FindCellRange(list, 2, 6, 3), -1);
  EXPECT_EQ(KILNUTIL_FindCellRange(list, 0, 0, 0), -1);
  EXPECT_EQ(KILNUTIL_IsCellInRanges(list, 2, 0, 1), 1);
}

}  // namespace
