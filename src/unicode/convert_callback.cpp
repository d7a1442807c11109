// Code-page text to UTF-8 in a buffer the caller grows on request, with an
// optional byte limit that never splits a character.
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

int convert_within_limit(MbcsToUTF8CallbackBuffer* record, WideScratch& units, int unit_count,
                         unsigned needed) {
  Scratch<char> utf8;
  if (!utf8.reserve(needed) ||
      kiln::platform::wide_to_multibyte(kCodePageUtf8, units.data(), unit_count, utf8.data(), static_cast<int>(needed)) !=
          static_cast<int>(needed)) {
    return -1;
  }
  const unsigned kept = kept_within_limit(utf8.data(), needed - 1, record->byte_limit);
  if (!ensure_capacity(record, kept + 1)) return -1;
  std::memcpy(record->buffer, utf8.data(), kept);
  record->buffer[kept] = '\0';
  return static_cast<int>(kept);
}

}  // namespace

int KILNUTIL_UNICODE_mbcs_to_UTF8_callback(MbcsToUTF8CallbackBuffer* record, int code_page) {
  if (record == nullptr) return -1;
  if (record->buffer == nullptr || record->buffer[0] == '\0') return 0;
  WideScratch units;
  const int unit_count = to_wide(resolve_code_page(code_page), record->buffer, -1, units);
  if (unit_count == 0) return -1;
  const int needed = multibyte_size(kCodePageUtf8, units.data(), unit_count);
  if (needed <= 0) return -1;
  const auto needed_bytes = static_cast<unsigned>(needed);
  if (record->byte_limit != 0 && record->byte_limit < needed_bytes) {
    return convert_within_limit(record, units, unit_count, needed_bytes);
  }
  if (!ensure_capacity(record, needed_bytes)) return -1;
  const int written =
      kiln::platform::wide_to_multibyte(kCodePageUtf8, units.data(), unit_count, record->buffer, needed);
  return written == needed ? needed - 1 : -1;
}
