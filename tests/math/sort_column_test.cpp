// KilnMath_Sort against a reference sort on random columns with many equal
// keys (the missing value among them), and the pending-range stack exhausted
// by an input built for the pivot rule.
#include "math/sort_column.h"

#include <kilnutil/frame.h>
#include <kilnutil/math.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <vector>

namespace {

struct Column {
  std::vector<double> keys;
  std::vector<unsigned> rows;
};

Column random_column(int n, int distinct, unsigned seed) {
  std::mt19937 random(seed);
  Column column{std::vector<double>(static_cast<std::size_t>(n)), std::vector<unsigned>(static_cast<std::size_t>(n))};
  for (int i = 0; i < n; ++i) {
    const auto pick = static_cast<int>(random() % static_cast<unsigned>(distinct));
    column.keys[static_cast<std::size_t>(i)] = pick == 0 ? KILNUTIL_NANUM : pick * 0.5 - 3.0;
    column.rows[static_cast<std::size_t>(i)] = static_cast<unsigned>(i);
  }
  return column;
}

// Sorted in the asked order, each key still beside its original row, and the
// keys a permutation of the input; equal keys in row order when `stable`.
void expect_sorted_column(const Column& input, const Column& out, bool descending, bool stable) {
  std::vector<unsigned> rows = out.rows;
  std::sort(rows.begin(), rows.end());
  std::vector<unsigned> all(input.rows.size());
  std::iota(all.begin(), all.end(), 0u);
  ASSERT_EQ(rows, all) << "index array is not a permutation";
  for (std::size_t k = 0; k < out.keys.size(); ++k) {
    ASSERT_EQ(out.keys[k], input.keys[out.rows[k]]) << "key moved without its row at " << k;
    if (k == 0) continue;
    const double before = out.keys[k - 1];
    const double here = out.keys[k];
    ASSERT_TRUE(descending ? before >= here : before <= here) << "out of order at " << k;
    if (stable && before == here) {
      ASSERT_LT(out.rows[k - 1], out.rows[k]) << "equal keys reordered at " << k;
    }
  }
}

TEST(KilnMathSort, RandomColumnsWithDuplicatesBothOrders) {
  struct Case {
    int n;
    int distinct;
  };
  const Case cases[] = {{1, 3}, {2, 2}, {5, 2}, {7, 3}, {8, 3}, {9, 4}, {50, 5}, {1000, 7}, {20000, 3}, {20000, 20000}};
  unsigned seed = 1;
  for (const Case& c : cases) {
    for (const bool descending : {false, true}) {
      const Column input = random_column(c.n, c.distinct, seed++);
      Column out = input;
      const auto flags = static_cast<unsigned short>(descending ? KILNUTIL_SORT_DESCENDING : 0);
      ASSERT_EQ(KilnMath_Sort(c.n, out.rows.data(), out.keys.data(), flags), KILNUTIL_SORT_OK);
      SCOPED_TRACE(testing::Message() << "n=" << c.n << " descending=" << descending);
      expect_sorted_column(input, out, descending, c.n <= 7);
      // One call always makes the same choices.
      Column again = input;
      KilnMath_Sort(c.n, again.rows.data(), again.keys.data(), flags);
      EXPECT_EQ(again.rows, out.rows);
    }
  }
}

TEST(KilnMathSort, MissingValueSortsAsTinyNegativeAndOtherFlagBitsAreIgnored) {
  Column column{{0.0, KILNUTIL_NANUM, -1e-301, 1.0}, {0, 1, 2, 3}};
  ASSERT_EQ(KilnMath_Sort(4, column.rows.data(), column.keys.data(), static_cast<unsigned short>(0xFFDF)), 0);
  EXPECT_EQ(column.rows, (std::vector<unsigned>{1, 2, 0, 3}));
  EXPECT_EQ(KilnMath_Sort(0, nullptr, nullptr, 0), KILNUTIL_SORT_OK);
}

// ---- Exhausting the stack.
//
// The pending-range stack overflows only when every partition on a chain
// splits its range as evenly as it can: k simultaneous pending ranges need at
// least f(k) = 9 * 2^(k-1) - 1 entries. The input is built by running the
// algorithm on element numbers with a comparison that decides lazily: the
// first comparison inside an undecided range of 8 or more makes its first
// argument (always the pivot) the median of that range; the other members go
// below it until the lower half is full. The final position of each element
// number is then the key that reproduces every decision.
class MedianAdversary {
public:
  explicit MedianAdversary(int n) : group_of_(static_cast<std::size_t>(n), 0), groups_{{0, n, -1, 0, 0, 0}} {}

  bool before(int x, int y) {
    if (x == y) return false;
    const int gx = resolve(x);
    const int gy = resolve(y);
    if (gx == gy) {
      Group& g = groups_[static_cast<std::size_t>(gx)];
      if (g.size < 8) return x < y;  // finished by insertion: any fixed order
      split(gx, x);
      return before(x, y);
    }
    return groups_[static_cast<std::size_t>(gx)].base < groups_[static_cast<std::size_t>(gy)].base;
  }

private:
  struct Group {
    int base, size, pivot, lower_left, lower, upper;
  };

  void split(int id, int pivot) {
    const Group g = groups_[static_cast<std::size_t>(id)];
    const int lower_size = (g.size - 1) / 2;
    const auto add = [this](int base, int size) {
      groups_.push_back({base, size, -1, size, 0, 0});
      return static_cast<int>(groups_.size()) - 1;
    };
    const int lower = add(g.base, lower_size);
    const int own = add(g.base + lower_size, 1);
    const int upper = add(g.base + lower_size + 1, g.size - 1 - lower_size);
    groups_[static_cast<std::size_t>(id)] = {g.base, g.size, pivot, lower_size, lower, upper};
    group_of_[static_cast<std::size_t>(pivot)] = own;
  }

  // The element's group, refined through every split it has not yet seen.
  int resolve(int x) {
    for (;;) {
      Group& g = groups_[static_cast<std::size_t>(group_of_[static_cast<std::size_t>(x)])];
      if (g.pivot < 0) return group_of_[static_cast<std::size_t>(x)];
      const bool goes_low = g.lower_left > 0;
      g.lower_left -= goes_low;
      group_of_[static_cast<std::size_t>(x)] = goes_low ? g.lower : g.upper;
    }
  }

  std::vector<int> group_of_;
  std::vector<Group> groups_;
};

std::vector<double> stack_exhausting_keys(int n) {
  std::vector<int> ids(static_cast<std::size_t>(n));
  std::iota(ids.begin(), ids.end(), 0);
  std::vector<unsigned> rows(ids.size());
  MedianAdversary adversary(n);
  kiln::math::sort_column_detail::quicksort_column(n, rows.data(), ids.data(),
                                                   [&](int x, int y) { return adversary.before(x, y); });
  std::vector<double> keys(ids.size());
  for (std::size_t position = 0; position < ids.size(); ++position) {
    keys[static_cast<std::size_t>(ids[position])] = static_cast<double>(position);
  }
  return keys;
}

TEST(KilnMathSort, BuiltInputExhaustsTheStackAtTheMinimumSize) {
  struct Case {
    int stack_entries;
    int n;
    int expected;
  };
  // f(k) entries fill k + 1 pending ranges' worth of a 2k-entry stack; one less never does.
  const Case cases[] = {{2, 17, 1}, {2, 16, 0}, {6, 71, 1}, {6, 70, 0}, {12, 575, 1}, {12, 574, 0}};
  const auto ascending = [](double x, double y) { return x < y; };
  for (const Case& c : cases) {
    std::vector<double> keys = stack_exhausting_keys(c.n);
    std::vector<unsigned> rows(keys.size());
    const std::vector<double> input = keys;
    EXPECT_EQ(
        kiln::math::sort_column_detail::quicksort_column(c.n, rows.data(), keys.data(), ascending, c.stack_entries),
        c.expected)
        << "n=" << c.n << " stack=" << c.stack_entries;
    // With the library's 50 entries the same input sorts completely.
    keys = input;
    EXPECT_EQ(KilnMath_Sort(c.n, rows.data(), keys.data(), 0), KILNUTIL_SORT_OK);
    EXPECT_TRUE(std::is_sorted(keys.begin(), keys.end()));
  }
}

}  // namespace
