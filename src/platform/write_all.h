// Writing a whole byte range through a call that may write only part of it:
// the loop both file backends share. write_some(bytes, size) returns how many
// bytes it wrote, 0 or less on failure.
#pragma once

#include <cstddef>

namespace kiln::platform {

template <class WriteSome>
bool write_all(const char* bytes, std::size_t size, WriteSome write_some) {
  while (size > 0) {
    const long long written = write_some(bytes, size);
    if (written <= 0) return false;
    bytes += written;
    size -= static_cast<std::size_t>(written);
  }
  return true;
}

}  // namespace kiln::platform
