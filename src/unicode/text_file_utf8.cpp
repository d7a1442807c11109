// Any text file as a UTF-8 stream. UTF-8 files (and, on request, every file)
// are read in place past their mark; UTF-16 big-endian files are handed back
// as they are; everything else is converted into a temporary UTF-8 copy,
// which END deletes. UTF-16 little-endian text is converted into the copy a
// chunk at a time; code-page text is converted whole in memory.
#include "unicode/code_page_text.h"
#include "unicode/encoding_detect.h"
#include "platform/file_bytes.h"
#include "platform/file_system.h"
#include "unicode/global_text.h"
#include "unicode/text_file_utf8.h"
#include "unicode/utf16_stream_to_utf8.h"
#include "unicode/utf8_paths.h"

#include <kilnutil/unicode.h>

#include <cstring>
#include <string>
#include <vector>

namespace kiln::unicode {

using platform::stream_size;

namespace {

constexpr int kTempPathUnits = sizeof(TextFileToUTF8Context::temp_path) / sizeof(KILN_WCHAR);
constexpr unsigned char kUtf8Mark[] = {0xEF, 0xBB, 0xBF};

void set_temporary_path(TextFileToUTF8Context* context, const char* path) {
  context->temp_path[0] = 0;
  if (path != nullptr) utf8_to_utf16_buffer(context->temp_path, kTempPathUnits, path, -1);
}

std::string temporary_path_of(const TextFileToUTF8Context* context) {
  char path[3 * kTempPathUnits + 1];
  if (utf16_to_utf8_buffer(path, sizeof path, context->temp_path) <= 0) return {};
  return path;
}

// When no copy can be made, the file is reopened with the fallback mode.
// (The stream handed back is that reopened one: a stream already closed can't
// be handed out here, as its memory is gone.)
FILE* reopen_with_fallback(TextFileToUTF8Context* context, HGLOBAL block, FILE* stream) {
  if (block != nullptr) kiln::platform::global_free(block);
  if (stream != nullptr) std::fclose(stream);
  return open_utf8_path(context->path, context->fallback_mode);
}

// Reads what follows the mark into a zero-filled block two bytes longer.
HGLOBAL read_after_mark(FILE* stream, long long length, unsigned mark_size, size_t& size) {
  size = length > mark_size ? static_cast<size_t>(length - mark_size) : 0;
  HGLOBAL block = kiln::platform::global_alloc(GHND, size + 2);
  if (block == nullptr) return nullptr;
  LockedBlock locked(block);
  if (locked.data() == nullptr || !platform::seek_stream(stream, mark_size)) {
    locked.unlock();
    kiln::platform::global_free(block);
    return nullptr;
  }
  size = std::fread(locked.data(), 1, size, stream);
  return block;
}

const char* converted_copy_mode(const TextFileToUTF8Context* context) {
  if (context->binary_reopen) return "rb";
  return context->utf8_text_mode ? "rt, ccs=UTF-8" : "rt";
}

void discard_copy(TextFileToUTF8Context* context, FILE* copy, const std::string& path) {
  if (copy != nullptr) std::fclose(copy);
  platform::remove_file(path.c_str());
  context->temp_path[0] = 0;
}

// Creates the temporary copy, open for writing, with its path recorded in
// the context and the mark the context asks for written; null (nothing left
// behind) when no copy can be made.
FILE* start_copy(TextFileToUTF8Context* context, std::string& path) {
  FILE* copy = platform::create_temporary_file(platform::temporary_folder(), "VU8", path);
  set_temporary_path(context, copy != nullptr ? path.c_str() : nullptr);
  if (copy == nullptr || temporary_path_of(context) != path) {
    if (copy != nullptr) discard_copy(context, copy, path);
    context->temp_path[0] = 0;
    return nullptr;
  }
  context->mark_size = 0;
  if (context->write_mark) {
    std::fwrite(kUtf8Mark, 1, sizeof kUtf8Mark, copy);
    context->mark_size = sizeof kUtf8Mark;
  }
  return copy;
}

// Closes the written copy and the source and opens the copy for reading; a
// copy not written whole is deleted and null comes back.
FILE* finish_copy(TextFileToUTF8Context* context, FILE* copy, const std::string& path, bool written, FILE* stream) {
  const bool complete = std::fclose(copy) == 0 && written;
  if (!complete) discard_copy(context, nullptr, path);
  std::fclose(stream);
  context->converted_stream = complete ? open_utf8_path(path.c_str(), converted_copy_mode(context)) : nullptr;
  return context->converted_stream;
}

// Code-page text: converted whole in its block, then written to the copy.
FILE* copy_code_page_text(TextFileToUTF8Context* context, FILE* stream, long long length, unsigned mark_size) {
  size_t size = 0;
  HGLOBAL block = read_after_mark(stream, length, mark_size, size);
  if (block == nullptr) return reopen_with_fallback(context, nullptr, stream);
  int utf8_length = 0;
  if (size > 0) {
    utf8_length = convert_handle_text(&block, 0, -1) - 1;
    if (utf8_length < 1) return reopen_with_fallback(context, block, stream);
  }
  std::string path;
  FILE* copy = start_copy(context, path);
  if (copy == nullptr) return reopen_with_fallback(context, block, stream);
  size_t written = 0;
  if (utf8_length > 0) {
    LockedBlock text(block);
    if (text.data() != nullptr) written = std::fwrite(text.data(), 1, static_cast<size_t>(utf8_length), copy);
  }
  kiln::platform::global_free(block);
  return finish_copy(context, copy, path, written == static_cast<size_t>(utf8_length), stream);
}

// UTF-16 little-endian text: converted a chunk at a time straight into the
// copy, so the file is never held in memory whole.
FILE* copy_utf16_text(TextFileToUTF8Context* context, FILE* stream, long long length, unsigned mark_size) {
  if (!platform::seek_stream(stream, mark_size)) return reopen_with_fallback(context, nullptr, stream);
  std::string path;
  FILE* copy = start_copy(context, path);
  if (copy == nullptr) return reopen_with_fallback(context, nullptr, stream);
  const unsigned long long size = length > mark_size ? static_cast<unsigned long long>(length - mark_size) : 0;
  const StreamConversion result = utf16le_stream_to_utf8(stream, size, copy);
  if (result == StreamConversion::kConversionFailed) {
    discard_copy(context, copy, path);
    context->mark_size = static_cast<unsigned char>(mark_size);  // the file's own mark again
    return reopen_with_fallback(context, nullptr, stream);
  }
  return finish_copy(context, copy, path, result == StreamConversion::kOk, stream);
}

}  // namespace

FILE* open_text_file_as_utf8(FILE* stream, TextFileToUTF8Context* context) {
  if (context == nullptr || context->path[0] == '\0' || context->fallback_mode == nullptr || stream == nullptr) {
    return stream;
  }
  const unsigned max_bytes = detect_buffer_size_for_path(context->path);
  const unsigned code = detect_stream_encoding(stream, max_bytes, context->guess ? 0 : kDetectMarkOnly);
  const auto mark_size = static_cast<unsigned>(byte_order_mark_size(code));
  context->mark_size = static_cast<unsigned char>(mark_size);
  platform::seek_stream(stream, mark_size);
  const unsigned family = encoding_family(code);

  if (family == kEncodingUtf8 || context->no_conversion) {
    if (context->keep_mark) platform::seek_stream(stream, 0);
    if (!context->reopen_as_utf8) return stream;
    std::fclose(stream);
    return open_utf8_path(context->path, "rt, ccs=UTF-8");
  }
  platform::seek_stream(stream, 0);
  // Big-endian text is not converted.
  if (family == kEncodingUtf16Be) return stream;

  const long long length = stream_size(stream);
  std::fclose(stream);
  FILE* raw = open_utf8_path(context->path, "rb");
  if (raw == nullptr || length < 0) return reopen_with_fallback(context, nullptr, raw);
  if (family == kEncodingUtf16Le) return copy_utf16_text(context, raw, length, mark_size);
  return copy_code_page_text(context, raw, length, mark_size);
}

void close_text_file_as_utf8(FILE* stream, TextFileToUTF8Context* context) {
  if (stream != nullptr) std::fclose(stream);
  if (context == nullptr || stream == nullptr || stream != context->converted_stream) return;
  const std::string path = temporary_path_of(context);
  if (!path.empty()) platform::remove_file(path.c_str());
  context->converted_stream = nullptr;
  context->temp_path[0] = 0;
}

}  // namespace kiln::unicode
