// KILNUITL_locate and KILNUITL_insert_ordered: bisection for the slot of an
// item in a sorted range, ascending or descending, and insertion there.
#include "math/sort_record_bytes.h"
#include "math/sort_records.h"

#include <cstring>
#include <vector>

namespace kiln::math {

// An ascending range answers "a[jm] <= item" with true below the slot; a
// descending range with false. So the slot lies after the equals of item in
// an ascending range and before them in a descending one.
int locate(const void* base, const void* item, int lo, int hi, std::size_t size, long long user,
           KilnSortCompareUser compare) {
  if (hi < lo) return lo;
  const char* last = record_at(base, hi, size);
  const bool ascending = lo == hi || compare(record_at(base, lo, size), last, user) <= 0;
  if (ascending && compare(last, item, user) <= 0) return hi + 1;  // appending: the common case
  long long below = static_cast<long long>(lo) - 1;
  long long above = static_cast<long long>(hi) + 1;
  while (above - below > 1) {
    const long long middle = (above + below) / 2;
    if ((compare(record_at(base, middle, size), item, user) <= 0) == ascending) {
      below = middle;
    } else {
      above = middle;
    }
  }
  return static_cast<int>(above);
}

int insert_ordered(void* base, const void* item, int lo, int hi, std::size_t size, long long user,
                   KilnSortCompareUser compare) {
  const int slot = locate(base, item, lo, hi, size, user, compare);
  // An item inside the stretch that moves is copied first.
  std::vector<unsigned char> copy;
  const char* first = record_at(base, lo, size);
  const char* end = record_at(base, static_cast<long long>(hi) + 2, size);
  const auto* item_bytes = static_cast<const char*>(item);
  if (hi >= lo && item_bytes >= first && item_bytes < end) {
    copy.assign(item_bytes, item_bytes + size);
    item = copy.data();
  }
  const long long from = slot > lo ? slot : lo;  // first slot that moves up
  if (from <= hi) {
    char* at = record_at(base, from, size);
    std::memmove(at + size, at, static_cast<std::size_t>(static_cast<long long>(hi) - from + 1) * size);
  }
  std::memcpy(record_at(base, from, size), item, size);  // slot, or lo when slot <= lo
  return slot;
}

}  // namespace kiln::math
