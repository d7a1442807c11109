// Base64 encoding and decoding on 1 KB, 64 KB and 16 MB, beside OpenSSL's
// EVP_EncodeBlock/EVP_DecodeBlock and a plain one-group-at-a-time loop over
// the same bytes. "1 thread" pins the worker count to one; "parallel" takes
// the OpenMP runtime's count (set OMP_NUM_THREADS=4 for the 16 MB case).
#include "unicode/base64.h"

#include <kilnutil/unicode.h>

#include <benchmark/benchmark.h>

#ifdef KILNUTIL_BENCH_HAVE_OPENSSL
#  include <openssl/evp.h>
#endif
#ifdef _OPENMP
#  include <omp.h>
#endif

#include <random>
#include <string>
#include <vector>

namespace {

const std::vector<unsigned char>& sample_bytes(size_t n) {
  static std::vector<unsigned char> bytes = [] {
    std::vector<unsigned char> b(16 << 20);
    std::mt19937 generator(42);
    for (auto& byte : b) byte = static_cast<unsigned char>(generator());
    return b;
  }();
  static std::vector<unsigned char> view;
  view.assign(bytes.begin(), bytes.begin() + static_cast<long>(n));
  return view;
}

constexpr char kAlphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

// The plain reference encoder: one group at a time, one character per lookup.
void scalar_encode(const unsigned char* src, size_t n, char* dst) {
  size_t i = 0;
  for (; i + 3 <= n; i += 3, dst += 4) {
    const unsigned v = (src[i] << 16) | (src[i + 1] << 8) | src[i + 2];
    dst[0] = kAlphabet[v >> 18];
    dst[1] = kAlphabet[(v >> 12) & 63];
    dst[2] = kAlphabet[(v >> 6) & 63];
    dst[3] = kAlphabet[v & 63];
  }
  if (i < n) {
    const unsigned v = (src[i] << 16) | ((i + 1 < n ? src[i + 1] : 0) << 8);
    dst[0] = kAlphabet[v >> 18];
    dst[1] = kAlphabet[(v >> 12) & 63];
    dst[2] = i + 1 < n ? kAlphabet[(v >> 6) & 63] : '=';
    dst[3] = '=';
  }
}

// The plain reference decoder: one character at a time, skipping what is
// outside the alphabet.
size_t scalar_decode(const char* src, size_t n, unsigned char* dst) {
  static const auto table = [] {
    std::vector<int> t(256, -1);
    for (int v = 0; v < 64; ++v) t[static_cast<unsigned char>(kAlphabet[v])] = v;
    return t;
  }();
  unsigned bits = 0;
  int pending = 0;
  size_t out = 0;
  for (size_t i = 0; i < n; ++i) {
    const int v = table[static_cast<unsigned char>(src[i])];
    if (v < 0) continue;
    bits = (bits << 6) | static_cast<unsigned>(v);
    if (++pending == 4) {
      dst[out++] = static_cast<unsigned char>(bits >> 16);
      dst[out++] = static_cast<unsigned char>(bits >> 8);
      dst[out++] = static_cast<unsigned char>(bits);
      pending = 0;
      bits = 0;
    }
  }
  return out;
}

// Pins the library's worker count for one benchmark.
class Workers {
public:
  explicit Workers(bool parallel) {
#ifdef _OPENMP
    previous_ = omp_get_max_threads();
    if (!parallel) omp_set_num_threads(1);
#else
    (void)parallel;
#endif
  }
  ~Workers() {
#ifdef _OPENMP
    omp_set_num_threads(previous_);
#endif
  }

private:
  int previous_ = 1;
};

void finish(benchmark::State& state, size_t bytes) {
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(bytes));
}

std::string encoded_sample(size_t n) {
  const auto& bytes = sample_bytes(n);
  std::string text(static_cast<size_t>(KILNUTIL_encode_base64(bytes.data(), static_cast<int>(n), nullptr)), '\0');
  KILNUTIL_encode_base64(bytes.data(), static_cast<int>(n), text.data());
  return text;
}

void BM_EncodeLibrary(benchmark::State& state) {
  const auto n = static_cast<size_t>(state.range(0));
  const auto bytes = sample_bytes(n);
  Workers workers(state.range(1) != 0);
  std::string out(n / 3 * 4 + 8, '\0');
  for (auto _ : state) {
    benchmark::DoNotOptimize(KILNUTIL_encode_base64(bytes.data(), static_cast<int>(n), out.data()));
    benchmark::ClobberMemory();
  }
  state.SetLabel(state.range(1) ? "parallel" : "1 thread");
  finish(state, n);
}

void BM_EncodeScalar(benchmark::State& state) {
  const auto n = static_cast<size_t>(state.range(0));
  const auto bytes = sample_bytes(n);
  std::string out(n / 3 * 4 + 8, '\0');
  for (auto _ : state) {
    scalar_encode(bytes.data(), n, out.data());
    benchmark::ClobberMemory();
  }
  finish(state, n);
}

void BM_DecodeLibrary(benchmark::State& state) {
  const std::string text = encoded_sample(static_cast<size_t>(state.range(0)));
  std::vector<unsigned char> out(text.size());
  for (auto _ : state) {
    benchmark::DoNotOptimize(KILNUTIL_decode_base64(text.data(), static_cast<int>(text.size()), out.data()));
    benchmark::ClobberMemory();
  }
  finish(state, text.size());
}

void BM_DecodeScalar(benchmark::State& state) {
  const std::string text = encoded_sample(static_cast<size_t>(state.range(0)));
  std::vector<unsigned char> out(text.size());
  for (auto _ : state) {
    benchmark::DoNotOptimize(scalar_decode(text.data(), text.size(), out.data()));
    benchmark::ClobberMemory();
  }
  finish(state, text.size());
}

#ifdef KILNUTIL_BENCH_HAVE_OPENSSL
void BM_EncodeOpenSSL(benchmark::State& state) {
  const auto n = static_cast<size_t>(state.range(0));
  const auto bytes = sample_bytes(n);
  std::vector<unsigned char> out(n / 3 * 4 + 8);
  for (auto _ : state) {
    benchmark::DoNotOptimize(EVP_EncodeBlock(out.data(), bytes.data(), static_cast<int>(n)));
    benchmark::ClobberMemory();
  }
  finish(state, n);
}

void BM_DecodeOpenSSL(benchmark::State& state) {
  const std::string text = encoded_sample(static_cast<size_t>(state.range(0)));
  std::vector<unsigned char> out(text.size());
  for (auto _ : state) {
    benchmark::DoNotOptimize(EVP_DecodeBlock(out.data(), reinterpret_cast<const unsigned char*>(text.data()),
                                             static_cast<int>(text.size())));
    benchmark::ClobberMemory();
  }
  finish(state, text.size());
}
BENCHMARK(BM_EncodeOpenSSL)->Arg(1 << 10)->Arg(64 << 10)->Arg(16 << 20);
BENCHMARK(BM_DecodeOpenSSL)->Arg(1 << 10)->Arg(64 << 10)->Arg(16 << 20);
#endif

// The thread split on its own: the full groups of 16 MB encoded by the plain
// loop on one thread and split across the runtime's worker count, which
// shows what the split gains when the work is bound by computation rather
// than by memory bandwidth.
void scalar_groups(const unsigned char* src, size_t groups, char* dst) { scalar_encode(src, groups * 3, dst); }

void BM_EncodeSplitScalarKernel(benchmark::State& state) {
  const auto n = static_cast<size_t>(state.range(0));
  const auto bytes = sample_bytes(n);
  std::string out(n / 3 * 4 + 8, '\0');
  const unsigned workers = state.range(1) ? kiln::unicode::base64_worker_count() : 1;
  for (auto _ : state) {
    kiln::unicode::encode_base64_groups_parallel(bytes.data(), n / 3, out.data(), workers, scalar_groups);
    benchmark::ClobberMemory();
  }
  state.SetLabel(std::to_string(workers) + " workers");
  finish(state, n);
}

BENCHMARK(BM_EncodeSplitScalarKernel)->Args({16 << 20, 0})->Args({16 << 20, 1})->UseRealTime();
BENCHMARK(BM_EncodeLibrary)->ArgsProduct({{1 << 10, 64 << 10, 16 << 20}, {0}})->Args({16 << 20, 1})->UseRealTime();
BENCHMARK(BM_EncodeScalar)->Arg(1 << 10)->Arg(64 << 10)->Arg(16 << 20);
BENCHMARK(BM_DecodeLibrary)->Arg(1 << 10)->Arg(64 << 10)->Arg(16 << 20);
BENCHMARK(BM_DecodeScalar)->Arg(1 << 10)->Arg(64 << 10)->Arg(16 << 20);

}  // namespace
