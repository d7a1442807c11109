// The row and column pairs of a CellRange and the tests every range function
// shares: whether a pair covers its whole dimension, runs to the end, or holds
// an index.
#pragma once

#include <kilnutil/import.h>

#include <cstdint>

namespace kiln::import {

inline constexpr int kAll = KILNUTIL_RANGE_ALL;
inline constexpr int kEmpty = KILNUTIL_RANGE_EMPTY;
// A last value of -1 (bit pattern 0xFFFFFFFF) means "to the end".
inline constexpr int kToEnd = -1;

enum class Dim { rows, cols };

struct Pair {
  int first;
  int last;
};

inline Pair pair_of(const CellRange& range, Dim dim) {
  return dim == Dim::rows ? Pair{range.r1, range.r2} : Pair{range.c1, range.c2};
}

inline void set_pair(CellRange& range, Dim dim, Pair pair) {
  if (dim == Dim::rows) {
    range.r1 = pair.first;
    range.r2 = pair.last;
  } else {
    range.c1 = pair.first;
    range.c2 = pair.last;
  }
}

inline bool runs_to_end(Pair pair) { return static_cast<std::uint32_t>(pair.last) == 0xFFFFFFFFu; }

// All rows (columns): either value is the "all" sentinel, or the pair is (0, -1).
inline bool covers_all(Pair pair) {
  return pair.first == kAll || pair.last == kAll || (pair.first == 0 && runs_to_end(pair));
}

inline bool covers_all(const CellRange& range, Dim dim) { return covers_all(pair_of(range, dim)); }

inline bool is_empty(const CellRange& range) {
  return range.r1 == kEmpty && range.c1 == kEmpty && range.r2 == kEmpty && range.c2 == kEmpty;
}

// Whether index lies in the pair. In a to-the-end pair only indices below the
// first one are outside, and -1 is inside every such pair.
inline bool index_in_pair(int index, Pair pair) {
  if (!runs_to_end(pair)) return pair.first <= index && index <= pair.last;
  return !(index < pair.first && index != -1);
}

// Adds without overflow faults: two's-complement wrap-around, as 32-bit
// registers add.
inline int wrapping_add(int a, int b) {
  return static_cast<int>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

}  // namespace kiln::import
