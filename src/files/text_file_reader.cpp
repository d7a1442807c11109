// Opening a text file as UTF-8 for the section readers.
#include "files/text_file_reader.h"
#include "platform/file_system.h"

#include "unicode/text_file_utf8.h"

#include <cstring>

namespace kiln::files {

namespace {

constexpr unsigned kUtf8MarkSize = 3;

}  // namespace

bool file_opens_for_reading(const char* path) {
  FILE* stream = kiln::platform::open_stream(path, "rb");
  if (stream == nullptr) return false;
  std::fgetc(stream);  // a folder opens, but its first read fails
  const bool readable = std::ferror(stream) == 0;
  std::fclose(stream);
  return readable;
}

Utf8TextFile::Utf8TextFile(const char* path, bool no_conversion) {
  if (std::strlen(path) >= sizeof context_.path) return;
  FILE* raw = kiln::platform::open_stream(path, "rb");
  if (raw == nullptr) return;
  std::strcpy(context_.path, path);
  context_.binary_reopen = 1;
  context_.fallback_mode = "rb";
  context_.no_conversion = no_conversion ? 1 : 0;
  stream_ = unicode::open_text_file_as_utf8(raw, &context_);
  // Unconverted text keeps every mark but the UTF-8 one.
  if (stream_ != nullptr && no_conversion && context_.mark_size != kUtf8MarkSize) std::fseek(stream_, 0, SEEK_SET);
}

Utf8TextFile::~Utf8TextFile() {
  if (stream_ != nullptr) unicode::close_text_file_as_utf8(stream_, &context_);
}

}  // namespace kiln::files
