// KILNUTIL_cvtstr2real over a column of a million decimal texts, beside the C
// library's strtod and std::from_chars on the same texts in the same run.
// All three give bit-identical results (checked before timing).
#include <kilnutil/numeric.h>

#include <benchmark/benchmark.h>

#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr std::size_t kTexts = 1000000;

// The column: texts stored one after another, each with its NUL, as an
// import buffer holds them.
struct Column {
  std::vector<char> bytes;
  std::vector<std::size_t> starts;
};

// Values of a measured quantity: 1 to 7 significant digits before the point
// over six decades, 1 to 6 decimals, a fifth of them negative.
const Column& column() {
  static const Column c = [] {
    Column made;
    std::mt19937_64 random(42);
    std::uniform_real_distribution<double> exponent(-2.0, 4.0);
    char text[64];
    for (std::size_t i = 0; i < kTexts; ++i) {
      const double magnitude = std::pow(10.0, exponent(random));
      const double value = random() % 5 == 0 ? -magnitude : magnitude;
      const int length = std::snprintf(text, sizeof text, "%.*f", 1 + static_cast<int>(random() % 6), value);
      made.starts.push_back(made.bytes.size());
      made.bytes.insert(made.bytes.end(), text, text + length + 1);
    }
    return made;
  }();
  return c;
}

double parse_kilnutil(char* text) {
  double value = 0;
  KILNUTIL_cvtstr2real(text, &value);
  return value;
}

double parse_strtod(char* text) { return std::strtod(text, nullptr); }

double parse_from_chars(char* text) {
  double value = 0;
  std::from_chars(text, text + std::strlen(text), value);
  return value;
}

bool same_bits(double a, double b) { return std::memcmp(&a, &b, sizeof a) == 0; }

// Every text gives the same double by all three conversions.
bool column_agrees() {
  static const bool agrees = [] {
    Column copy = column();
    for (std::size_t start : copy.starts) {
      char* text = copy.bytes.data() + start;
      const double reference = parse_strtod(text);
      if (!same_bits(parse_kilnutil(text), reference) || !same_bits(parse_from_chars(text), reference)) {
        std::fprintf(stderr, "texts disagree: %s\n", text);
        return false;
      }
    }
    return true;
  }();
  return agrees;
}

template <double (*Parse)(char*)>
void BM_ParseColumn(benchmark::State& state) {
  if (!column_agrees()) {
    state.SkipWithError("conversions disagree");
    return;
  }
  Column copy = column();
  double sum = 0;
  for (auto _ : state) {
    for (std::size_t start : copy.starts) sum += Parse(copy.bytes.data() + start);
    benchmark::DoNotOptimize(sum);
  }
  state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(kTexts));
}

BENCHMARK(BM_ParseColumn<parse_kilnutil>)->Name("number_parse/KILNUTIL_cvtstr2real")->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ParseColumn<parse_strtod>)->Name("number_parse/strtod")->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ParseColumn<parse_from_chars>)->Name("number_parse/std::from_chars")->Unit(benchmark::kMillisecond);

}  // namespace
