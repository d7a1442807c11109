// Cell-range algebra checked cell by cell against a set model on a small grid.
// Index kFar stands for "any index past the grid": only to-the-end and
// whole-dimension pairs reach it, so containment of open ranges is exact.
#include <kilnutil/import.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr int kAll = KILNUTIL_RANGE_ALL;
constexpr int kGrid = 4;     // finite indices 0..3
constexpr int kFar = kGrid;  // beyond every finite pair

// Every pairing of row and column pairs: finite, to the end, and the three
// spellings of "all".
const std::vector<CellRange>& ranges() {
  static const std::vector<CellRange> all = [] {
    std::vector<std::pair<int, int>> pairs = {{0, -1}, {kAll, kAll}, {kAll, 2}};
    for (int a = 0; a < kGrid; ++a) {
      for (int b = a; b < kGrid; ++b) pairs.push_back({a, b});
      if (a >= 1) pairs.push_back({a, -1});
    }
    std::vector<CellRange> out;
    for (const auto& [r1, r2] : pairs) {
      for (const auto& [c1, c2] : pairs) out.push_back({r1, c1, r2, c2});
    }
    return out;
  }();
  return all;
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

bool has_open_end(const CellRange& r) { return (r.r2 == -1 && r.r1 != 0) || (r.c2 == -1 && r.c1 != 0); }

// "r1,c1,r2,c2", for failure messages and whole-range comparisons.
std::string show(const CellRange& r) {
  return std::to_string(r.r1) + "," + std::to_string(r.c1) + "," + std::to_string(r.r2) + "," + std::to_string(r.c2);
}

TEST(RangeAlgebra, CellMembershipMatchesModel) {
  for (const CellRange& r : ranges()) {
    ASSERT_TRUE(every_cell([&](int row, int col) {
      return (KILNUTIL_IsCellInRange(&r, col, row) != 0) == model_has(r, row, col);
    })) << show(r);
  }
}

TEST(RangeAlgebra, IntersectionIsSetIntersection) {
  CellRange empty;
  KILNUTIL_InitEmptyRange(&empty);
  for (const CellRange& a : ranges()) {
    for (const CellRange& b : ranges()) {
      const auto both = [&](int row, int col) { return model_has(a, row, col) && model_has(b, row, col); };
      const bool meet = !every_cell([&](int row, int col) { return !both(row, col); });
      CellRange out = empty;
      const int result = KILNUTIL_IntersectRange(&a, &b, &out);
      ASSERT_EQ(result, meet ? 1 : 0);
      ASSERT_EQ(KILNUTIL_IsRangeIntersectRange(&a, &b), result);
      // Without a meeting the output stays untouched.
      ASSERT_TRUE(result ? every_cell([&](int row, int col) { return model_has(out, row, col) == both(row, col); })
                         : KILNUTIL_IsEmptyRange(&out) != 0)
          << show(a) << " & " << show(b);
    }
  }
}

TEST(RangeAlgebra, ContainmentIsSubset) {
  for (const CellRange& outer : ranges()) {
    // Covering both dimensions without being "all" is a known blind spot.
    if (KILNUTIL_IsRangeAllRows(&outer) && KILNUTIL_IsRangeAllColumns(&outer) && !KILNUTIL_IsRangeAll(&outer)) continue;
    for (const CellRange& inner : ranges()) {
      const bool subset =
          every_cell([&](int row, int col) { return !model_has(inner, row, col) || model_has(outer, row, col); });
      ASSERT_EQ(KILNUTIL_IsRangeInRange(&inner, &outer), subset ? 1 : 0) << show(inner) << " in " << show(outer);
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
      // Merged exactly when one dimension is the same and the other overlaps
      // (touching is not enough) or either range covers all of it.
      const auto covers = [&](const CellRange& r, int i) {
        return same_cols ? model_covers(r.r1, r.r2, i) : model_covers(r.c1, r.c2, i);
      };
      bool overlap = covers(a, kFar) || covers(b, kFar);
      for (int i = 0; i <= kFar; ++i) overlap |= covers(a, i) && covers(b, i);
      ASSERT_EQ(result, (same_cols || same_rows) && overlap ? 1 : 0) << show(a) << " | " << show(b);
      // Without a merge the first range stays as it was.
      const auto joined = [&](int row, int col) {
        return model_has(merged, row, col) == (model_has(a, row, col) || model_has(b, row, col));
      };
      ASSERT_TRUE(result ? every_cell(joined) : show(merged) == show(a)) << show(a) << " | " << show(b);
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
      })) << show(a)
          << " + " << show(b);
    }
  }
}

TEST(RangeSpecialValues, UnsetWholeAndEmpty) {
  CellRange whole{0, 0, -1, -1}, unset, odd{0, kAll, -1, 5}, empty, out{};
  KILNUTIL_InitRange(&unset);
  KILNUTIL_InitEmptyRange(&empty);
  EXPECT_EQ(KILNUTIL_IsRangeAll(&whole), 1);
  EXPECT_EQ(KILNUTIL_IsRangeAll(&unset), 1);
  EXPECT_EQ(KILNUTIL_IsRangeAll(&odd), 0);  // all rows and all columns, yet not "all"
  EXPECT_EQ(KILNUTIL_IsRangeAllRows(&odd) + KILNUTIL_IsRangeAllColumns(&odd), 2);
  EXPECT_EQ(KILNUTIL_IntersectRange(&whole, &empty, &out), 0);
  EXPECT_EQ(KILNUTIL_IsRangeIntersectRange(&empty, &empty), 0);
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

// Merges involving an open end, where -1 is compared as a plain number.
TEST(RangeSpecialValues, MergeComparesMinusOneAsNumber) {
  struct Case {
    CellRange a, b;
    int result;
    const char* merged;
  };
  const Case cases[] = {
      {{1, 0, 3, 2}, {4, 0, 6, 2}, 0, "1,0,3,2"},  // touching only
      {{1, 0, 3, 2}, {3, 0, 6, 2}, 1, "1,0,6,2"},
      {{1, 0, 3, 2}, {2, 0, -1, 2}, 1, "1,0,3,2"},   // the start lies inside, and 3 >= -1 keeps the end
      {{3, 0, -1, 2}, {2, 0, 5, 2}, 1, "2,0,5,2"},   // the open end is lost
      {{1, 0, 2, 2}, {0, 0, -1, 2}, 1, "0,0,-1,2"},  // B covering all rows replaces A
  };
  for (const Case& c : cases) {
    CellRange a = c.a;
    EXPECT_EQ(KILNUTIL_UnionRange(&a, &c.b), c.result) << show(c.a) << " | " << show(c.b);
    EXPECT_EQ(show(a), c.merged);
  }
  EXPECT_EQ(KILNUTIL_UnionRange(nullptr, &cases[0].b), 0);
}

TEST(RangeSpecialValues, BoundingLosesOpenEndToLargerLast) {
  const CellRange ranges[] = {{2, 0, -1, 1}, {1, 0, 7, 1}};
  CellRange out{};
  ASSERT_EQ(KILNUTIL_GetBoundingRange(ranges, 2, &out), 1);
  EXPECT_EQ(show(out), "1,0,7,1");
  const CellRange with_all[] = {{2, 0, 4, 1}, {0, 0, -1, 1}, {9, 0, 12, 1}};
  ASSERT_EQ(KILNUTIL_GetBoundingRange(with_all, 3, &out), 1);
  EXPECT_EQ(show(out), "0,0,-1,1");
  EXPECT_EQ(KILNUTIL_GetBoundingRange(with_all, 0, &out), 0);
  EXPECT_EQ(KILNUTIL_GetBoundingRange(nullptr, 2, &out), 0);
}

TEST(RangeBuilding, CellArgumentOrdersDiffer) {
  CellRange r;
  KILNUTIL_InitRangeCell(&r, 4, 7);  // row, then column
  EXPECT_EQ(show(r), "4,7,4,7");
  EXPECT_EQ(KILNUTIL_IsCellInRange(&r, 7, 4), 1);  // column, then row
  EXPECT_EQ(KILNUTIL_IsCellInRange(&r, 4, 7), 0);
}

TEST(RangeBuilding, WholeRowColAndEndTests) {
  CellRange neg{-3, 2, -1, 5};
  EXPECT_EQ(KILNUTIL_CheckWholeRowCol(&neg), 1);
  EXPECT_EQ(show(neg), "0,2,-1,5");
  EXPECT_EQ(KILNUTIL_CheckWholeRowCol(&neg), 0);
  const CellRange to_end{1, 0, -1, 3};
  EXPECT_EQ(KILNUTIL_IsRangeRowsToEnd(&to_end), 1);
  EXPECT_EQ(KILNUTIL_IsRangeNormalized(&to_end), 0);  // only (0, -1) is a normal open pair
  const CellRange normal{0, 1, -1, 3};
  EXPECT_EQ(KILNUTIL_IsRangeNormalized(&normal), 1);
}

// Each builder from a range that holds something else, and each one-range
// query over a few shapes (the pair that is not rebuilt keeps its values).
TEST(RangeBuilding, BuildersAndShapeQueries) {
  const struct {
    const char* what;
    void (*build)(CellRange*);
    const char* expected;
  } builders[] = {
      {"whole", KILNUTIL_InitRangeWhole, "0,0,-1,-1"},
      {"row 6", [](CellRange* r) { KILNUTIL_InitRangeRow(r, 6); }, "6,0,6,-1"},
      {"column 6", [](CellRange* r) { KILNUTIL_InitRangeCol(r, 6); }, "0,6,-1,6"},
      {"all rows", KILNUTIL_SetRangeAllRows, "0,2,-1,4"},
      {"all columns", KILNUTIL_SetRangeAllColumns, "1,0,3,-1"},
      {"all rows and columns", KILNUTIL_SetRangeAllRowsColumns, "0,0,-1,-1"},
      {"transposed", KILNUTIL_TransposeRange, "2,1,4,3"},
  };
  for (const auto& b : builders) {
    CellRange r{1, 2, 3, 4};
    b.build(&r);
    EXPECT_EQ(show(r), b.expected) << b.what;
    b.build(nullptr);  // a null range is left alone
  }
  const struct {
    CellRange r;
    int cols_to_end, single_cell;
  } shapes[] = {
      {{1, 1, -1, -1}, 1, 0}, {{0, 0, -1, -1}, 0, 0}, {{2, 3, 2, 3}, 0, 1},     {{2, 3, 2, 4}, 0, 0},
      {{2, 3, 5, 3}, 0, 0},   {{0, 2, 0, -1}, 1, 0},  {{-1, -1, -1, -1}, 0, 1},
  };
  for (const auto& c : shapes) {
    EXPECT_EQ(KILNUTIL_IsRangeColsToEnd(&c.r), c.cols_to_end) << show(c.r);
    EXPECT_EQ(KILNUTIL_IsRangeSingleCell(&c.r), c.single_cell) << show(c.r);
    CellRange copy = c.r;
    EXPECT_EQ(KILNUTIL_AreEqualRanges(&c.r, &copy), 1);
    copy.c2 += 1;
    EXPECT_EQ(KILNUTIL_AreEqualRanges(&c.r, &copy), 0);
  }
  EXPECT_EQ(KILNUTIL_IsRangeSingleCell(nullptr), 0);
  EXPECT_EQ(KILNUTIL_AreEqualRanges(nullptr, nullptr), 0);
}

TEST(RangeBuilding, SelectionConversionSkipsWholeDimensions) {
  const CellRange r{2, 1, 5, 3};
  using Sel = std::vector<int>;
  int sel[4] = {9, 9, 9, 9};
  CellRange copy = r;
  KILNUTIL_ConvertRangeSelection(&copy, sel, 1);
  EXPECT_EQ(Sel(sel, sel + 4), (Sel{1, 4, 2, 6}));
  CellRange back{};
  KILNUTIL_ConvertRangeSelection(&back, sel, 0);
  EXPECT_EQ(show(back), show(r));

  CellRange all_cols{2, 0, 5, -1};
  int kept[4] = {7, 8, 9, 9};
  KILNUTIL_ConvertRangeSelection(&all_cols, kept, 1);
  EXPECT_EQ(Sel(kept, kept + 4), (Sel{7, 8, 2, 6}));
}

TEST(RangeLists, FindCellTakesColumnThenRow) {
  const CellRange list[] = {{0, 0, 1, 1}, {5, 2, 6, 3}};
  EXPECT_EQ(KILNUTIL_FindCellRange(list, 2, 3, 6), 1);
  EXPECT_EQ(KILNUTIL_FindCellRange(list, 2, 6, 3), -1);
  EXPECT_EQ(KILNUTIL_FindCellRange(list, 0, 0, 0), -1);
  EXPECT_EQ(KILNUTIL_IsCellInRanges(list, 2, 0, 1), 1);
}

}  // namespace
