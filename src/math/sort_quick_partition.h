// The partition step shared by the two record quicksorts: a median of three
// at lo, (lo + hi) / 2 and hi, a copy of the middle record as the pivot, and
// the two scans that swap records only when they compare different.
//
// `Records` supplies compare(const char*, const char*), at(i) and swap(i, j).
#pragma once

#include "math/sort_record_bytes.h"

#include <cstring>

namespace kiln::math {

struct PartitionEnds {
  int j;  // the low side is lo..j
  int i;  // the high side is i..hi
};

template <class Records>
PartitionEnds partition_records(Records& records, int lo, int hi, unsigned char* pivot, std::size_t size) {
  const int m = middle_of(lo, hi);
  if (records.compare(records.at(lo), records.at(hi)) > 0) records.swap(lo, hi);
  if (records.compare(records.at(lo), records.at(m)) > 0) records.swap(lo, m);
  if (records.compare(records.at(m), records.at(hi)) > 0) records.swap(m, hi);
  std::memcpy(pivot, records.at(m), size);
  const char* p = reinterpret_cast<const char*>(pivot);
  // a[lo] and a[hi] now bound the scans; the bounds below only guard against
  // a comparison that is not a consistent order.
  int i = lo;
  int j = hi;
  for (;;) {
    do ++i;
    while (i < hi && records.compare(records.at(i), p) < 0);
    do --j;
    while (j > lo && records.compare(p, records.at(j)) < 0);
    if (i > j) break;
    if (records.compare(records.at(i), records.at(j)) != 0) records.swap(i, j);
  }
  return {j, i};
}

// Sorts lo..hi by repeated partitions (partition(lo, hi) gives the ends; a
// partition that cannot run returns {lo, hi}, which stops). The smaller side
// is recursed and the larger one iterated, so the depth stays below log2 of
// the count; the sides are disjoint, so the order in which they are finished
// does not change the result.
template <class Partition>
void sort_by_partitions(int lo, int hi, const Partition& partition) {
  while (lo < hi) {
    const PartitionEnds ends = partition(lo, hi);
    if (static_cast<long long>(ends.j) - lo < static_cast<long long>(hi) - ends.i) {
      if (lo < ends.j) sort_by_partitions(lo, ends.j, partition);
      lo = ends.i;
    } else {
      if (ends.i < hi) sort_by_partitions(ends.i, hi, partition);
      hi = ends.j;
    }
  }
}

}  // namespace kiln::math
