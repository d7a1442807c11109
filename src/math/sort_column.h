// The numeric column sort behind KilnMath_Sort: an iterative quicksort with a
// reproducible pseudo-random pivot and an explicit stack of pending ranges,
// finished by straight insertion below 8 entries. The index array moves with
// its key.
//
// The algorithm is a template over the key type and the order so that the
// tests can run it with a comparison of their own (and a smaller stack) to
// build inputs that exhaust the stack; the library instantiates it once per
// direction for doubles.
#pragma once

#include <kilnutil/math.h>

#include <cstdint>

namespace kiln::math {

// Sorts keys[0..n-1] (ascending, or descending when `descending`), moving
// index[] along. KILNUTIL_SORT_OK, or KILNUTIL_SORT_STACK_OVERFLOW with the
// arrays partly sorted.
int sort_column(int n, std::uint32_t* index, double* keys, bool descending);

namespace sort_column_detail {

inline constexpr int kStackEntries = 50;  // bounds of 25 pending ranges
inline constexpr int kInsertionSpan = 7;  // ranges with r - l below this are finished by insertion

// The pivot generator: g' = (g * 211 + 1663) mod 7875, and the position
// l + ((r - l + 1) * g') div 7875 in the range l..r.
inline int next_pivot(int& g, int l, int r) {
  g = (g * 211 + 1663) % 7875;
  return l + static_cast<int>(static_cast<std::int64_t>(r - l + 1) * g / 7875);
}

// Straight insertion of a[l..r]: an entry moves left only past entries it
// belongs strictly before, so equal keys keep their order.
template <class Key, class Before>
void insert_range(Key* a, std::uint32_t* ix, int l, int r, Before before) {
  for (int j = l + 1; j <= r; ++j) {
    const Key key = a[j];
    const std::uint32_t row = ix[j];
    int i = j - 1;
    while (i >= l && before(key, a[i])) {
      a[i + 1] = a[i];
      ix[i + 1] = ix[i];
      --i;
    }
    a[i + 1] = key;
    ix[i + 1] = row;
  }
}

// From j down to above `hole`: the first entry the pivot does not belong
// strictly before, or `hole` when there is none. Unrolled by four.
template <class Key, class Before>
int scan_down(const Key* a, const Key& pivot, int j, int hole, Before before) {
  while (j - 4 > hole) {
    if (!before(pivot, a[j])) return j;
    if (!before(pivot, a[j - 1])) return j - 1;
    if (!before(pivot, a[j - 2])) return j - 2;
    if (!before(pivot, a[j - 3])) return j - 3;
    j -= 4;
  }
  while (j > hole && before(pivot, a[j])) --j;
  return j;
}

// From i up to below `hole`: the first entry that does not belong strictly
// before the pivot, or `hole` when there is none. Unrolled by four.
template <class Key, class Before>
int scan_up(const Key* a, const Key& pivot, int i, int hole, Before before) {
  while (i + 4 < hole) {
    if (!before(a[i], pivot)) return i;
    if (!before(a[i + 1], pivot)) return i + 1;
    if (!before(a[i + 2], pivot)) return i + 2;
    if (!before(a[i + 3], pivot)) return i + 3;
    i += 4;
  }
  while (i < hole && before(a[i], pivot)) ++i;
  return i;
}

// Partitions a[l..r] around the entry at q by the hole method and returns
// the pivot's final position. The pivot's slot takes the entry at l, which
// leaves the hole at l; entries from the high end that do not belong after
// the pivot fill it, and entries from the low end that do not belong before
// it fill the hole they leave, until the scans meet.
template <class Key, class Before>
int partition_range(Key* a, std::uint32_t* ix, int l, int r, int q, Before before) {
  const Key pivot = a[q];
  const std::uint32_t pivot_row = ix[q];
  a[q] = a[l];
  ix[q] = ix[l];
  int i = l;  // the hole
  int j = r;
  for (;;) {
    j = scan_down(a, pivot, j, i, before);
    if (j == i) break;
    a[i] = a[j];  // the hole moves to j
    ix[i] = ix[j];
    i = scan_up(a, pivot, i + 1, j, before);
    if (i == j) break;
    a[j] = a[i];  // the hole moves back to i
    ix[j] = ix[i];
    --j;
  }
  a[i] = pivot;
  ix[i] = pivot_row;
  return i;
}

// The whole sort on a[0..n-1]. The pivot rule counts from one but depends only
// on the range's length and offset, so it runs on zero-based positions
// unchanged. `stack_entries` bounds the pending-range stack (kStackEntries in the
// library). Returns KILNUTIL_SORT_OK or KILNUTIL_SORT_STACK_OVERFLOW.
template <class Key, class Before>
int quicksort_column(int n, std::uint32_t* ix, Key* a, Before before, int stack_entries = kStackEntries) {
  int stack[kStackEntries];  // written only while depth <= kStackEntries
  int depth = 0;
  int g = 0;
  int l = 0;
  int r = n - 1;
  for (;;) {
    if (r - l < kInsertionSpan) {
      insert_range(a, ix, l, r, before);
      if (depth == 0) return KILNUTIL_SORT_OK;
      r = stack[--depth];
      l = stack[--depth];
      continue;
    }
    const int i = partition_range(a, ix, l, r, next_pivot(g, l, r), before);
    depth += 2;
    if (depth > stack_entries || depth > kStackEntries) return KILNUTIL_SORT_STACK_OVERFLOW;
    if (r - i >= i - l) {  // the right side is at least as large: pending
      stack[depth - 2] = i + 1;
      stack[depth - 1] = r;
      r = i - 1;
    } else {
      stack[depth - 2] = l;
      stack[depth - 1] = i - 1;
      l = i + 1;
    }
  }
}

}  // namespace sort_column_detail

}  // namespace kiln::math
