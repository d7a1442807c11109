// Conversions between code-page text, UTF-8 and UTF-16 in caller buffers.
// Their results differ on purpose (count minus one, 1 for an empty source,
// -1 for "does not fit"): callers depend on each one as it stands.
#include "unicode/code_page_direct.h"
#include "unicode/code_page_text.h"

#include <cstring>

namespace kiln::unicode {

using platform::kCodePageUtf8;

namespace {

// A source counts as empty when it is null, has length 0 or starts with a NUL.
bool is_empty_source(const char* src, int length) { return src == nullptr || length == 0 || *src == '\0'; }

// The direct path of long text in the Windows single- and double-byte pages.
int mbcs_to_utf8_direct(unsigned page, const char* src, int src_len, char* dst, int dst_size) {
  Scratch<char> utf8;
  const int count = code_page_to_utf8_direct(page, src, src_len, utf8);
  if (count < 0) return -1;
  if (count == 0 || (dst_size > 0 && count > dst_size) || dst == nullptr) return 0;
  std::memcpy(dst, utf8.data(), static_cast<size_t>(count));
  return count - 1;
}

int mbcs_to_utf8(const char* src, int src_len, char* dst, int dst_size, int code_page) {
  const unsigned page = resolve_code_page(code_page);
  if (const int direct = mbcs_to_utf8_direct(page, src, src_len, dst, dst_size); direct >= 0) return direct;
  WideScratch units;
  const int unit_count = to_wide(page, src, src_len, units);
  if (unit_count == 0) return 0;
  const int count = multibyte_size(kCodePageUtf8, units.data(), unit_count);
  if (count <= 0 || (dst_size > 0 && count > dst_size)) return 0;
  const int written = platform::wide_to_multibyte(kCodePageUtf8, units.data(), unit_count, dst, count);
  return written == count ? count - 1 : 0;
}

}  // namespace

int utf16_to_utf8_buffer(char* dst, int dst_size, const KILN_WCHAR* src) {
  if (dst != nullptr && dst_size > 0) *dst = '\0';
  if (src == nullptr || *src == 0) return 0;
  const int needed = multibyte_size(kCodePageUtf8, src, -1);
  if (needed < 1 || needed > dst_size || dst == nullptr) return -1;
  const int written = platform::wide_to_multibyte(kCodePageUtf8, src, -1, dst, needed);
  return written == needed ? needed - 1 : -1;
}

int utf8_to_utf16_buffer(KILN_WCHAR* dst, int dst_units, const char* src, int src_len) {
  if (dst != nullptr && dst_units > 0) *dst = 0;
  if (is_empty_source(src, src_len)) return 0;
  if (src_len < 0) src_len = -1;
  const int count = platform::multibyte_to_wide(kCodePageUtf8, src, src_len, nullptr, 0);
  if (count < 1 || count > dst_units || dst == nullptr) return -1;
  if (platform::multibyte_to_wide(kCodePageUtf8, src, src_len, dst, dst_units) != count) return -1;
  // An explicit length converts no NUL: terminate behind the text. That unit
  // is one past what the size test covers; callers keep one spare unit.
  if (src_len != -1 && dst[count - 1] != 0 && dst[count] != 0) dst[count] = 0;
  return count - 1;
}

int code_page_to_utf8_buffer(const char* src, int src_len, char* dst, int dst_size, int code_page) {
  const int result = is_empty_source(src, src_len) ? 0 : mbcs_to_utf8(src, src_len, dst, dst_size, code_page);
  // Every path that yields 0 leaves the destination empty.
  if (result == 0 && dst != nullptr) *dst = '\0';
  return result;
}

int utf8_to_code_page_buffer(const char* src, int src_len, char* dst, int dst_size, int code_page) {
  WideScratch units;
  const int unit_count = is_empty_source(src, src_len) ? 0 : to_wide(kCodePageUtf8, src, src_len, units);
  if (unit_count == 0) {
    if (dst != nullptr && dst_size > 0) *dst = '\0';
    return 1;
  }
  return platform::wide_to_multibyte(resolve_code_page(code_page), units.data(), unit_count, dst, dst_size);
}

void swap_utf16_bytes(KILN_WCHAR* text) {
  if (text == nullptr) return;
  for (; *text != 0; ++text) *text = static_cast<KILN_WCHAR>((*text >> 8) | (*text << 8));
}

int utf8_convertibility(const char* text, unsigned code_page) {
  if (text == nullptr) return -1;
  Scratch<KILN_WCHAR, 2048> units;
  const int count = to_wide(kCodePageUtf8, text, -1, units);
  if (count == 0) return -1;
  bool used_default = false;
  // The code page is taken as given, apart from the system aliases.
  const unsigned page = code_page <= 3 ? resolve_code_page(static_cast<int>(code_page)) : code_page;
  const int bytes = platform::wide_to_multibyte(page, units.data(), count, nullptr, 0, "?", &used_default);
  if (bytes <= 0) return -1;
  return used_default ? 0 : 1;
}

}  // namespace kiln::unicode
