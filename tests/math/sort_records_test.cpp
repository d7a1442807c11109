// The record sorts on records of 8, 208 and 209 bytes with few distinct keys,
// companion arrays moved in step, and ordered insertion against a brute-force
// model.
#include <kilnutil/math.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <random>
#include <vector>

namespace {

// A record of `size` bytes: a key in byte 0, its original position in bytes
// 1..4, and a filler derived from the position in the rest.
class Records {
public:
  Records(int count, int size, unsigned seed)
      : size_(static_cast<std::size_t>(size)), bytes_(size_ * static_cast<std::size_t>(count)) {
    std::mt19937 random(seed);
    for (int i = 0; i < count; ++i) {
      unsigned char* r = at(i);
      r[0] = static_cast<unsigned char>(random() % 5);
      const auto position = static_cast<std::uint32_t>(i);
      std::memcpy(r + 1, &position, sizeof position);
      for (std::size_t b = 5; b < size_; ++b) r[b] = static_cast<unsigned char>(i * 7 + static_cast<int>(b));
    }
  }

  unsigned char* at(int i) { return bytes_.data() + static_cast<std::size_t>(i) * size_; }
  std::uint32_t position(int i) {
    std::uint32_t p = 0;
    std::memcpy(&p, at(i) + 1, sizeof p);
    return p;
  }
  int count() const { return static_cast<int>(bytes_.size() / size_); }
  int size() const { return static_cast<int>(size_); }
  void* data() { return bytes_.data(); }

  // Sorted by key, every original record present unchanged; equal keys in
  // input order when `stable`.
  void expect_sorted(Records& input, bool stable) {
    std::vector<bool> seen(static_cast<std::size_t>(count()), false);
    for (int i = 0; i < count(); ++i) {
      const std::uint32_t p = position(i);
      ASSERT_LT(p, static_cast<std::uint32_t>(count()));
      ASSERT_FALSE(seen[p]) << "record " << p << " twice";
      seen[p] = true;
      ASSERT_EQ(std::memcmp(at(i), input.at(static_cast<int>(p)), size_), 0) << "record " << p << " damaged";
      if (i == 0) continue;
      ASSERT_LE(at(i - 1)[0], at(i)[0]) << "out of order at " << i;
      if (stable && at(i - 1)[0] == at(i)[0]) {
        ASSERT_LT(position(i - 1), p) << "equal keys reordered at " << i;
      }
    }
  }

private:
  std::size_t size_;
  std::vector<unsigned char> bytes_;
};

int by_key(const void* a, const void* b) {
  return static_cast<const unsigned char*>(a)[0] - static_cast<const unsigned char*>(b)[0];
}
int by_key_user(const void* a, const void* b, long long user) { return user == 77 ? by_key(a, b) : 0; }

void quick_sort_synchronized_plain(void* base, int lo, int hi, int size, KilnSortCompare) {
  KILNUTIL_HopefullyFasterQuickSort_synchronized(base, lo, hi, size, by_key_user, nullptr, 0, 77);
}

TEST(KilnRecordSorts, RecordSizesAndCountsAroundTheThresholds) {
  struct Sorter {
    const char* name;
    void (*sort)(void*, int, int, int, KilnSortCompare);
    bool stable;
  };
  const Sorter sorters[] = {
      {"quick", KILNUTIL_HopefullyFasterQuickSort, false},
      {"synchronized", quick_sort_synchronized_plain, false},
      {"merge", KILNUTIL_MergeSort, true},
      {"insertion", KILNUTIL_InsertionSort, true},
  };
  unsigned seed = 1;
  for (const Sorter& sorter : sorters) {
    for (const int size : {8, 208, 209}) {
      for (const int count : {0, 1, 2, 3, 31, 32, 33, 34, 65, 500}) {
        SCOPED_TRACE(testing::Message() << sorter.name << " size=" << size << " count=" << count);
        Records input(count, size, seed++);
        Records out = input;
        sorter.sort(out.data(), 0, count - 1, size, by_key);
        out.expect_sorted(input, sorter.stable);
      }
    }
  }
}

// A range lo..hi relative to a base inside the array, lo negative: only the
// range moves, and it ends sorted.
TEST(KilnRecordSorts, SubrangeAroundTheBaseOnlyIsTouched) {
  for (const auto sort :
       {KILNUTIL_HopefullyFasterQuickSort, quick_sort_synchronized_plain, KILNUTIL_MergeSort, KILNUTIL_InsertionSort}) {
    Records input(90, 8, 9);
    Records out = input;
    sort(out.at(40), -35, 44, 8, by_key);  // elements 5..84
    EXPECT_EQ(std::memcmp(out.at(0), input.at(0), 5 * 8), 0);
    EXPECT_EQ(std::memcmp(out.at(85), input.at(85), 5 * 8), 0);
    for (int i = 6; i <= 84; ++i) ASSERT_LE(out.at(i - 1)[0], out.at(i)[0]) << i;
  }
}

// Companions of 1, 4, 24 and 208 bytes hold each row's original position;
// after the sort they must still match the main records row by row.
TEST(KilnRecordSorts, CompanionArraysMoveInStep) {
  for (const int size : {8, 208}) {
    const int count = 700;
    Records records(count, size, 33);
    const int companion_sizes[] = {1, 4, 24, 208};
    std::vector<std::vector<unsigned char>> columns;
    std::vector<KilnSortCompanion> companions;
    for (const int companion_size : companion_sizes) {
      std::vector<unsigned char> column(static_cast<std::size_t>(count * companion_size));
      for (int i = 0; i < count; ++i) {
        for (int b = 0; b < companion_size; ++b) {
          column[static_cast<std::size_t>(i * companion_size + b)] =
              static_cast<unsigned char>((i >> (8 * (b % 2))) + b);
        }
      }
      columns.push_back(std::move(column));
    }
    for (std::size_t c = 0; c < columns.size(); ++c) companions.push_back({columns[c].data(), companion_sizes[c]});
    const std::vector<std::vector<unsigned char>> original = columns;
    Records input = records;
    KILNUTIL_HopefullyFasterQuickSort_synchronized(records.data(), 0, count - 1, size, by_key_user, companions.data(),
                                                   static_cast<int>(companions.size()), 77);
    records.expect_sorted(input, false);
    for (std::size_t c = 0; c < columns.size(); ++c) {
      const auto width = static_cast<std::size_t>(companion_sizes[c]);
      for (int i = 0; i < count; ++i) {
        ASSERT_EQ(std::memcmp(&columns[c][static_cast<std::size_t>(i) * width],
                              &original[c][records.position(i) * width], width),
                  0)
            << "companion " << c << " row " << i;
      }
    }
  }
}

// ---- Ordered insertion.

int compare_ints(const void* a, const void* b, long long) {
  const int x = *static_cast<const int*>(a);
  const int y = *static_cast<const int*>(b);
  return (x > y) - (x < y);
}

// The slot the model expects: after the equals of item in an ascending range
// (lo == hi or a[lo] <= a[hi]), before them in a descending one.
int model_slot(const std::vector<int>& range, int lo, int item) {
  const bool ascending = range.size() <= 1 || range.front() <= range.back();
  int slot = lo;
  for (const int v : range) slot += ascending ? v <= item : v > item;
  return slot;
}

TEST(KilnOrderedInsertion, LocateAndInsertMatchTheModel) {
  std::mt19937 random(5);
  const int lo = 3;
  for (int trial = 0; trial < 3000; ++trial) {
    const auto length = static_cast<int>(random() % 9);
    std::vector<int> range(static_cast<std::size_t>(length));
    for (int& v : range) v = static_cast<int>(random() % 4);
    std::sort(range.begin(), range.end());
    if (trial % 2) std::reverse(range.begin(), range.end());
    const int item = static_cast<int>(random() % 6) - 1;
    std::vector<int> array(static_cast<std::size_t>(lo), -9);
    array.insert(array.end(), range.begin(), range.end());
    array.push_back(-7);  // the slot after hi that the caller owns
    array.push_back(-8);  // must stay untouched
    const int hi = lo + length - 1;
    const int expected = model_slot(range, lo, item);
    ASSERT_EQ(KILNUITL_locate(array.data(), &item, lo, hi, sizeof(int), 0, compare_ints), expected);

    std::vector<int> model = array;
    model.erase(model.end() - 2);
    model.insert(model.begin() + expected, item);
    ASSERT_EQ(KILNUITL_insert_ordered(array.data(), &item, lo, hi, sizeof(int), 0, compare_ints), expected);
    ASSERT_EQ(array, model) << "trial " << trial;
  }
}

TEST(KilnOrderedInsertion, EqualsAndEmptyRanges) {
  struct Case {
    std::vector<int> range;
    int item;
    int slot;
  };
  const Case cases[] = {
      {{1, 2, 2, 3}, 2, 3},  // ascending: after the equals
      {{3, 2, 2, 1}, 2, 1},  // descending: before the equals
      {{2, 2, 2}, 2, 3},     // all equal counts as ascending
      {{}, 5, 0},           {{4}, 9, 1},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(
        KILNUITL_locate(c.range.data(), &c.item, 0, static_cast<int>(c.range.size()) - 1, sizeof(int), 0, compare_ints),
        c.slot);
  }
}

}  // namespace
