// Walking, decoding and encoding UTF-8 strings by the library's lenient rule.
#include "unicode/utf8.h"

#include <kilnutil/unicode.h>

namespace {

using kiln::unicode::utf8_advance;
using kiln::unicode::utf8_advance_length;
using kiln::unicode::utf8_decode;

const unsigned char* bytes(const char* s) { return reinterpret_cast<const unsigned char*>(s); }

char* mutable_position(const char* p) { return const_cast<char*>(p); }

// The first byte of the last character (null for an empty text) and its code
// point (0 for an empty text). Walks back from the NUL, never before s.
const char* last_character(const char* s, unsigned* cp) {
  *cp = 0;
  if (*s == '\0') return nullptr;
  const char* end = s;
  while (*end != '\0') ++end;
  const char* last = kiln::unicode::utf8_go_back_within(end, s);
  int length;
  *cp = utf8_decode(bytes(last), &length);
  return last;
}

}  // namespace

extern "C" {

char* KILNUTIL_UNICODE_UTF8_adv_str(const char* s) { return mutable_position(utf8_advance(s)); }

char* KILNUTIL_UNICODE_UTF8_go_back_in_str(const char* p) { return mutable_position(kiln::unicode::utf8_go_back(p)); }

unsigned int KILNUTIL_UNICODE_UTF8_get_char(const char* s) {
  int length;
  return utf8_decode(bytes(s), &length);
}

unsigned int KILNUTIL_UNICODE_UTF8_get_char_adv_str(const char** ps) {
  int length;
  const unsigned int cp = utf8_decode(bytes(*ps), &length);
  *ps += length;
  return cp;
}

char* KILNUTIL_UNICODE_UTF8_setc(char* out, unsigned int cp) { return out + kiln::unicode::utf8_encode(cp, out); }

int KILNUTIL_UNICODE_UTF8_get_char_length(unsigned int cp, char* buf) {
  char scratch[4];
  return kiln::unicode::utf8_encode(cp, buf != nullptr ? buf : scratch);
}

int KILNUTIL_UNICODE_UTF8_StrCharToIndex(int n, const char* s) {
  if (s == nullptr) return 0;
  const char* p = s;
  for (int passed = 0; passed < n && *p != '\0'; ++passed) p = utf8_advance(p);
  return static_cast<int>(p - s);
}

int KILNUTIL_UNICODE_UTF8_StrIndexToChar(int b, const char* s) {
  if (s == nullptr) return 0;
  const char* p = s;
  int count = 0;
  while (p - s < b && *p != '\0') {
    p = utf8_advance(p);
    ++count;
  }
  return count;
}

int KILNUTIL_UNICODE_UTF8_copy_n_bytes(char* dst, int budget, const char* src) {
  int copied_bytes = 0;
  int characters = 0;
  while (src[copied_bytes] != '\0') {
    const int length = utf8_advance_length(bytes(src) + copied_bytes);
    if (budget - copied_bytes < 1 || length > budget - copied_bytes) break;
    for (int i = 0; i < length; ++i) dst[copied_bytes + i] = src[copied_bytes + i];
    copied_bytes += length;
    ++characters;
  }
  dst[copied_bytes] = '\0';
  return characters;
}

char* KILNUTIL_UNICODE_UTF8_ASSERT_VALID(const char* s) {
  const char* p = s;
  while (*p != '\0') p = utf8_advance(p);
  return mutable_position(p);
}

char* KILNUTIL_UTF8_get_ptr_to_last_char(const char* s, unsigned int* pch) {
  unsigned cp = 0;
  const char* last = last_character(s, &cp);
  if (pch != nullptr) *pch = cp;
  return mutable_position(last);
}

unsigned int KILNUTIL_UTF8_get_last_char(const char* s) {
  unsigned cp = 0;
  last_character(s, &cp);
  return cp;
}

}  // extern "C"
