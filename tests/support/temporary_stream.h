// A temporary binary stream for tests, removed when closed. The Windows C
// runtime names its temporary files from a counter of its own, so test
// programs running at once can pick the same name and one of them gets no
// stream; a later call tries the next name.
#pragma once

#include <cstdio>

namespace kiln_test {

inline std::FILE* temporary_stream() {
  for (int attempt = 0; attempt < 100; ++attempt) {
    if (std::FILE* stream = std::tmpfile()) return stream;
  }
  return nullptr;
}

}  // namespace kiln_test
