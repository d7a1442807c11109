// The sorts and the matrix inversion beside their references in one run:
// KilnMath_Sort of a million doubles with its index array beside std::sort of
// the keys alone and of (key, index) pairs; the record sorts beside qsort,
// std::sort and std::stable_sort on 16-, 64- and 256-byte records;
// KilnMath_Inverse beside LAPACK's dgetrf + dgetri (when LAPACK was found).
#include <kilnutil/math.h>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <numeric>
#include <random>
#include <utility>
#include <vector>

#if defined(KILNUTIL_BENCH_HAVE_LAPACK)
extern "C" {
void dgetrf_(const int* m, const int* n, double* a, const int* lda, int* ipiv, int* info);
void dgetri_(const int* n, double* a, const int* lda, const int* ipiv, double* work, const int* lwork, int* info);
}
#endif

namespace {

constexpr int kColumn = 1000000;

enum Shape { kRandom, kSorted, kReversed, kFewDistinct };

std::vector<double> column(Shape shape) {
  std::vector<double> keys(kColumn);
  std::mt19937_64 random(7);
  std::uniform_real_distribution<double> value(-1e6, 1e6);
  for (double& k : keys) k = shape == kFewDistinct ? static_cast<double>(random() % 16) : value(random);
  if (shape == kSorted) std::sort(keys.begin(), keys.end());
  if (shape == kReversed) std::sort(keys.begin(), keys.end(), std::greater<>());
  return keys;
}

void label_shape(benchmark::State& state) {
  static const char* const kNames[] = {"random", "sorted", "reversed", "few-distinct"};
  state.SetLabel(kNames[state.range(0)]);
  state.SetItemsProcessed(state.iterations() * kColumn);
}

void BM_KilnMathSortWithIndex(benchmark::State& state) {
  const std::vector<double> input = column(static_cast<Shape>(state.range(0)));
  std::vector<double> keys(input.size());
  std::vector<unsigned> rows(input.size());
  for (auto _ : state) {
    state.PauseTiming();
    keys = input;
    std::iota(rows.begin(), rows.end(), 0u);
    state.ResumeTiming();
    benchmark::DoNotOptimize(KilnMath_Sort(kColumn, rows.data(), keys.data(), 0));
  }
  label_shape(state);
}

void BM_StdSortKeys(benchmark::State& state) {
  const std::vector<double> input = column(static_cast<Shape>(state.range(0)));
  std::vector<double> keys(input.size());
  for (auto _ : state) {
    state.PauseTiming();
    keys = input;
    state.ResumeTiming();
    std::sort(keys.begin(), keys.end());
    benchmark::DoNotOptimize(keys.data());
  }
  label_shape(state);
}

void BM_StdSortKeyIndexPairs(benchmark::State& state) {
  const std::vector<double> input = column(static_cast<Shape>(state.range(0)));
  std::vector<std::pair<double, unsigned>> pairs(input.size());
  for (auto _ : state) {
    state.PauseTiming();
    for (std::size_t i = 0; i < input.size(); ++i) pairs[i] = {input[i], static_cast<unsigned>(i)};
    state.ResumeTiming();
    std::sort(pairs.begin(), pairs.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    benchmark::DoNotOptimize(pairs.data());
  }
  label_shape(state);
}

BENCHMARK(BM_KilnMathSortWithIndex)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_StdSortKeys)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_StdSortKeyIndexPairs)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);

// ---- Records: a double key in front, payload behind.

constexpr int kRecords = 100000;

template <std::size_t Size>
struct Record {
  double key;
  std::array<unsigned char, Size - sizeof(double)> payload;
};

template <std::size_t Size>
std::vector<Record<Size>> records() {
  std::vector<Record<Size>> out(kRecords);
  std::mt19937_64 random(11);
  for (auto& r : out) {
    r.key = static_cast<double>(random() % 50000);
    r.payload.fill(static_cast<unsigned char>(random()));
  }
  return out;
}

int compare_keys(const void* a, const void* b) {
  double x = 0;
  double y = 0;
  std::memcpy(&x, a, sizeof x);
  std::memcpy(&y, b, sizeof y);
  return (x > y) - (x < y);
}

template <std::size_t Size, class Sort>
void run_record_sort(benchmark::State& state, Sort sort) {
  const std::vector<Record<Size>> input = records<Size>();
  std::vector<Record<Size>> work(input.size());
  for (auto _ : state) {
    state.PauseTiming();
    work = input;
    state.ResumeTiming();
    sort(work);
    benchmark::DoNotOptimize(work.data());
  }
  state.SetItemsProcessed(state.iterations() * kRecords);
}

template <std::size_t Size>
void BM_HopefullyFasterQuickSort(benchmark::State& state) {
  run_record_sort<Size>(state, [](auto& w) {
    KILNUTIL_HopefullyFasterQuickSort(w.data(), 0, kRecords - 1, static_cast<int>(Size), compare_keys);
  });
}
template <std::size_t Size>
void BM_MergeSort(benchmark::State& state) {
  run_record_sort<Size>(
      state, [](auto& w) { KILNUTIL_MergeSort(w.data(), 0, kRecords - 1, static_cast<int>(Size), compare_keys); });
}
template <std::size_t Size>
void BM_Qsort(benchmark::State& state) {
  run_record_sort<Size>(state, [](auto& w) { std::qsort(w.data(), w.size(), Size, compare_keys); });
}
template <std::size_t Size>
void BM_StdSortRecords(benchmark::State& state) {
  run_record_sort<Size>(state, [](auto& w) {
    std::sort(w.begin(), w.end(), [](const auto& a, const auto& b) { return a.key < b.key; });
  });
}
template <std::size_t Size>
void BM_StdStableSortRecords(benchmark::State& state) {
  run_record_sort<Size>(state, [](auto& w) {
    std::stable_sort(w.begin(), w.end(), [](const auto& a, const auto& b) { return a.key < b.key; });
  });
}

#define KILN_RECORD_BENCH(name)                                \
  BENCHMARK_TEMPLATE(name, 16)->Unit(benchmark::kMillisecond); \
  BENCHMARK_TEMPLATE(name, 64)->Unit(benchmark::kMillisecond); \
  BENCHMARK_TEMPLATE(name, 256)->Unit(benchmark::kMillisecond)

KILN_RECORD_BENCH(BM_HopefullyFasterQuickSort);
KILN_RECORD_BENCH(BM_MergeSort);
KILN_RECORD_BENCH(BM_Qsort);
KILN_RECORD_BENCH(BM_StdSortRecords);
KILN_RECORD_BENCH(BM_StdStableSortRecords);

// ---- Matrix inversion.

std::vector<double> well_conditioned(int n) {
  std::vector<double> a(static_cast<std::size_t>(n) * static_cast<std::size_t>(n));
  std::mt19937_64 random(5);
  std::uniform_real_distribution<double> entry(-1.0, 1.0);
  for (double& x : a) x = entry(random);
  for (int i = 0; i < n; ++i) a[static_cast<std::size_t>(i * n + i)] += n;
  return a;
}

void BM_KilnMathInverse(benchmark::State& state) {
  const int n = static_cast<int>(state.range(0));
  const std::vector<double> input = well_conditioned(n);
  std::vector<double> a(input.size());
  for (auto _ : state) {
    a = input;
    benchmark::DoNotOptimize(KilnMath_Inverse(static_cast<unsigned short>(n), a.data(), 0));
  }
}
BENCHMARK(BM_KilnMathInverse)->Arg(32)->Arg(128)->Unit(benchmark::kMicrosecond);

#if defined(KILNUTIL_BENCH_HAVE_LAPACK)
void BM_LapackGetrfGetri(benchmark::State& state) {
  const int n = static_cast<int>(state.range(0));
  const std::vector<double> input = well_conditioned(n);
  std::vector<double> a(input.size());
  std::vector<int> pivots(static_cast<std::size_t>(n));
  const int lwork = 64 * n;
  std::vector<double> work(static_cast<std::size_t>(lwork));
  for (auto _ : state) {
    a = input;
    int info = 0;
    dgetrf_(&n, &n, a.data(), &n, pivots.data(), &info);
    dgetri_(&n, a.data(), &n, pivots.data(), work.data(), &lwork, &info);
    benchmark::DoNotOptimize(info);
  }
}
BENCHMARK(BM_LapackGetrfGetri)->Arg(32)->Arg(128)->Unit(benchmark::kMicrosecond);
#endif

}  // namespace
