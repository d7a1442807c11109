// KILNUTIL_GetFileSectionEx's three reading modes over a file opened as UTF-8.
#include "files/section_reader.h"

#include "files/growing_text.h"
#include "files/preamble_scan.h"
#include "files/section_header.h"
#include "files/text_file_reader.h"
#include "platform/file_bytes.h"
#include "platform/global_memory.h"

#include <kilnutil/files.h>

#include <cstring>

namespace kiln::files {

namespace {

constexpr int kLineBytes = KILNUTIL_SECTION_LINE_BYTES;

void set_if_given(unsigned* out, unsigned value) {
  if (out != nullptr) *out = value;
}

// Named reading's lines: at most 1,199 bytes each (a longer line comes as
// several), ending at a NUL byte of the file's text.
class LineReader {
public:
  explicit LineReader(FILE* stream) : stream_(stream) {}
  bool next() { return std::fgets(line_, kLineBytes, stream_) != nullptr; }
  const char* line() const { return line_; }
  // The header name of the line, or null; the line itself is kept.
  const char* header_name() {
    if (find_section_header(line_, nullptr) == nullptr) return nullptr;
    std::memcpy(scratch_, line_, sizeof scratch_);
    return section_name_in_line(scratch_);
  }

private:
  FILE* stream_;
  char line_[kLineBytes];
  char scratch_[kLineBytes];
};

HGLOBAL read_named_section(FILE* stream, const char* name, unsigned* status, unsigned* line_index) {
  LineReader lines(stream);
  unsigned header_line = 0;
  for (;; ++header_line) {
    if (!lines.next()) {
      set_if_given(status, KILNUTIL_SECTION_NOT_FOUND);
      return nullptr;
    }
    const char* header = lines.header_name();
    if (header != nullptr && same_section_name(header, name)) break;
  }
  set_if_given(line_index, header_line);
  GrowingText text;
  while (lines.next() && lines.header_name() == nullptr) {
    if (!text.append(lines.line(), std::strlen(lines.line()))) return nullptr;
  }
  return text.release();
}

// A movable zero-filled block holding the next `length` bytes of the stream
// and a NUL; null on a short read.
HGLOBAL read_block(FILE* stream, long long length) {
  if (length <= 0) return nullptr;
  const auto size = static_cast<size_t>(length);
  HGLOBAL block = kiln::platform::global_alloc(GHND, size + 1);
  if (block == nullptr) return nullptr;
  void* data = kiln::platform::global_lock(block);
  const bool complete = data != nullptr && std::fread(data, 1, size, stream) == size;
  if (data != nullptr) kiln::platform::global_unlock(block);
  if (complete) return block;
  kiln::platform::global_free(block);
  return nullptr;
}

HGLOBAL read_preamble(FILE* stream) {
  const long start = std::ftell(stream);
  const long long length = preamble_length(stream);
  if (start < 0 || std::fseek(stream, start, SEEK_SET) != 0) return nullptr;
  return read_block(stream, length);
}

// The whole text after the mark; an empty file still gives a block with just
// the NUL.
HGLOBAL read_whole_text(FILE* stream) {
  const long start = std::ftell(stream);
  const long long size = platform::stream_size(stream);
  if (start < 0 || size < 0) return nullptr;
  const long long length = size - start;
  if (length > 0) return read_block(stream, length);
  return kiln::platform::global_alloc(GHND, 1);
}

}  // namespace

HGLOBAL read_file_section(const char* path, const char* name, unsigned* status, unsigned* line_index, unsigned flags) {
  const bool named = name != nullptr && *name != '\0';
  if (named) {
    set_if_given(line_index, KILNUTIL_SECTION_NO_LINE);
    set_if_given(status, KILNUTIL_SECTION_OK);
  }
  if (!file_opens_for_reading(path)) {
    if (named) set_if_given(status, KILNUTIL_SECTION_CANT_OPEN);
    return nullptr;
  }
  const Utf8TextFile file(path, (flags & KILNUTIL_SECTION_NO_CONVERSION) != 0);
  if (file.stream() == nullptr) return nullptr;
  if (named) return read_named_section(file.stream(), name, status, line_index);
  if (name != nullptr) return read_preamble(file.stream());
  return read_whole_text(file.stream());
}

}  // namespace kiln::files
