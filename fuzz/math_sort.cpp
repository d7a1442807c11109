// Arbitrary bytes as records of arbitrary sizes through every sort and the
// ordered insertion: the output is sorted, a permutation of the input,
// companions stay in step, and (under ASan) nothing is touched outside the
// arrays. The first byte picks the record size, the second the key width.
#include <kilnutil/frame.h>
#include <kilnutil/math.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace {

void check(bool condition) {
  if (!condition) std::abort();
}

std::size_t g_key_width = 1;  // bytes of a record that make up its key

int compare_records(const void* a, const void* b) { return std::memcmp(a, b, g_key_width); }
int compare_records_user(const void* a, const void* b, long long user) {
  check(user == 42);
  return compare_records(a, b);
}

using Bytes = std::vector<unsigned char>;

// Records as sorted strings of bytes: equal when the multisets agree.
std::vector<Bytes> as_sorted_records(const Bytes& data, std::size_t size) {
  std::vector<Bytes> out;
  for (std::size_t at = 0; at + size <= data.size(); at += size)
    out.emplace_back(data.begin() + static_cast<std::ptrdiff_t>(at),
                     data.begin() + static_cast<std::ptrdiff_t>(at + size));
  std::sort(out.begin(), out.end());
  return out;
}

void check_sorted(const Bytes& data, std::size_t size, int count) {
  for (int i = 1; i < count; ++i) {
    check(compare_records(&data[static_cast<std::size_t>(i - 1) * size], &data[static_cast<std::size_t>(i) * size]) <=
          0);
  }
}

void sort_records(const Bytes& input, std::size_t size, int count) {
  const std::vector<Bytes> expected = as_sorted_records(input, size);
  const int isize = static_cast<int>(size);
  for (int which = 0; which < 4; ++which) {
    Bytes work = input;  // exactly sized, so ASan sees any overrun
    switch (which) {
      case 0: KILNUTIL_HopefullyFasterQuickSort(work.data(), 0, count - 1, isize, compare_records); break;
      case 1: KILNUTIL_MergeSort(work.data(), 0, count - 1, isize, compare_records); break;
      case 2: KILNUTIL_InsertionSort(work.data(), 0, count - 1, isize, compare_records); break;
      default: {
        // A companion of another size whose rows carry the main record's first byte.
        const std::size_t companion_size = size % 7 + 1;
        Bytes companion(static_cast<std::size_t>(count) * companion_size);
        for (int i = 0; i < count; ++i) {
          std::memset(&companion[static_cast<std::size_t>(i) * companion_size],
                      work[static_cast<std::size_t>(i) * size], companion_size);
        }
        const KilnSortCompanion list[] = {{companion.data(), static_cast<int>(companion_size)}};
        KILNUTIL_HopefullyFasterQuickSort_synchronized(work.data(), 0, count - 1, isize, compare_records_user, list, 1,
                                                       42);
        for (int i = 0; i < count; ++i) {
          check(companion[static_cast<std::size_t>(i) * companion_size] == work[static_cast<std::size_t>(i) * size]);
        }
      }
    }
    check_sorted(work, size, count);
    check(as_sorted_records(work, size) == expected);
  }
}

void insert_records(const Bytes& input, std::size_t size, int count) {
  if (count < 1) return;
  Bytes sorted = input;
  KILNUTIL_MergeSort(sorted.data(), 0, count - 2, static_cast<int>(size), compare_records);
  if (input[0] & 1) {  // a descending range: the records in reverse order
    for (int a = 0, b = count - 2; a < b; ++a, --b) {
      std::swap_ranges(sorted.begin() + static_cast<std::ptrdiff_t>(static_cast<std::size_t>(a) * size),
                       sorted.begin() + static_cast<std::ptrdiff_t>(static_cast<std::size_t>(a + 1) * size),
                       sorted.begin() + static_cast<std::ptrdiff_t>(static_cast<std::size_t>(b) * size));
    }
  }
  // The last record is the item; its slot is the room after hi.
  const Bytes item(sorted.end() - static_cast<std::ptrdiff_t>(size), sorted.end());
  const int hi = count - 2;
  const int slot = KILNUITL_locate(sorted.data(), item.data(), 0, hi, static_cast<int>(size), 42, compare_records_user);
  check(slot >= 0 && slot <= hi + 1);
  check(KILNUITL_insert_ordered(sorted.data(), item.data(), 0, hi, static_cast<int>(size), 42, compare_records_user) ==
        slot);
  check(std::memcmp(&sorted[static_cast<std::size_t>(slot) * size], item.data(), size) == 0);
  check(as_sorted_records(sorted, size) == as_sorted_records(input, size));
}

void sort_column(const std::uint8_t* data, std::size_t bytes, bool descending) {
  const std::size_t n = bytes / sizeof(double);
  std::vector<double> keys(n);
  if (n > 0) std::memcpy(keys.data(), data, n * sizeof(double));
  for (double& k : keys) {
    if (std::isnan(k)) k = KILNUTIL_NANUM;
  }
  const std::vector<double> input = keys;
  std::vector<unsigned> rows(n);
  for (std::size_t i = 0; i < n; ++i) rows[i] = static_cast<unsigned>(i);
  check(KilnMath_Sort(static_cast<int>(n), rows.data(), keys.data(), descending ? KILNUTIL_SORT_DESCENDING : 0) == 0);
  for (std::size_t i = 0; i < n; ++i) {
    check(rows[i] < n && keys[i] == input[rows[i]]);
    if (i > 0) check(descending ? keys[i - 1] >= keys[i] : keys[i - 1] <= keys[i]);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 2) return 0;
  const std::size_t record_size = data[0] % 3 == 0 ? 209 + data[0] : data[0] % 40 + 1;
  g_key_width = std::min<std::size_t>(data[1] % 9 + 1, record_size);
  const Bytes records(data + 2, data + size);
  const int count = static_cast<int>(records.size() / record_size);
  const Bytes exact(records.begin(),
                    records.begin() + static_cast<std::ptrdiff_t>(static_cast<std::size_t>(count) * record_size));
  sort_records(exact, record_size, count);
  insert_records(exact, record_size, count);
  sort_column(data + 2, size - 2, data[1] & 1);
  return 0;
}
