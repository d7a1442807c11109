// Rounding over 64k measured values: the library's round to 2 places, prec
// to 4 digits and nint, beside the C library's std::round (to 2 places by the
// usual scale-round-unscale), std::nearbyint and std::lround in the same run.
#include <kilnutil/math.h>

#include <benchmark/benchmark.h>

#include <cmath>
#include <random>
#include <vector>

namespace {

constexpr std::size_t kValues = 65536;

// Magnitudes over eight decades, a fifth negative.
const std::vector<double>& values() {
  static const std::vector<double> v = [] {
    std::vector<double> made;
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> exponent(-3.0, 5.0);
    for (std::size_t i = 0; i < kValues; ++i) {
      const double magnitude = std::pow(10.0, exponent(random));
      made.push_back(random() % 5 == 0 ? -magnitude : magnitude);
    }
    return made;
  }();
  return v;
}

template <typename Function>
void run(benchmark::State& state, Function function) {
  const std::vector<double>& v = values();
  for (auto _ : state) {
    double sum = 0;
    for (double x : v) sum += function(x);
    benchmark::DoNotOptimize(sum);
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(v.size()));
}

void BM_RoundPlaces_Kilnutil(benchmark::State& state) {
  run(state, [](double x) { return KILNUTIL_mround(x, 2); });
}
void BM_RoundPlaces_StdRound(benchmark::State& state) {
  run(state, [](double x) { return std::round(x * 100.0) / 100.0; });
}
void BM_Prec_Kilnutil(benchmark::State& state) {
  run(state, [](double x) { return prec(x, 4); });
}
// The same rounding to 4 significant digits written with the C library.
void BM_Prec_StdRound(benchmark::State& state) {
  run(state, [](double x) {
    const double scale = std::pow(10.0, 3.0 - std::floor(std::log10(std::fabs(x))));
    return std::round(x * scale) / scale;
  });
}
void BM_Nint_Kilnutil(benchmark::State& state) {
  run(state, [](double x) { return static_cast<double>(nint(x)); });
}
void BM_Nint_StdNearbyint(benchmark::State& state) {
  run(state, [](double x) { return std::nearbyint(x); });
}
void BM_Nint_StdLround(benchmark::State& state) {
  run(state, [](double x) { return static_cast<double>(std::lround(x)); });
}

}  // namespace

BENCHMARK(BM_RoundPlaces_Kilnutil);
BENCHMARK(BM_RoundPlaces_StdRound);
BENCHMARK(BM_Prec_Kilnutil);
BENCHMARK(BM_Prec_StdRound);
BENCHMARK(BM_Nint_Kilnutil);
BENCHMARK(BM_Nint_StdNearbyint);
BENCHMARK(BM_Nint_StdLround);
