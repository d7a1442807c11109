// Parallel encoding of the full groups of a large input: contiguous chunks,
// one per worker, each written to its own part of the output.
#include "unicode/base64.h"

#include <system_error>
#include <thread>
#include <vector>

#ifdef _OPENMP
#  include <omp.h>
#endif

namespace kiln::unicode {

unsigned base64_worker_count() {
#ifdef _OPENMP
  const int threads = omp_get_max_threads();
  return threads > 0 ? static_cast<unsigned>(threads) : 1;
#else
  return std::thread::hardware_concurrency();
#endif
}

void encode_base64_groups_parallel(const unsigned char* src, size_t groups, char* dst, unsigned workers) {
  if (workers < 2 || groups < workers) {
    encode_base64_groups(src, groups, dst);
    return;
  }
  const size_t per_worker = groups / workers;
  const size_t extra = groups % workers;
  auto chunk_start = [&](unsigned index) { return index * per_worker + (index < extra ? index : extra); };

  std::vector<std::thread> threads;
  unsigned next = 1;
  try {
    threads.reserve(workers - 1);
    for (; next < workers; ++next) {
      const size_t begin = chunk_start(next);
      const size_t end = chunk_start(next + 1);
      threads.emplace_back(encode_base64_groups, src + 3 * begin, end - begin, dst + 4 * begin);
    }
  } catch (const std::exception&) {
    // No more threads to be had: the calling thread takes the chunks left.
  }
  encode_base64_groups(src, chunk_start(1), dst);
  for (unsigned index = next; index < workers; ++index) {
    const size_t begin = chunk_start(index);
    encode_base64_groups(src + 3 * begin, chunk_start(index + 1) - begin, dst + 4 * begin);
  }
  for (std::thread& thread : threads) thread.join();
}

}  // namespace kiln::unicode
