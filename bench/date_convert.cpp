// Date value to calendar fields and back (JulianDateToSystemTime,
// SystemTimeToJulianDate), beside the same conversions by the standard
// library's civil calendar (std::chrono::year_month_day) in the same run.
#include <kilnutil/datetime.h>

#include <benchmark/benchmark.h>

#include <chrono>
#include <cmath>
#include <random>
#include <vector>

namespace {

constexpr std::size_t kDates = 1 << 16;
constexpr double kDefaultOffset = 2415018.0;
constexpr int kDaysFrom1970To18991230 = -25569;

// Date values of the default system with a time of day, years 1900 to 2100.
const std::vector<double>& values() {
  static const std::vector<double> v = [] {
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> serial(0.0, 73050.0);
    std::vector<double> made(kDates);
    for (double& value : made) value = kDefaultOffset + serial(random);
    return made;
  }();
  return v;
}

const std::vector<SYSTEMTIME>& records() {
  static const std::vector<SYSTEMTIME> r = [] {
    std::vector<SYSTEMTIME> made(kDates);
    for (std::size_t i = 0; i < kDates; ++i) JulianDateToSystemTime(&values()[i], &made[i], nullptr, 3);
    return made;
  }();
  return r;
}

void BM_ValueToFields(benchmark::State& state) {
  SYSTEMTIME t{};
  for (auto _ : state) {
    for (double value : values()) {
      JulianDateToSystemTime(&value, &t, nullptr, 3);
      benchmark::DoNotOptimize(t);
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(kDates));
}

void BM_FieldsToValue(benchmark::State& state) {
  double value = 0;
  for (auto _ : state) {
    for (const SYSTEMTIME& t : records()) {
      SystemTimeToJulianDate(&value, &t, nullptr);
      benchmark::DoNotOptimize(value);
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(kDates));
}

// The reference: the same split of day and time of day, the day through the
// standard civil calendar.
void BM_ChronoValueToFields(benchmark::State& state) {
  using namespace std::chrono;
  for (auto _ : state) {
    for (double value : values()) {
      const double serial = value - kDefaultOffset;
      const double day = std::floor(serial);
      const year_month_day date{sys_days{days{static_cast<int>(day) + kDaysFrom1970To18991230}}};
      const auto milliseconds = static_cast<long long>((serial - day) * 86400000.0 + 0.5);
      const hh_mm_ss<std::chrono::milliseconds> time{std::chrono::milliseconds{milliseconds}};
      benchmark::DoNotOptimize(date);
      benchmark::DoNotOptimize(time);
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(kDates));
}

void BM_ChronoFieldsToValue(benchmark::State& state) {
  using namespace std::chrono;
  double value = 0;
  for (auto _ : state) {
    for (const SYSTEMTIME& t : records()) {
      const sys_days day{year{t.wYear} / month{t.wMonth} / std::chrono::day{t.wDay}};
      const double seconds = (t.wHour * 60.0 + t.wMinute) * 60.0 + t.wSecond + t.wMilliseconds / 1000.0;
      value = static_cast<double>(day.time_since_epoch().count() - kDaysFrom1970To18991230) + kDefaultOffset + seconds / 86400.0;
      benchmark::DoNotOptimize(value);
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(kDates));
}

BENCHMARK(BM_ValueToFields)->Name("date_convert/JulianDateToSystemTime");
BENCHMARK(BM_ChronoValueToFields)->Name("date_convert/chrono_value_to_fields");
BENCHMARK(BM_FieldsToValue)->Name("date_convert/SystemTimeToJulianDate");
BENCHMARK(BM_ChronoFieldsToValue)->Name("date_convert/chrono_fields_to_value");

}  // namespace
