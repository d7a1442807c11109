#include "unicode/file_bytes.h"

#include <sys/types.h>

#include <new>

namespace kiln::unicode {

long long stream_size(FILE* stream) {
  const off_t position = ftello(stream);
  if (position < 0 || fseeko(stream, 0, SEEK_END) != 0) return -1;
  const off_t size = ftello(stream);
  fseeko(stream, position, SEEK_SET);
  return size;
}

ReadStatus read_whole_file(const char* path, FileBytes& bytes, size_t zero_bytes) {
  FILE* stream = path != nullptr ? std::fopen(path, "rb") : nullptr;
  if (stream == nullptr) return ReadStatus::kCantOpen;
  const long long size = stream_size(stream);
  ReadStatus status = ReadStatus::kOk;
  if (size < 0) {
    status = ReadStatus::kShortRead;
  } else if (size == 0) {
    status = ReadStatus::kEmpty;
  } else {
    bytes.size = static_cast<size_t>(size);
    bytes.data.reset(new (std::nothrow) unsigned char[bytes.size + zero_bytes]());
    if (bytes.data == nullptr) {
      status = ReadStatus::kNoMemory;
    } else if (std::fread(bytes.data.get(), 1, bytes.size, stream) != bytes.size) {
      status = ReadStatus::kShortRead;
    }
  }
  std::fclose(stream);
  return status;
}

}  // namespace kiln::unicode
