// KILNUTIL_MergeSort: a stable top-down merge sort with one scratch block for
// the whole call; ranges with hi - lo below 32 are finished by insertion.
#include "math/sort_record_bytes.h"
#include "math/sort_records.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace kiln::math {

namespace {

constexpr int kInsertionBelow = 32;  // hi - lo below this: insertion sort

class MergeSorter {
public:
  MergeSorter(void* base, int lo, std::size_t size, KilnSortCompare compare, unsigned char* scratch)
      : base_(base), lo_(lo), size_(size), compare_(compare), scratch_(scratch) {}

  void sort(int lo, int hi) {
    if (static_cast<long long>(hi) - lo < kInsertionBelow) {
      // The scratch slots of this range are free while it is sorted.
      insertion_sort_with(base_, lo, hi, size_, compare_, scratch_at(lo));
      return;
    }
    const int m = middle_of(lo, hi);
    sort(lo, m);
    sort(m + 1, hi);
    merge(lo, m, hi);
  }

private:
  unsigned char* scratch_at(int i) const {
    return scratch_ + static_cast<std::size_t>(static_cast<long long>(i) - lo_) * size_;
  }

  // Merges the sorted runs lo..m and m+1..hi through the scratch block; the
  // left record goes first when it compares less or equal (stability).
  void merge(int lo, int m, int hi) {
    if (compare_(record_at(base_, m, size_), record_at(base_, m + 1, size_)) <= 0) return;  // already in order
    long long left = lo;
    long long right = static_cast<long long>(m) + 1;
    unsigned char* out = scratch_at(lo);
    while (left <= m && right <= hi) {
      const char* a = record_at(base_, left, size_);
      const char* b = record_at(base_, right, size_);
      const bool take_left = compare_(a, b) <= 0;
      std::memcpy(out, take_left ? a : b, size_);
      (take_left ? left : right) += 1;
      out += size_;
    }
    // Left leftovers go to the end of the range; right leftovers are already there.
    const auto left_rest = static_cast<std::size_t>(m - left + 1) * size_;
    std::memmove(record_at(base_, hi, size_) + size_ - left_rest, record_at(base_, left, size_), left_rest);
    std::memcpy(record_at(base_, lo, size_), scratch_at(lo), static_cast<std::size_t>(out - scratch_at(lo)));
  }

  void* base_;
  int lo_;
  std::size_t size_;
  KilnSortCompare compare_;
  unsigned char* scratch_;
};

}  // namespace

bool merge_sort(void* base, int lo, int hi, std::size_t size, KilnSortCompare compare) {
  if (hi < lo) return true;
  const auto count = static_cast<std::size_t>(static_cast<long long>(hi) - lo + 1);
  if (count > SIZE_MAX / size) return false;
  auto* scratch = static_cast<unsigned char*>(std::calloc(count, size));
  if (scratch == nullptr) return false;
  MergeSorter(base, lo, size, compare, scratch).sort(lo, hi);
  std::free(scratch);
  return true;
}

}  // namespace kiln::math
