// Scanning script text: the exposed search and statement splitting over a
// few megabytes of generated script, beside memchr and strchr over the same
// bytes (the physical reference for one pass over the text).
#include <kilnutil/text.h>

#include <benchmark/benchmark.h>

#include <cstring>
#include <string>
#include <vector>

namespace {

constexpr std::size_t kTextBytes = 4 << 20;

// Statements of the kind a script holds: assignments with numbers in all
// notations, calls, subscripts, quoted text, brace blocks and labels.
const std::string& script() {
  static const std::string text = [] {
    static const char* const kLines[] = {
        "x1 = sin(t[i]) * 2.5e-3 + col(A)[i] / 1.25;\n",
        "if (x1 > 0.5) {y = \"text; more, (and) [brackets]\"; z = f(a, b, 'c');}\n",
        "label1: n = n + 1; m[n][2] = {1, 2, 3}, {4, 5, 6};\n",
        "type -b \"Result: $(x1, %6.3f) for %(page.name$)\"; range rr = [Book1]Sheet1!col(B);\n",
        "for (int k = 0; k < 100; k++) { total += data[k] * 1e5 - offset; }\n",
        "string s$ = \"quoted \\\"escape\\\" inside\"; double d = 3.14159265358979;\n",
    };
    std::string t;
    t.reserve(kTextBytes + 200);
    for (std::size_t i = 0; t.size() < kTextBytes; ++i) t += kLines[i % std::size(kLines)];
    return t;
  }();
  return text;
}

void set_bytes(benchmark::State& state) {
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(script().size()));
}

// A character that occurs nowhere exposed, so each search reads the whole text.
constexpr int kAbsent = '@';

void BM_Memchr(benchmark::State& state) {
  const std::string& text = script();
  for (auto _ : state) benchmark::DoNotOptimize(std::memchr(text.data(), kAbsent, text.size()));
  set_bytes(state);
}
BENCHMARK(BM_Memchr);

void BM_Strchr(benchmark::State& state) {
  const std::string& text = script();
  for (auto _ : state) benchmark::DoNotOptimize(std::strchr(text.c_str(), kAbsent));
  set_bytes(state);
}
BENCHMARK(BM_Strchr);

void BM_ExposedSearch(benchmark::State& state) {
  const std::string& text = script();
  const auto flags = static_cast<unsigned>(state.range(0));
  for (auto _ : state) {
    int status = 0;
    benchmark::DoNotOptimize(KILNUTIL_exposed_char_pos_ex_loc_ex(text.c_str(), kAbsent, flags, &status, 0, nullptr));
  }
  set_bytes(state);
  state.SetLabel(flags & 0x40 ? "numbers not skipped" : "flags 0");
}
BENCHMARK(BM_ExposedSearch)->Arg(0)->Arg(0x40);

void BM_StrchrExposedMode(benchmark::State& state) {
  const std::string& text = script();
  for (auto _ : state) benchmark::DoNotOptimize(KILNUTIL_strchr(text.c_str(), kAbsent, KILNUTIL_STRCHR_EXPOSED));
  set_bytes(state);
}
BENCHMARK(BM_StrchrExposedMode);

// Copying the text into the buffer the splitter cuts: part of every split below.
void BM_CopyOnly(benchmark::State& state) {
  const std::string& text = script();
  std::vector<char> buffer(text.size() + 1);
  for (auto _ : state) {
    std::memcpy(buffer.data(), text.c_str(), text.size() + 1);
    benchmark::DoNotOptimize(buffer.data());
  }
  set_bytes(state);
}
BENCHMARK(BM_CopyOnly);

void BM_SplitStatements(benchmark::State& state) {
  const std::string& text = script();
  std::vector<char> buffer(text.size() + 1);
  long statements = 0;
  for (auto _ : state) {
    std::memcpy(buffer.data(), text.c_str(), text.size() + 1);
    for (char* p = buffer.data(); p != nullptr; ++statements) {
      char* first = nullptr;
      int status = 0;
      char* next = KILNUTIL_separate_one_statement(&first, p, &status);
      if (next != nullptr && status > 0) *next = static_cast<char>(status);
      p = next;
    }
  }
  set_bytes(state);
  state.counters["statements"] =
      benchmark::Counter(static_cast<double>(statements), benchmark::Counter::kAvgIterations);
}
BENCHMARK(BM_SplitStatements)->Unit(benchmark::kMillisecond);

}  // namespace

// Brace-free statements at growing sizes: the time per byte stays flat when
// a chain of calls reads the text once.
void BM_SplitBraceFree(benchmark::State& state) {
  std::string text;
  while (text.size() < static_cast<std::size_t>(state.range(0)))
    text += "x1 = sin(t[i]) * 2.5e-3 + \"a;b\"; n = n + 1;\n";
  std::vector<char> buffer(text.size() + 1);
  for (auto _ : state) {
    std::memcpy(buffer.data(), text.c_str(), text.size() + 1);
    for (char* p = buffer.data(); p != nullptr;) {
      char* first = nullptr;
      int status = 0;
      char* next = KILNUTIL_separate_one_statement(&first, p, &status);
      if (next != nullptr && status > 0) *next = static_cast<char>(status);
      p = next;
    }
  }
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(text.size()));
}
BENCHMARK(BM_SplitBraceFree)->Arg(16 << 10)->Arg(256 << 10);
