// Detection over an open stream or a file: reads the first bytes only.
#include "platform/file_system.h"
#include "unicode/encoding_detect.h"

#include <kilnutil/unicode.h>

#include <cstdio>
#include <cstdlib>

namespace kiln::unicode {

namespace {

// Restores a stream's position when it goes out of scope.
class PositionKeeper {
public:
  explicit PositionKeeper(FILE* stream) : stream_(stream), position_(platform::stream_position(stream)) {}
  ~PositionKeeper() {
    if (position_ >= 0) platform::seek_stream(stream_, position_);
  }
  PositionKeeper(const PositionKeeper&) = delete;
  PositionKeeper& operator=(const PositionKeeper&) = delete;

private:
  FILE* stream_;
  long long position_;
};

// The number of leading bytes to examine in a file of `length` bytes.
size_t bytes_to_examine(long long length, unsigned max_bytes, int flags) {
  long long count = length;
  if (max_bytes != 0 && count > static_cast<long long>(max_bytes)) count = max_bytes;
  if (!guessing_allowed(flags) && count > 4) count = 4;
  // The detector takes a 32-bit count; a whole file beyond that is cut.
  if (count > 0xFFFFFFFF) count = 0xFFFFFFFF;
  return static_cast<size_t>(count);
}

}  // namespace

unsigned detect_stream_encoding(FILE* stream, unsigned max_bytes, int flags) {
  if (stream == nullptr) return kEncodingNone;
  PositionKeeper keeper(stream);
  if (!platform::seek_stream_end(stream)) return kEncodingNone;
  const long long length = platform::stream_position(stream);
  if (length <= 0) return kEncodingNone;
  const size_t count = bytes_to_examine(length, max_bytes, flags);
  if (!platform::seek_stream(stream, 0)) return kEncodingNone;
  auto* bytes = static_cast<unsigned char*>(std::malloc(count));
  if (bytes == nullptr) return kEncodingNone;
  const size_t read = std::fread(bytes, 1, count, stream);
  const unsigned code = detect_encoding(bytes, read, flags);
  std::free(bytes);
  return code;
}

unsigned detect_file_encoding(const char* path, unsigned max_bytes, int flags) {
  if (path == nullptr) return kEncodingNone;
  FILE* stream = platform::open_stream(path, "rb");
  if (stream == nullptr) return kEncodingNone;
  const unsigned code = detect_stream_encoding(stream, max_bytes, flags);
  std::fclose(stream);
  return code;
}

}  // namespace kiln::unicode
