// Helpers shared by the fuzz targets.
#pragma once

#include <cstddef>
#include <cstdint>
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

}  // namespace fuzz_support
