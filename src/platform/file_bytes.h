// Whole files in memory: reading them with the failure that stopped the
// read, and the size of an open stream.
#pragma once

#include <cstddef>
#include <cstdio>
#include <memory>

namespace kiln::platform {

enum class ReadStatus { kOk, kCantOpen, kEmpty, kNoMemory, kShortRead };

struct FileBytes {
  std::unique_ptr<unsigned char[]> data;  // size bytes, then zero bytes
  size_t size = 0;
};

// Reads the whole file, followed in memory by `zero_bytes` zero bytes.
ReadStatus read_whole_file(const char* path, FileBytes& bytes, size_t zero_bytes = 0);

// The stream's size in bytes, or -1 when it can't be had; the position is kept.
long long stream_size(FILE* stream);

}  // namespace kiln::platform
