// Code-page text to UTF-8 in MB/s (Western 1252 and Japanese 932 text of
// 256 KB), beside glibc's iconv converting the same bytes.
#include <kilnutil/unicode.h>

#include <benchmark/benchmark.h>

#include <iconv.h>

#include <string>
#include <vector>

namespace {

constexpr size_t kTextBytes = 256 << 10;

std::string repeat_to_size(const std::string& unit) {
  std::string text;
  while (text.size() < kTextBytes) text += unit;
  return text;
}

struct Sample {
  int code_page;
  const char* iconv_name;
  std::string text;
};

const Sample& sample(int kind) {
  static const Sample samples[] = {
      {1252, "CP1252",
       repeat_to_size("Caf\xE9 cr\xE8me br\xFBl\xE9"
                      "e, na\xEF"
                      "ve fa\xE7"
                      "ade, \xFC"
                      "ber Stra\xDF"
                      "e: 21.5 \xB0"
                      "C\r\n")},
      {932, "CP932",
       repeat_to_size("\x93\xFA\x96\x7B\x8C\xEA\x82\xCC\x83\x65\x83\x4C\x83\x58\x83\x67\x81\x42 data 123\r\n")},
  };
  return samples[kind];
}

void finish(benchmark::State& state, const Sample& s) {
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(s.text.size()));
  state.SetLabel(s.iconv_name);
}

void BM_MbcsToUtf8Library(benchmark::State& state) {
  const Sample& s = sample(static_cast<int>(state.range(0)));
  std::vector<char> out(s.text.size() * 3 + 1);
  for (auto _ : state) {
    const int n =
        KILNUTIL_UNICODE_MBCS_to_UTF8(s.text.c_str(), -1, out.data(), static_cast<int>(out.size()), s.code_page);
    if (n <= 0) state.SkipWithError("conversion failed");
    benchmark::DoNotOptimize(n);
  }
  finish(state, s);
}

void BM_MbcsToUtf8Iconv(benchmark::State& state) {
  const Sample& s = sample(static_cast<int>(state.range(0)));
  iconv_t converter = iconv_open("UTF-8", s.iconv_name);
  std::vector<char> out(s.text.size() * 3 + 1);
  for (auto _ : state) {
    iconv(converter, nullptr, nullptr, nullptr, nullptr);
    char* in = const_cast<char*>(s.text.data());
    size_t in_left = s.text.size();
    char* o = out.data();
    size_t out_left = out.size();
    if (iconv(converter, &in, &in_left, &o, &out_left) == static_cast<size_t>(-1)) state.SkipWithError("iconv failed");
    benchmark::DoNotOptimize(o);
  }
  iconv_close(converter);
  finish(state, s);
}

BENCHMARK(BM_MbcsToUtf8Library)->DenseRange(0, 1);
BENCHMARK(BM_MbcsToUtf8Iconv)->DenseRange(0, 1);

}  // namespace
