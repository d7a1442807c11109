// KILNUTIL_InsertionSort: stable straight insertion of records. Each record
// is compared with the ones before it, from the nearest back, while it sorts
// strictly before them; the records it passes move up one slot in one move.
#include "math/sort_record_bytes.h"
#include "math/sort_records.h"

#include <cstdlib>
#include <cstring>

namespace kiln::math {

void insertion_sort_with(void* base, int lo, int hi, std::size_t size, KilnSortCompare compare, void* saved) {
  for (long long p = static_cast<long long>(lo) + 1; p <= hi; ++p) {
    const char* record = record_at(base, p, size);
    long long slot = p;
    while (slot > lo && compare(record, record_at(base, slot - 1, size)) < 0) --slot;
    if (slot == p) continue;
    std::memcpy(saved, record, size);
    char* gap = record_at(base, slot, size);
    std::memmove(gap + size, gap, static_cast<std::size_t>(p - slot) * size);
    std::memcpy(gap, saved, size);
  }
}

void insertion_sort(void* base, int lo, int hi, std::size_t size, KilnSortCompare compare) {
  if (hi <= lo) return;
  void* saved = std::calloc(1, size);
  if (saved == nullptr) return;
  insertion_sort_with(base, lo, hi, size, compare, saved);
  std::free(saved);
}

}  // namespace kiln::math
