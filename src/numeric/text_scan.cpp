#include "numeric/text_scan.h"

#include "text/char_class.h"
#include "unicode/utf8.h"

namespace kiln::numeric {

bool is_blank_character(const char* p, int* length) {
  const auto cp = unicode::utf8_decode(reinterpret_cast<const unsigned char*>(p), length);
  return text::is_space(cp);
}

const char* skip_blanks_from(const char* p) {
  int length = 0;
  while (*p != '\0' && is_blank_at(p, &length)) p += length;
  return p;
}

TextRange trim(TextRange range) {
  int length = 0;
  while (range.begin < range.end && is_blank_at(range.begin, &length)) range.begin += length;
  while (range.end > range.begin) {
    // Blanks are ASCII or the two-byte no-break space, so the last character
    // is looked at as one byte or as a two-byte pair, never before begin.
    const auto* end = reinterpret_cast<const unsigned char*>(range.end);
    const char* last = range.end - 1;
    if (end[-1] >= 0x80 && range.end - range.begin >= 2 && (end[-2] & 0xE0) == 0xC0) last = range.end - 2;
    if (!is_blank_at(last, &length) || last + length != range.end) break;
    range.end = last;
  }
  return range;
}

const char* find_blank(TextRange range) {
  int length = 0;
  for (const char* p = range.begin; p < range.end; p += length) {
    if (is_blank_at(p, &length)) return p;
  }
  return range.end;
}

}  // namespace kiln::numeric
