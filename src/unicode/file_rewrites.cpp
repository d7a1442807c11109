#include "unicode/file_rewrites.h"
#include "platform/file_system.h"

#include "unicode/char_stream.h"
#include "unicode/code_page_text.h"
#include "platform/file_bytes.h"
#include "platform/file_replacement.h"

#include <kilnutil/unicode.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace kiln::unicode {

using platform::FileBytes;
using platform::read_whole_file;
using platform::ReadStatus;
using platform::replace_file;
using platform::ReplaceStatus;
using platform::stream_size;

namespace {

using platform::kCodePageUtf8;

constexpr unsigned char kUtf8Mark[] = {0xEF, 0xBB, 0xBF};

bool has_utf8_mark(const unsigned char* bytes, size_t size) {
  return size >= sizeof kUtf8Mark && std::memcmp(bytes, kUtf8Mark, sizeof kUtf8Mark) == 0;
}

int read_failure_code(ReadStatus status) {
  switch (status) {
    case ReadStatus::kCantOpen: return kRewriteCantOpen;
    case ReadStatus::kEmpty: return kRewriteEmptyFile;
    case ReadStatus::kNoMemory: return kRewriteNoMemoryForFile;
    case ReadStatus::kShortRead: return kRewriteShortRead;
    case ReadStatus::kOk: break;
  }
  return 0;
}

// The result of a conversion's rewrite.
int conversion_rewrite_code(ReplaceStatus status) {
  switch (status) {
    case ReplaceStatus::kDone: return 1;
    case ReplaceStatus::kShortWrite: return kRewriteShortWrite;
    case ReplaceStatus::kCantCreate:
    case ReplaceStatus::kVanished: break;
  }
  return kRewriteCantWrite;
}

// Whole-file conversion: UTF-8 after the mark, through UTF-16, into the code page.
int convert_in_memory(const char* path, unsigned code_page) {
  FileBytes file;
  if (const ReadStatus status = read_whole_file(path, file); status != ReadStatus::kOk)
    return read_failure_code(status);
  if (!has_utf8_mark(file.data.get(), file.size)) return kRewriteNoMark;
  if (file.size - 3 > 0x7FFFFFFF) return kRewriteNotUtf16Convertible;
  const char* text = reinterpret_cast<const char*>(file.data.get()) + 3;
  const int length = static_cast<int>(file.size - 3);
  const int unit_count = platform::multibyte_to_wide(kCodePageUtf8, text, length, nullptr, 0);
  if (unit_count <= 0) return kRewriteNotUtf16Convertible;
  Scratch<KILN_WCHAR> units;
  if (!units.reserve(static_cast<size_t>(unit_count))) return kRewriteNoMemoryForText;
  if (platform::multibyte_to_wide(kCodePageUtf8, text, length, units.data(), unit_count) != unit_count) {
    return kRewriteNotUtf16Convertible;
  }
  bool used_default = false;
  const int bytes = platform::wide_to_multibyte(code_page, units.data(), unit_count, nullptr, 0, "?", &used_default);
  if (bytes <= 0) return kRewriteCodePageFails;
  if (used_default) return 0;
  Scratch<char> converted;
  if (!converted.reserve(static_cast<size_t>(bytes))) return kRewriteNoMemoryForText;
  if (platform::wide_to_multibyte(code_page, units.data(), unit_count, converted.data(), bytes, "?", &used_default) !=
      bytes) {
    return kRewriteCodePageFails;
  }
  return conversion_rewrite_code(replace_file(path, {{converted.data(), static_cast<size_t>(bytes)}}));
}

// Output of the streaming conversion, grown without throwing.
class GrowingBytes {
public:
  ~GrowingBytes() { std::free(data_); }
  bool append(const char* bytes, size_t count) {
    if (size_ + count > capacity_ && !grow(size_ + count)) return false;
    std::memcpy(data_ + size_, bytes, count);
    size_ += count;
    return true;
  }
  bool grow(size_t needed) {
    const size_t capacity = std::max(needed, capacity_ + capacity_ / 2 + 4096);
    char* data = static_cast<char*>(std::realloc(data_, capacity));
    if (data == nullptr) return false;
    data_ = data;
    capacity_ = capacity;
    return true;
  }
  const char* data() const { return data_; }
  size_t size() const { return size_; }

private:
  char* data_ = nullptr;
  size_t size_ = 0;
  size_t capacity_ = 0;
};

constexpr int kConverted = 1;

// Character-at-a-time conversion of a large file: each character read as
// UTF-8 goes to the code page as one UTF-16 unit (its low 16 bits: characters
// above U+FFFF are not paired into surrogates). kConverted with the text in
// `output`, else the rewrite's result.
int convert_streaming(FILE* stream, unsigned code_page, long long size, GrowingBytes& output) {
  unsigned char mark[3];
  if (std::fread(mark, 1, 3, stream) != 3 || !has_utf8_mark(mark, 3)) return kRewriteNoMark;
  if (!output.grow(static_cast<size_t>(size - 3) + 1)) return kRewriteNoMemoryForText;
  for (;;) {
    const int character = read_utf8_char(stream, 0);
    if (character == -1) break;
    const auto unit = static_cast<KILN_WCHAR>(character & 0xFFFF);
    char bytes[4];
    bool used_default = false;
    const int count = platform::wide_to_multibyte(code_page, &unit, 1, bytes, 4, "?", &used_default);
    if (count <= 0) return kRewriteCodePageFails;
    if (used_default) return 0;
    if (!output.append(bytes, static_cast<size_t>(count))) return kRewriteNoMemoryForText;
  }
  if (std::ferror(stream)) return kRewriteShortRead;
  return kConverted;
}

}  // namespace

int convert_utf8_file_to_code_page(const char* path, int code_page, long long streaming_size) {
  FILE* stream = path != nullptr ? kiln::platform::open_stream(path, "rb") : nullptr;
  if (stream == nullptr) return kRewriteCantOpen;
  const long long size = stream_size(stream);
  int result;
  if (size < 0) {
    result = kRewriteShortRead;
  } else if (size == 0) {
    result = kRewriteEmptyFile;
  } else if (size >= streaming_size) {
    GrowingBytes output;
    result = convert_streaming(stream, resolve_code_page(code_page), size, output);
    // Closed before the replacement: Windows replaces no file that is open.
    std::fclose(stream);
    if (result != kConverted) return result;
    return conversion_rewrite_code(replace_file(path, {{output.data(), output.size()}}));
  } else {
    std::fclose(stream);
    return convert_in_memory(path, resolve_code_page(code_page));
  }
  std::fclose(stream);
  return result;
}

int insert_utf8_mark(const char* path, bool only_if_non_ascii) {
  FileBytes file;
  if (const ReadStatus status = read_whole_file(path, file); status != ReadStatus::kOk)
    return read_failure_code(status);
  const unsigned char* bytes = file.data.get();
  if (has_utf8_mark(bytes, file.size)) return 0;
  if (only_if_non_ascii && std::all_of(bytes, bytes + file.size, [](unsigned char b) { return b < 0x80; })) {
    return 1;
  }
  switch (replace_file(path, {{kUtf8Mark, sizeof kUtf8Mark}, {bytes, file.size}})) {
    case ReplaceStatus::kDone: return 2;
    case ReplaceStatus::kShortWrite: return kRewriteShortWrite;
    case ReplaceStatus::kCantCreate:
    case ReplaceStatus::kVanished: break;
  }
  return 1;  // the file could not be rewritten
}

}  // namespace kiln::unicode
