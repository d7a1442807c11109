// Sorting fixed-size records with a caller's comparison, and keeping a sorted
// range sorted as it grows. Records are moved as bytes and never constructed,
// so they must be trivially copyable. Element indices are signed; a range is
// lo..hi inclusive, and every function leaves a range with hi < lo as it is.
#pragma once

#include <kilnutil/math.h>

#include <cstddef>

namespace kiln::math {

// Quicksort with a median of three; not stable. Records of up to
// kSortStackRecord bytes need no heap memory.
void quick_sort(void* base, int lo, int hi, std::size_t size, KilnSortCompare compare);

// The same quicksort, swapping the same elements of each companion array
// (own element sizes) whenever it swaps two records. Uses the process-wide
// swap buffers: one thread at a time.
void quick_sort_synchronized(void* base, int lo, int hi, std::size_t size, KilnSortCompareUser compare,
                             const KilnSortCompanion* companions, int count, long long user);

// Stable merge sort; false (nothing sorted) when its scratch block cannot be
// allocated.
bool merge_sort(void* base, int lo, int hi, std::size_t size, KilnSortCompare compare);

// Stable straight insertion.
void insertion_sort(void* base, int lo, int hi, std::size_t size, KilnSortCompare compare);
// The same with the caller's scratch record (`size` bytes) for the record
// being inserted.
void insertion_sort_with(void* base, int lo, int hi, std::size_t size, KilnSortCompare compare, void* saved);

// The slot at which item belongs in the sorted range lo..hi: after its equals
// in an ascending range, before them in a descending one; lo when the range
// is empty.
int locate(const void* base, const void* item, int lo, int hi, std::size_t size, long long user,
           KilnSortCompareUser compare);

// Stores item at its located slot, the tail moved up one slot; the caller
// owns slot hi + 1. Returns the slot.
int insert_ordered(void* base, const void* item, int lo, int hi, std::size_t size, long long user,
                   KilnSortCompareUser compare);

}  // namespace kiln::math
