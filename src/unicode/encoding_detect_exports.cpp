// Encoding detection of buffers, streams and files: the exported forms (the
// buffer-size setting's accessor stays beside its state).
#include "unicode/encoding_detect.h"

#include <kilnutil/unicode.h>

#include <cstdio>

using namespace kiln::unicode;

extern "C" {

unsigned int KILNUTIL_DetectEncodingBuffer(const unsigned char* bytes, unsigned int count, int flags) {
  return detect_encoding(bytes, count, flags);
}

unsigned int KILNUTIL_DetectEncoding(FILE* stream, unsigned int max_bytes, int flags) {
  return detect_stream_encoding(stream, max_bytes, flags);
}

unsigned int KILNUTIL_DetectEncodingFile(const char* path, unsigned int max_bytes, int flags) {
  return detect_file_encoding(path, max_bytes, flags);
}

int KILNUTIL_GetBOMSize(unsigned int code) { return byte_order_mark_size(code); }

unsigned int KILNUTIL_DetectEncoding_GetBufSizeFromFilePath(const char* path) {
  return detect_buffer_size_for_path(path);
}

}  // extern "C"
