// The detector's UTF-8 test in GB/s on 1 MB of text, beside a plain
// byte-by-byte validator of the same rules over the same bytes.
#include "unicode/encoding_detect.h"

#include <kilnutil/unicode.h>

#include <benchmark/benchmark.h>

#include <string>

namespace {

constexpr size_t kTextBytes = 1 << 20;

std::string repeat_to_size(const std::string& unit) {
  std::string text;
  while (text.size() < kTextBytes) text += unit;
  return text;
}

const std::string& sample(int kind) {
  static const std::string texts[] = {
      repeat_to_size("The quick brown fox jumps over the lazy dog; x = sin(t) * 2.5e-3 + col(A)[i];\n"),
      // ASCII-heavy: one accented letter in a line of English.
      repeat_to_size("Measured at the caf\xC3\xA9 on the 3rd, 21.5 degrees, 1013 hPa, wind 4 m/s from west.\n"),
      repeat_to_size("\xE6\x97\xA5\xE6\x9C\xAC\xE8\xAA\x9E\xE3\x81\xAE\xE3\x83\x86\xE3\x82\xAD\xE3\x82\xB9\xE3\x83\x88"
                     "\xE3\x80\x82"),
  };
  return texts[kind];
}

const char* kKindNames[] = {"ascii", "ascii-heavy", "cjk"};

// The same test written out one byte at a time.
bool plain_validator(const unsigned char* p, size_t n) {
  for (size_t i = 0; i < n;) {
    const unsigned char lead = p[i++];
    if (lead == 0) return false;
    if (lead < 0x80) continue;
    int expected;
    if (lead >= 0xC2 && lead <= 0xDF) expected = 1;
    else if (lead >= 0xE0 && lead <= 0xEF) expected = 2;
    else if (lead >= 0xF0 && lead <= 0xF4) expected = 3;
    else return false;
    for (int k = 0; k < expected && i < n; ++k, ++i) {
      if ((p[i] & 0xC0) != 0x80) return false;
    }
  }
  return true;
}

void finish(benchmark::State& state, const std::string& text) {
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(text.size()));
  state.SetLabel(kKindNames[state.range(0)]);
}

void BM_DetectorUtf8Test(benchmark::State& state) {
  const std::string& text = sample(static_cast<int>(state.range(0)));
  const auto* bytes = reinterpret_cast<const unsigned char*>(text.data());
  for (auto _ : state) {
    benchmark::DoNotOptimize(bytes);
    benchmark::DoNotOptimize(kiln::unicode::utf8_verdict(bytes, text.size()));
  }
  finish(state, text);
}

void BM_DetectEncodingBuffer(benchmark::State& state) {
  const std::string& text = sample(static_cast<int>(state.range(0)));
  const auto* bytes = reinterpret_cast<const unsigned char*>(text.data());
  for (auto _ : state) {
    benchmark::DoNotOptimize(bytes);
    benchmark::DoNotOptimize(KILNUTIL_DetectEncodingBuffer(bytes, static_cast<unsigned>(text.size()), 0));
  }
  finish(state, text);
}

void BM_PlainValidator(benchmark::State& state) {
  const std::string& text = sample(static_cast<int>(state.range(0)));
  const auto* bytes = reinterpret_cast<const unsigned char*>(text.data());
  for (auto _ : state) {
    benchmark::DoNotOptimize(bytes);
    benchmark::DoNotOptimize(plain_validator(bytes, text.size()));
  }
  finish(state, text);
}

BENCHMARK(BM_DetectorUtf8Test)->DenseRange(0, 2);
BENCHMARK(BM_DetectEncodingBuffer)->DenseRange(0, 2);
BENCHMARK(BM_PlainValidator)->DenseRange(0, 2);

}  // namespace
