// Where the preamble of a sectioned text file ends: a stricter scan than the
// header test, on bytes.
#pragma once

#include <cstdio>

namespace kiln::files {

// Reads the stream from its position and returns the preamble's length in
// bytes: up to the start of the first header line that holds nothing
// printable but "[name]" and is followed by at least one byte; else up to the
// end of the file or its first byte 0xFF.
long long preamble_length(FILE* stream);

}  // namespace kiln::files
