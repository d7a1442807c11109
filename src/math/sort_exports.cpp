// Sorting and ordered insertion: the exports. A null array or comparison, or
// an element size below 1, leaves everything as it is.
#include "math/sort_column.h"
#include "math/sort_records.h"

#include <kilnutil/math.h>

namespace {

bool usable_records(const void* base, int size, bool has_compare) { return base != nullptr && has_compare && size > 0; }

}  // namespace

extern "C" {

int KilnMath_Sort(int n, unsigned int* index, double* keys, unsigned short flags) {
  if (n <= 0 || index == nullptr || keys == nullptr) return KILNUTIL_SORT_OK;
  return kiln::math::sort_column(n, index, keys, (flags & KILNUTIL_SORT_DESCENDING) != 0);
}

void KILNUTIL_HopefullyFasterQuickSort(void* base, int lo, int hi, int size, KilnSortCompare compare) {
  if (!usable_records(base, size, compare != nullptr)) return;
  kiln::math::quick_sort(base, lo, hi, static_cast<std::size_t>(size), compare);
}

void KILNUTIL_HopefullyFasterQuickSort_synchronized(void* base, int lo, int hi, int size, KilnSortCompareUser compare,
                                                    const KilnSortCompanion* companions, int count, long long user) {
  if (!usable_records(base, size, compare != nullptr)) return;
  kiln::math::quick_sort_synchronized(base, lo, hi, static_cast<std::size_t>(size), compare, companions, count, user);
}

void KILNUTIL_MergeSort(void* base, int lo, int hi, int size, KilnSortCompare compare) {
  if (!usable_records(base, size, compare != nullptr)) return;
  kiln::math::merge_sort(base, lo, hi, static_cast<std::size_t>(size), compare);
}

void KILNUTIL_InsertionSort(void* base, int lo, int hi, int size, KilnSortCompare compare) {
  if (!usable_records(base, size, compare != nullptr)) return;
  kiln::math::insertion_sort(base, lo, hi, static_cast<std::size_t>(size), compare);
}

int KILNUITL_locate(const void* base, const void* item, int lo, int hi, int size, long long user,
                    KilnSortCompareUser compare) {
  if (!usable_records(base, size, compare != nullptr) || item == nullptr) return lo;
  return kiln::math::locate(base, item, lo, hi, static_cast<std::size_t>(size), user, compare);
}

int KILNUITL_insert_ordered(void* base, const void* item, int lo, int hi, int size, long long user,
                            KilnSortCompareUser compare) {
  if (!usable_records(base, size, compare != nullptr) || item == nullptr) return lo;
  return kiln::math::insert_ordered(base, item, lo, hi, static_cast<std::size_t>(size), user, compare);
}

}  // extern "C"
