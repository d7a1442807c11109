// Code-page text to UTF-8 in a buffer the caller grows on request, with an
// optional byte limit that never splits a character.
#include "unicode/code_page_direct.h"
#include "unicode/code_page_text.h"
#include "unicode/utf8.h"

#include <kilnutil/unicode.h>

#include <cstring>

using namespace kiln::unicode;
using kiln::platform::kCodePageUtf8;

namespace {

// Makes the record's buffer hold at least `needed` bytes.
bool ensure_capacity(MbcsToUTF8CallbackBuffer* record, unsigned needed) {
  if (record->capacity >= needed && record->buffer != nullptr) return true;
  if (record->grow == nullptr || record->grow(record, needed) == 0) return false;
  return record->buffer != nullptr && record->capacity >= needed;
}

// Bytes of whole characters at the start of `text` (`size` bytes before its
// NUL) that leave room for a NUL within `limit`: walks back from the end one
// character at a time until a character starts below the limit, and keeps
// what precedes that character.
unsigned kept_within_limit(const char* text, unsigned size, unsigned limit) {
  const char* position = text + size;
  while (position > text) {
    position = utf8_go_back(position);
    if (position < text) return 0;
    if (static_cast<unsigned>(position - text) < limit) break;
  }
  return static_cast<unsigned>(position - text);
}

// The UTF-8 form of the record's text with its NUL: the byte count, or -1.
int convert_to_scratch(const char* text, unsigned page, Scratch<char>& utf8) {
  if (const int direct = code_page_to_utf8_direct(page, text, -1, utf8); direct >= 0) return direct > 0 ? direct : -1;
  WideScratch units;
  const int unit_count = to_wide(page, text, -1, units);
  if (unit_count == 0) return -1;
  const int needed = multibyte_size(kCodePageUtf8, units.data(), unit_count);
  if (needed <= 0 || !utf8.reserve(static_cast<size_t>(needed))) return -1;
  return kiln::platform::wide_to_multibyte(kCodePageUtf8, units.data(), unit_count, utf8.data(), needed) == needed
             ? needed
             : -1;
}

}  // namespace

int KILNUTIL_UNICODE_mbcs_to_UTF8_callback(MbcsToUTF8CallbackBuffer* record, int code_page) {
  if (record == nullptr) return -1;
  if (record->buffer == nullptr || record->buffer[0] == '\0') return 0;
  Scratch<char> utf8;
  const int needed = convert_to_scratch(record->buffer, resolve_code_page(code_page), utf8);
  if (needed <= 0) return -1;
  auto length = static_cast<unsigned>(needed - 1);
  if (record->byte_limit != 0 && record->byte_limit < static_cast<unsigned>(needed)) {
    length = kept_within_limit(utf8.data(), length, record->byte_limit);
  }
  if (!ensure_capacity(record, length + 1)) return -1;
  std::memcpy(record->buffer, utf8.data(), length);
  record->buffer[length] = '\0';
  return static_cast<int>(length);
}
