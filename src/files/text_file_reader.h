// A text file opened for reading as UTF-8 through the library's protocol
// (converted copy for UTF-16 and code-page text), closed when the object goes.
#pragma once

#include <kilnutil/unicode.h>

#include <cstdio>

namespace kiln::files {

// Whether the file exists and opens for reading.
bool file_opens_for_reading(const char* path);

class Utf8TextFile {
public:
  // no_conversion: the file's bytes as they are, past a UTF-8 mark only.
  Utf8TextFile(const char* path, bool no_conversion);
  ~Utf8TextFile();
  Utf8TextFile(const Utf8TextFile&) = delete;
  Utf8TextFile& operator=(const Utf8TextFile&) = delete;

  // Positioned at the start of the text; null when the file can't be read.
  FILE* stream() const { return stream_; }

private:
  TextFileToUTF8Context context_{};
  FILE* stream_ = nullptr;
};

}  // namespace kiln::files
