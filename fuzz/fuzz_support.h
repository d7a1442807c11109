// Helpers shared by the fuzz targets.
#pragma once

#include "support/temporary_stream.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace fuzz_support {

// A property that must hold for every input; a failure is a finding.
inline void check(bool condition) {
  if (!condition) std::abort();
}

// The input as a NUL-terminated text (bytes after an embedded NUL included).
inline std::string as_text(const std::uint8_t* data, std::size_t size) {
  return std::string(reinterpret_cast<const char*>(data), size);
}

// A stream that reads the input's bytes from the start: a temporary file,
// because standard C has no stream over memory. Null when none can be made.
inline std::FILE* stream_over(const void* data, std::size_t size) {
  std::FILE* stream = kiln_test::temporary_stream();
  if (stream == nullptr) return nullptr;
  if (std::fwrite(data, 1, size, stream) != size) {
    std::fclose(stream);
    return nullptr;
  }
  std::rewind(stream);
  return stream;
}

}  // namespace fuzz_support
