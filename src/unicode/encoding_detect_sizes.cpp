// How many leading bytes of a file the detector examines, by the file's
// extension: three process-wide counts with their accessor.
#include "frame/relaxed.h"
#include "unicode/ascii_case.h"
#include "unicode/encoding_detect.h"

#include <kilnutil/unicode.h>

#include <cstdint>
#include <cstring>

namespace {

enum BufferSizeKind { kKindCsv = 0, kKindTxt = 1, kKindOther = 2, kKindCount = 3 };

kiln::frame::Relaxed<uint64_t> g_detect_buffer_sizes[kKindCount] = {51200, 51200, 51200};

// double to unsigned 64-bit as the host's runtime converts it: values of 2^63
// and more lose 2^63 and get the top bit; what no integer holds (NaN, 2^64 and
// more) becomes the "integer indefinite" 2^63.
uint64_t to_unsigned_64(double value) {
  constexpr double kTwoTo63 = 9223372036854775808.0;
  constexpr uint64_t kTopBit = uint64_t{1} << 63;
  if (value < kTwoTo63) return static_cast<uint64_t>(static_cast<int64_t>(value));
  if (value < 2.0 * kTwoTo63) return static_cast<uint64_t>(static_cast<int64_t>(value - kTwoTo63)) | kTopBit;
  return kTopBit;
}

int kind_of_path(const char* path) {
  if (path == nullptr) return kKindOther;
  const char* dot = std::strrchr(path, '.');
  if (dot == nullptr) return kKindOther;
  const char* backslash = std::strrchr(path, '\\');
  const char* slash = std::strrchr(path, '/');
  if ((backslash != nullptr && dot < backslash) || (slash != nullptr && dot < slash)) return kKindOther;
  if (kiln::unicode::equal_ignoring_ascii_case(dot, ".CSV")) return kKindCsv;
  if (kiln::unicode::equal_ignoring_ascii_case(dot, ".TXT")) return kKindTxt;
  return kKindOther;
}

}  // namespace

namespace kiln::unicode {

unsigned detect_buffer_size_for_path(const char* path) {
  // The count as the getter hands it out (a double), truncated to 32 bits.
  const auto count = static_cast<double>(g_detect_buffer_sizes[kind_of_path(path)].load());
  return static_cast<unsigned>(to_unsigned_64(count));
}

}  // namespace kiln::unicode

int KILNUTIL_DetectEncoding_GetSet_BufferSize(int set, double* value, int kind) {
  if (value == nullptr) return -1;
  if (set != 0 && *value < 0) return -1;
  if (kind < 0 || kind >= kKindCount) return -1;
  if (set != 0) {
    g_detect_buffer_sizes[kind].store(to_unsigned_64(*value));
  } else {
    *value = static_cast<double>(g_detect_buffer_sizes[kind].load());
  }
  return 0;
}
