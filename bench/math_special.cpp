// Special functions and distributions in evaluations per second, each beside
// Boost.Math computing the same quantity on the same inputs in the same run
// (Boost with double precision throughout, no promotion to long double).
#include <kilnutil/math.h>

#include <benchmark/benchmark.h>

#include <cstddef>
#include <random>
#include <vector>

#if __has_include(<boost/math/distributions/students_t.hpp>)
#  define KILNUTIL_BENCH_HAVE_BOOST_MATH 1
#  include <boost/math/distributions/chi_squared.hpp>
#  include <boost/math/distributions/fisher_f.hpp>
#  include <boost/math/distributions/normal.hpp>
#  include <boost/math/distributions/students_t.hpp>
#  include <boost/math/special_functions/beta.hpp>
#  include <boost/math/special_functions/erf.hpp>
#endif

namespace {

constexpr std::size_t kInputs = 1024;

// Uniform values in [lo, hi], the same for every run.
std::vector<double> uniform(double lo, double hi, unsigned seed) {
  std::mt19937_64 random(seed);
  std::uniform_real_distribution<double> pick(lo, hi);
  std::vector<double> values(kInputs);
  for (double& v : values) v = pick(random);
  return values;
}

const std::vector<double>& probabilities() {
  static const std::vector<double> p = uniform(0.001, 0.999, 1);
  return p;
}

const std::vector<double>& positions() {
  static const std::vector<double> x = uniform(0.01, 0.99, 2);
  return x;
}

const std::vector<double>& t_values() {
  static const std::vector<double> t = uniform(-6, 6, 3);
  return t;
}

// Runs `f` over the inputs, one evaluation per item.
template <typename F>
void over_inputs(benchmark::State& state, const std::vector<double>& inputs, F f) {
  for (auto _ : state) {
    for (const double v : inputs) benchmark::DoNotOptimize(f(v));
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(inputs.size()));
}

constexpr int kDf = 12;
constexpr unsigned kDf1 = 5;
constexpr unsigned kDf2 = 17;

void Incbeta_Kilnutil(benchmark::State& s) {
  over_inputs(s, positions(), [](double x) { return incbeta(x, 3.5, 6.0); });
}
void TCdf_Kilnutil(benchmark::State& s) {
  over_inputs(s, t_values(), [](double t) { return invt(t, kDf); });
}
void TQuantile_Kilnutil(benchmark::State& s) {
  over_inputs(s, probabilities(), [](double p) { return tTable(p, kDf); });
}
void FQuantile_Kilnutil(benchmark::State& s) {
  over_inputs(s, probabilities(), [](double p) { return Ftable(p, kDf1, kDf2); });
}
void ChisqQuantile_Kilnutil(benchmark::State& s) {
  over_inputs(s, probabilities(), [](double p) { return ChisqDist(p, kDf2); });
}
void NormalQuantile_Kilnutil(benchmark::State& s) {
  over_inputs(s, probabilities(), [](double p) { return invncp(p); });
}
void InvErf_Kilnutil(benchmark::State& s) {
  over_inputs(s, probabilities(), [](double p) { return inverf(2 * p - 1); });
}

BENCHMARK(Incbeta_Kilnutil);
BENCHMARK(TCdf_Kilnutil);
BENCHMARK(TQuantile_Kilnutil);
BENCHMARK(FQuantile_Kilnutil);
BENCHMARK(ChisqQuantile_Kilnutil);
BENCHMARK(NormalQuantile_Kilnutil);
BENCHMARK(InvErf_Kilnutil);

#ifdef KILNUTIL_BENCH_HAVE_BOOST_MATH
using DoublePolicy = boost::math::policies::policy<boost::math::policies::promote_double<false>>;

void Incbeta_Boost(benchmark::State& s) {
  over_inputs(s, positions(), [](double x) { return boost::math::ibeta(3.5, 6.0, x, DoublePolicy()); });
}
void TCdf_Boost(benchmark::State& s) {
  const boost::math::students_t_distribution<double, DoublePolicy> t(kDf);
  over_inputs(s, t_values(), [&t](double v) { return boost::math::cdf(t, v); });
}
void TQuantile_Boost(benchmark::State& s) {
  const boost::math::students_t_distribution<double, DoublePolicy> t(kDf);
  over_inputs(s, probabilities(), [&t](double p) { return boost::math::quantile(t, p); });
}
void FQuantile_Boost(benchmark::State& s) {
  const boost::math::fisher_f_distribution<double, DoublePolicy> f(kDf1, kDf2);
  over_inputs(s, probabilities(), [&f](double p) { return boost::math::quantile(f, p); });
}
void ChisqQuantile_Boost(benchmark::State& s) {
  const boost::math::chi_squared_distribution<double, DoublePolicy> c(kDf2);
  over_inputs(s, probabilities(), [&c](double p) { return boost::math::quantile(c, p); });
}
void NormalQuantile_Boost(benchmark::State& s) {
  const boost::math::normal_distribution<double, DoublePolicy> n;
  over_inputs(s, probabilities(), [&n](double p) { return boost::math::quantile(n, p); });
}
void InvErf_Boost(benchmark::State& s) {
  over_inputs(s, probabilities(), [](double p) { return boost::math::erf_inv(2 * p - 1, DoublePolicy()); });
}

BENCHMARK(Incbeta_Boost);
BENCHMARK(TCdf_Boost);
BENCHMARK(TQuantile_Boost);
BENCHMARK(FQuantile_Boost);
BENCHMARK(ChisqQuantile_Boost);
BENCHMARK(NormalQuantile_Boost);
BENCHMARK(InvErf_Boost);
#endif

}  // namespace
