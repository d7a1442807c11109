// KILNUTIL_HopefullyFasterQuickSort: median-of-three quicksort of records,
// scratch records on the stack up to 208 bytes and on the heap above.
#include "math/sort_quick_partition.h"
#include "math/sort_records.h"

namespace kiln::math {

namespace {

class PlainRecords {
public:
  PlainRecords(void* base, std::size_t size, KilnSortCompare order, unsigned char* swap_buffer)
      : base_(base), size_(size), compare_(order), swap_buffer_(swap_buffer) {}

  char* at(int i) const { return record_at(base_, i, size_); }
  int compare(const char* a, const char* b) const { return compare_(a, b); }
  void swap(int i, int j) const { swap_records(at(i), at(j), size_, swap_buffer_, size_); }

private:
  void* base_;
  std::size_t size_;
  KilnSortCompare compare_;
  unsigned char* swap_buffer_;
};

}  // namespace

// Each partition takes its own two scratch records.
void quick_sort(void* base, int lo, int hi, std::size_t size, KilnSortCompare compare) {
  sort_by_partitions(lo, hi, [&](int from, int to) {
    ScratchRecord swap_buffer(size);
    ScratchRecord pivot(size);
    if (swap_buffer.data() == nullptr || pivot.data() == nullptr) return PartitionEnds{from, to};
    PlainRecords records(base, size, compare, swap_buffer.data());
    return partition_records(records, from, to, pivot.data(), size);
  });
}

}  // namespace kiln::math
