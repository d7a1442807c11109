// The library's random generators beside std::mt19937_64 with
// std::normal_distribution, the math dispatcher's evaluation of SIN and
// INCBETA beside direct calls of the same routines (the dispatch overhead),
// and the name look-up of all 65 catalogue names.
#include <kilnutil/math.h>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr int kDraws = 4096;

void BM_LibraryUniform(benchmark::State& state) {
  rnd(5);
  for (auto _ : state) {
    double sum = 0;
    for (int i = 0; i < kDraws; ++i) sum += rnd(0);
    benchmark::DoNotOptimize(sum);
  }
  state.SetItemsProcessed(state.iterations() * kDraws);
}

void BM_Mt19937Uniform(benchmark::State& state) {
  std::mt19937_64 engine(5);
  std::uniform_real_distribution<double> uniform(0.0, 1.0);
  for (auto _ : state) {
    double sum = 0;
    for (int i = 0; i < kDraws; ++i) sum += uniform(engine);
    benchmark::DoNotOptimize(sum);
  }
  state.SetItemsProcessed(state.iterations() * kDraws);
}

void BM_LibraryNormal(benchmark::State& state) {
  grnd(5);
  for (auto _ : state) {
    double sum = 0;
    for (int i = 0; i < kDraws; ++i) sum += grnd(0);
    benchmark::DoNotOptimize(sum);
  }
  state.SetItemsProcessed(state.iterations() * kDraws);
}

void BM_Mt19937Normal(benchmark::State& state) {
  std::mt19937_64 engine(5);
  std::normal_distribution<double> normal(0.0, 1.0);
  for (auto _ : state) {
    double sum = 0;
    for (int i = 0; i < kDraws; ++i) sum += normal(engine);
    benchmark::DoNotOptimize(sum);
  }
  state.SetItemsProcessed(state.iterations() * kDraws);
}

unsigned index_of(const char* name) {
  std::string text = name;
  unsigned short index = 0;
  KilnMath_function(nullptr, KILNUTIL_MATHFN_FIND, text.data(), &index, KILNUTIL_MATHFN_UNIT_RADIANS);
  return index;
}

// Arguments that vary so that neither side is folded away.
std::vector<double> sample_arguments() {
  std::vector<double> values(kDraws);
  for (int i = 0; i < kDraws; ++i) values[static_cast<std::size_t>(i)] = 0.05 + 0.9 * i / kDraws;
  return values;
}

void BM_DispatchSin(benchmark::State& state) {
  const unsigned command = KILNUTIL_MATHFN_COMMAND(KILNUTIL_MATHFN_EVALUATE, index_of("SIN"));
  std::vector<double> values = sample_arguments();
  for (auto _ : state) {
    double sum = 0;
    for (double& x : values) {
      double result = 0;
      KilnMath_function(nullptr, command, &x, &result, KILNUTIL_MATHFN_UNIT_RADIANS);
      sum += result;
    }
    benchmark::DoNotOptimize(sum);
  }
  state.SetItemsProcessed(state.iterations() * kDraws);
}

void BM_DirectSin(benchmark::State& state) {
  const std::vector<double> values = sample_arguments();
  for (auto _ : state) {
    double sum = 0;
    for (const double x : values) sum += std::sin(x);
    benchmark::DoNotOptimize(sum);
  }
  state.SetItemsProcessed(state.iterations() * kDraws);
}

void BM_DispatchIncbeta(benchmark::State& state) {
  const unsigned command = KILNUTIL_MATHFN_COMMAND(KILNUTIL_MATHFN_EVALUATE, index_of("INCBETA"));
  const std::vector<double> values = sample_arguments();
  for (auto _ : state) {
    double sum = 0;
    for (const double x : values) {
      double arguments[] = {x, 2.5, 3.5};
      double result = 0;
      KilnMath_function(nullptr, command, arguments, &result, KILNUTIL_MATHFN_UNIT_RADIANS);
      sum += result;
    }
    benchmark::DoNotOptimize(sum);
  }
  state.SetItemsProcessed(state.iterations() * kDraws);
}

void BM_DirectIncbeta(benchmark::State& state) {
  const std::vector<double> values = sample_arguments();
  for (auto _ : state) {
    double sum = 0;
    for (const double x : values) sum += incbeta(x, 2.5, 3.5);
    benchmark::DoNotOptimize(sum);
  }
  state.SetItemsProcessed(state.iterations() * kDraws);
}

// Every name once, in a scrambled order so the last-found shortcut rarely hits;
// beside it, the same names compared one by one against a plain vector.
std::vector<std::string> scrambled_names() {
  std::vector<std::string> names;
  for (unsigned i = 0; i < KILNUTIL_MATHFN_COUNT; ++i) {
    char text[KILNUTIL_MATHFN_TEXT_SIZE];
    KilnMath_function(nullptr, KILNUTIL_MATHFN_COMMAND(KILNUTIL_MATHFN_NAME, (i * 29) % KILNUTIL_MATHFN_COUNT), nullptr,
                      text, KILNUTIL_MATHFN_UNIT_RADIANS);
    names.emplace_back(text);
  }
  return names;
}

void BM_FindAllNames(benchmark::State& state) {
  std::vector<std::string> names = scrambled_names();
  for (auto _ : state) {
    unsigned total = 0;
    for (std::string& name : names) {
      unsigned short index = 0;
      total += KilnMath_function(nullptr, KILNUTIL_MATHFN_FIND, name.data(), &index, KILNUTIL_MATHFN_UNIT_RADIANS);
      total += index;
    }
    benchmark::DoNotOptimize(total);
  }
  state.SetItemsProcessed(state.iterations() * KILNUTIL_MATHFN_COUNT);
}

void BM_LinearStringSearch(benchmark::State& state) {
  const std::vector<std::string> names = scrambled_names();
  std::vector<std::string> sorted = names;
  std::sort(sorted.begin(), sorted.end());
  for (auto _ : state) {
    std::size_t total = 0;
    for (const std::string& name : names) {
      for (std::size_t i = 0; i < sorted.size(); ++i) {
        if (sorted[i] == name) {
          total += i;
          break;
        }
      }
    }
    benchmark::DoNotOptimize(total);
  }
  state.SetItemsProcessed(state.iterations() * KILNUTIL_MATHFN_COUNT);
}

}  // namespace

BENCHMARK(BM_LibraryUniform);
BENCHMARK(BM_Mt19937Uniform);
BENCHMARK(BM_LibraryNormal);
BENCHMARK(BM_Mt19937Normal);
BENCHMARK(BM_DispatchSin);
BENCHMARK(BM_DirectSin);
BENCHMARK(BM_DispatchIncbeta);
BENCHMARK(BM_DirectIncbeta);
BENCHMARK(BM_FindAllNames);
BENCHMARK(BM_LinearStringSearch);
