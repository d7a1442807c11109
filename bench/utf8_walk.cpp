// Walking and measuring UTF-8 text, beside a plain character-by-character
// loop of the same rule and the C library's strlen over the same bytes.
#include <kilnutil/unicode.h>

#include <benchmark/benchmark.h>

#include <cstring>
#include <string>

namespace {

constexpr std::size_t kTextBytes = 1 << 20;

std::string repeat_to_size(const std::string& unit) {
  std::string text;
  text.reserve(kTextBytes + unit.size());
  while (text.size() < kTextBytes) text += unit;
  return text;
}

const std::string& sample(int kind) {
  static const std::string texts[] = {
      repeat_to_size("The quick brown fox jumps over the lazy dog; x = sin(t) * 2.5e-3 + col(A)[i];\n"),
      repeat_to_size("Caf\xC3\xA9 cr\xC3\xA8me br\xC3\xBBl\xC3\xA9"
                     "e, na\xC3\xAFve fa\xC3\xA7"
                     "ade, \xC3\xBC"
                     "ber Stra\xC3\x9F"
                     "e. "),
      repeat_to_size("\xE6\x97\xA5\xE6\x9C\xAC\xE8\xAA\x9E\xE3\x81\xAE\xE3\x83\x86\xE3\x82\xAD\xE3\x82\xB9\xE3\x83\x88"
                     "\xE3\x80\x82"),
      repeat_to_size("\xF0\x9F\x98\x80\xF0\x9F\x8E\x89\xF0\x9F\x9A\x80 "),
  };
  return texts[kind];
}

const char* kKindNames[] = {"ascii", "latin", "cjk", "emoji"};

// The advance rule, one character at a time: the reference result.
int reference_length(const char* s) {
  const auto* p = reinterpret_cast<const unsigned char*>(s);
  int count = 0;
  while (*p != 0) {
    if (p[0] < 0x80 || p[1] == 0) {
      p += 1;
    } else if (!(p[0] & 0x20) || p[2] == 0) {
      p += 2;
    } else if (!(p[0] & 0x10)) {
      p += 3;
    } else {
      p += p[3] != 0 ? 4 : 3;
    }
    ++count;
  }
  return count;
}

void set_label_and_bytes(benchmark::State& state, const std::string& text) {
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(text.size()));
  state.SetLabel(kKindNames[state.range(0)]);
}

void BM_StrLength(benchmark::State& state) {
  const std::string& text = sample(static_cast<int>(state.range(0)));
  const int expected = reference_length(text.c_str());
  for (auto _ : state) {
    const char* s = text.c_str();
    benchmark::DoNotOptimize(s);
    const int n = KILNUTIL_UNICODE_UTF8_StrLength(s);
    if (n != expected) state.SkipWithError("length differs from the character-by-character rule");
    benchmark::DoNotOptimize(n);
  }
  set_label_and_bytes(state, text);
}

void BM_ReferenceLoop(benchmark::State& state) {
  const std::string& text = sample(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    const char* s = text.c_str();
    benchmark::DoNotOptimize(s);
    benchmark::DoNotOptimize(reference_length(s));
  }
  set_label_and_bytes(state, text);
}

void BM_Strlen(benchmark::State& state) {
  const std::string& text = sample(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    const char* s = text.c_str();
    benchmark::DoNotOptimize(s);  // keeps the compiler from hoisting strlen out of the loop
    benchmark::DoNotOptimize(std::strlen(s));
  }
  set_label_and_bytes(state, text);
}

void BM_AdvStrWalk(benchmark::State& state) {
  const std::string& text = sample(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    int count = 0;
    for (const char* p = text.c_str(); *p != '\0'; p = KILNUTIL_UNICODE_UTF8_adv_str(p)) ++count;
    benchmark::DoNotOptimize(count);
  }
  set_label_and_bytes(state, text);
}

void BM_DecodeWalk(benchmark::State& state) {
  const std::string& text = sample(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    unsigned sum = 0;
    for (const char* p = text.c_str(); *p != '\0';) sum += KILNUTIL_UNICODE_UTF8_get_char_adv_str(&p);
    benchmark::DoNotOptimize(sum);
  }
  set_label_and_bytes(state, text);
}

BENCHMARK(BM_StrLength)->DenseRange(0, 3);
BENCHMARK(BM_ReferenceLoop)->DenseRange(0, 3);
BENCHMARK(BM_Strlen)->DenseRange(0, 3);
BENCHMARK(BM_AdvStrWalk)->DenseRange(0, 3);
BENCHMARK(BM_DecodeWalk)->DenseRange(0, 3);

}  // namespace
