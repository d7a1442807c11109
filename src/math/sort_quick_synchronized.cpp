// KILNUTIL_HopefullyFasterQuickSort_synchronized: the median-of-three
// quicksort whose every swap of two records is repeated in each companion
// array, so the other columns of the same rows stay in step. The swaps go
// through two process-wide 208-byte buffers (one thread at a time); the pivot
// copy lives on the stack.
#include "math/sort_quick_partition.h"
#include "math/sort_records.h"

namespace kiln::math {

namespace {

// The process-wide swap buffers: one for the main records, one for the
// companions. Records larger than a buffer are swapped a piece at a time.
unsigned char g_record_swap_buffer[kSortStackRecord];
unsigned char g_companion_swap_buffer[kSortStackRecord];

class SynchronizedRecords {
public:
  SynchronizedRecords(void* base, std::size_t size, KilnSortCompareUser order, const KilnSortCompanion* companions,
                      int count, long long user)
      : base_(base), size_(size), compare_(order), companions_(companions), count_(count), user_(user) {}

  char* at(int i) const { return record_at(base_, i, size_); }
  int compare(const char* a, const char* b) const { return compare_(a, b, user_); }
  void swap(int i, int j) const {
    swap_records(at(i), at(j), size_, g_record_swap_buffer, kSortStackRecord);
    if (companions_ == nullptr) return;
    for (int c = 0; c < count_; ++c) {
      const KilnSortCompanion& companion = companions_[c];
      if (companion.data == nullptr || companion.size <= 0) continue;
      const auto companion_size = static_cast<std::size_t>(companion.size);
      swap_records(record_at(companion.data, i, companion_size), record_at(companion.data, j, companion_size),
                   companion_size, g_companion_swap_buffer, kSortStackRecord);
    }
  }

private:
  void* base_;
  std::size_t size_;
  KilnSortCompareUser compare_;
  const KilnSortCompanion* companions_;
  int count_;
  long long user_;
};

}  // namespace

void quick_sort_synchronized(void* base, int lo, int hi, std::size_t size, KilnSortCompareUser compare,
                             const KilnSortCompanion* companions, int count, long long user) {
  SynchronizedRecords records(base, size, compare, companions, count, user);
  sort_by_partitions(lo, hi, [&](int from, int to) {
    ScratchRecord pivot(size);
    if (pivot.data() == nullptr) return PartitionEnds{from, to};
    return partition_records(records, from, to, pivot.data(), size);
  });
}

}  // namespace kiln::math
