// Import scanning over a 50 MB comma-separated text: line counting, separator
// detection over every line, and token splitting, each beside a plain memchr
// loop over the same bytes in the same run. Throughput is reported in MB/s
// (bytes processed per second); the ratio to the memchr line count is the
// cost of reading characters whole and honouring quotes and brackets.
#include <kilnutil/text.h>

#include <benchmark/benchmark.h>

#include <cstring>
#include <string>
#include <vector>

namespace {

constexpr std::size_t kTextBytes = 50u << 20;

// A realistic delimited table: timestamps, names with non-ASCII letters,
// numbers, empty cells and an occasional quoted field holding a comma.
const std::string& table() {
  static const std::string text = [] {
    std::string t;
    t.reserve(kTextBytes + 128);
    t += "time,station,temperature_\xC2\xB0"
         "C,humidity_%,note\n";
    const char* stations[] = {"\xC3\x85lesund", "M\xC3\xBCnchen", "Bergen", "K\xC3\xB6ln"};
    for (unsigned i = 0; t.size() < kTextBytes; ++i) {
      char line[128];
      std::snprintf(line, sizeof line, "2024-%02u-%02u %02u:00,%s,%u.%u,%u,%s\n", 1 + i % 12, 1 + i % 28, i % 24,
                    stations[i % 4], i % 40, i % 10, 40 + i % 60,
                    i % 7 == 0 ? "\"wind, gusts\"" : (i % 3 == 0 ? "" : "clear"));
      t += line;
    }
    return t;
  }();
  return text;
}

// Calls split(line) with a writable copy of each line of the table; sums its results.
template <class Split>
long long over_lines(std::string& line, Split split) {
  const std::string& text = table();
  long long total = 0;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = text.find('\n', at);
    line.assign(text, at, end - at);
    total += split(line);
    at = end + 1;
  }
  return total;
}

void report_bytes(benchmark::State& state) {
  state.SetBytesProcessed(static_cast<long long>(state.iterations()) * static_cast<long long>(table().size()));
}

// The reference: line feeds counted with memchr.
void BM_MemchrLineCount(benchmark::State& state) {
  const std::string& text = table();
  for (auto _ : state) {
    long long lines = 1;
    for (const char* p = text.data();
         (p = static_cast<const char*>(std::memchr(p, '\n', text.data() + text.size() - p))); ++p) {
      ++lines;
    }
    benchmark::DoNotOptimize(lines);
  }
  report_bytes(state);
}
BENCHMARK(BM_MemchrLineCount)->Unit(benchmark::kMillisecond);

void BM_LineCountA(benchmark::State& state) {
  const std::string& text = table();
  for (auto _ : state) benchmark::DoNotOptimize(KILNUTIL_LineCountA(text.c_str()));
  report_bytes(state);
}
BENCHMARK(BM_LineCountA)->Unit(benchmark::kMillisecond);

void BM_LineCountW(benchmark::State& state) {
  static const std::u16string wide(table().begin(), table().end());  // bytes as units: same line structure
  for (auto _ : state) benchmark::DoNotOptimize(KILNUTIL_LineCountW(wide.c_str()));
  report_bytes(state);
}
BENCHMARK(BM_LineCountW)->Unit(benchmark::kMillisecond);

// Separator detection asked to check every line of the table: each line is
// cut, its comma tokens counted by the exposed search, and put back.
void BM_FindSeparatorAllLines(benchmark::State& state) {
  std::string text = table();
  const int lines = KILNUTIL_LineCountA(text.c_str()) - 1;
  for (auto _ : state) benchmark::DoNotOptimize(KILNUTILT_FindSeparator(text.data(), 0, lines));
  report_bytes(state);
}
BENCHMARK(BM_FindSeparatorAllLines)->Unit(benchmark::kMillisecond);

// Every line split into trimmed tokens, beside the same lines split at every
// comma by memchr (no quotes, no trimming).
void BM_SeparateTokensA(benchmark::State& state) {
  std::string line;
  std::vector<char*> list(16);
  for (auto _ : state) {
    benchmark::DoNotOptimize(over_lines(
        line, [&](std::string& text) { return KILNUTIL_SeparateStrToTokensA(text.data(), list.data(), ',', 15); }));
  }
  report_bytes(state);
}
BENCHMARK(BM_SeparateTokensA)->Unit(benchmark::kMillisecond);

void BM_MemchrSplit(benchmark::State& state) {
  std::string line;
  std::vector<char*> list(16);
  for (auto _ : state) {
    benchmark::DoNotOptimize(over_lines(line, [&](std::string& text) {
      char* p = text.data();
      char* stop = p + text.size();
      int n = 0;
      list[n++] = p;
      while (n < 15 && (p = static_cast<char*>(std::memchr(p, ',', stop - p)))) {
        *p++ = '\0';
        list[n++] = p;
      }
      return n;
    }));
  }
  report_bytes(state);
}
BENCHMARK(BM_MemchrSplit)->Unit(benchmark::kMillisecond);

}  // namespace
