#include "platform/file_bytes.h"

#include "platform/file_system.h"

#include <new>

namespace kiln::platform {

long long stream_size(FILE* stream) {
  const long long position = stream_position(stream);
  if (position < 0 || !seek_stream_end(stream)) return -1;
  const long long size = stream_position(stream);
  seek_stream(stream, position);
  return size;
}

ReadStatus read_whole_file(const char* path, FileBytes& bytes, size_t zero_bytes) {
  FILE* stream = path != nullptr ? open_stream(path, "rb") : nullptr;
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

}  // namespace kiln::platform
