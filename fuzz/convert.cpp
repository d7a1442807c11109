// Any bytes through the buffer conversions, in UTF-8, 1252 and 932, with
// destinations sized exactly as a host sizes them: no read past a terminator,
// no write outside a destination, and the stated results.
#include "fuzz_support.h"

#include "platform/codepage.h"
#include "platform/host_system.h"
#include "unicode/code_page_direct.h"

#include <kilnutil/unicode.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace {

using fuzz_support::check;

// Whether the text's last byte may begin a character (in UTF-8 or a
// double-byte page) that the terminator would have to complete.
bool ends_with_a_start_byte(const char* text, int length) {
  return length > 0 && static_cast<unsigned char>(text[length - 1]) >= 0x80;
}

void mbcs_to_utf8_and_back(const char* text, int length, int code_page) {
  // Sized by asking first: unbounded conversion into a buffer of 3 bytes per input byte.
  std::vector<char> utf8(static_cast<size_t>(length) * 3 + 1);
  const int n = KILNUTIL_UNICODE_MBCS_to_UTF8(text, -1, utf8.data(), static_cast<int>(utf8.size()), code_page);
  check(n >= 0 && n < static_cast<int>(utf8.size()));
  // Wine's converters take the terminator into a character begun just
  // before it (Windows' end the character there), so that text comes back
  // without one.
  check(utf8[static_cast<size_t>(n)] == '\0' ||
        (kiln::platform::runs_under_wine() && ends_with_a_start_byte(text, length)));
  const int needed = KILNUTIL_UNICODE_UTF8_to_MBCS(utf8.data(), -1, nullptr, 0, code_page);
  std::vector<char> back(static_cast<size_t>(needed > 0 ? needed : 1));
  const int written =
      KILNUTIL_UNICODE_UTF8_to_MBCS(utf8.data(), -1, back.data(), static_cast<int>(back.size()), code_page);
  check(n == 0 ? written == 1 : written == needed);
  IsUTF8StringConvertibleToCodePage(utf8.data(), static_cast<unsigned>(code_page));
}

void utf8_to_utf16_and_back(const char* text, int length) {
  // One spare unit, as callers give for an explicit length.
  std::vector<KILN_WCHAR> units(static_cast<size_t>(length) + 2);
  const int capacity = static_cast<int>(units.size()) - 1;
  const int n = KILNUTIL_UNICODE_UTF8_to_UTF16_buffers_ex(units.data(), capacity, text, -1);
  check(n >= -1 && n < capacity);
  KILNUTIL_UNICODE_UTF8_to_UTF16_buffers_ex(units.data(), capacity, text, length);
  KILNUTIL_UNICODE_UTF8_to_UTF16_buffers_ex(units.data(), capacity, text, -1);
  std::vector<char> utf8(units.size() * 3 + 1);
  const int m = KILNUTIL_UNICODE_UTF16_to_UTF8_buffers(utf8.data(), static_cast<int>(utf8.size()), units.data());
  check(m >= 0 || n <= 0);
  KILNUTIL_UNICODE_UTF16LE_to_UTF16BE(units.data());
}

// The growable buffer: grows into a vector.
struct Growable {
  MbcsToUTF8CallbackBuffer record{};
  std::vector<char> storage;
  static int grow(MbcsToUTF8CallbackBuffer* record, unsigned needed) {
    auto* self = static_cast<Growable*>(record->reserved);
    self->storage.resize(needed);
    record->buffer = self->storage.data();
    record->capacity = needed;
    return 1;
  }
};

void growable(const char* text, int length, unsigned limit, int code_page) {
  Growable g;
  g.storage.assign(text, text + length + 1);
  g.record.reserved = &g;
  g.record.grow = &Growable::grow;
  g.record.byte_limit = limit;
  g.record.buffer = g.storage.data();
  g.record.capacity = static_cast<unsigned>(g.storage.size());
  const int n = KILNUTIL_UNICODE_mbcs_to_UTF8_callback(&g.record, code_page);
  if (n > 0) {
    check(g.record.buffer[n] == '\0');
    if (limit != 0) check(static_cast<unsigned>(n) + 1 <= limit);
  }
}

// Long text (the input repeated) through the direct code-page path and
// through UTF-16 step by step: the same bytes.
void direct_matches_two_step(const char* text, int length, unsigned code_page) {
  std::string repeated;
  while (repeated.size() < static_cast<size_t>(kiln::unicode::kDirectConversionMinimum))
    repeated.append(text, static_cast<size_t>(length));
  kiln::unicode::Scratch<char> direct;
  const int n = kiln::unicode::code_page_to_utf8_direct(code_page, repeated.c_str(), -1, direct);
  if (n < 0) return;
  const int units = kiln::platform::multibyte_to_wide(code_page, repeated.c_str(), -1, nullptr, 0);
  std::vector<KILN_WCHAR> wide(static_cast<size_t>(units));
  check(kiln::platform::multibyte_to_wide(code_page, repeated.c_str(), -1, wide.data(), units) == units);
  const int bytes = kiln::platform::wide_to_multibyte(65001, wide.data(), units, nullptr, 0);
  std::vector<char> utf8(static_cast<size_t>(bytes));
  kiln::platform::wide_to_multibyte(65001, wide.data(), units, utf8.data(), bytes);
  check(n == bytes && std::memcmp(direct.data(), utf8.data(), static_cast<size_t>(n)) == 0);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 1) return 0;
  const unsigned limit = data[0] & 0x3F;
  std::unique_ptr<char[]> text(new char[size]);
  std::memcpy(text.get(), data + 1, size - 1);
  text[size - 1] = '\0';
  const int length = static_cast<int>(std::strlen(text.get()));
  for (int code_page : {65001, 1252, 932}) {
    mbcs_to_utf8_and_back(text.get(), length, code_page);
    growable(text.get(), length, limit, code_page);
  }
  utf8_to_utf16_and_back(text.get(), length);
  if (length > 0) {
    for (unsigned code_page : {1252u, 1251u, 932u, 936u, 949u, 950u})
      direct_matches_two_step(text.get(), length, code_page);
  }
  return 0;
}
