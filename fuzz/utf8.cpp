// Any bytes through every UTF-8 primitive: no read past the terminator, no
// write outside the destination, and the walks agree with each other.
#include "fuzz_support.h"

#include <kilnutil/unicode.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

using fuzz_support::check;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // An exactly sized copy with its NUL, so any read past it is caught.
  std::unique_ptr<char[]> text(new char[size + 1]);
  std::memcpy(text.get(), data, size);
  text[size] = '\0';
  const char* s = text.get();
  const int byte_length = static_cast<int>(std::strlen(s));

  int walked = 0;
  for (const char* p = s; *p != '\0'; ++walked) {
    const char* next = KILNUTIL_UNICODE_UTF8_adv_str(p);
    const char* decoded = p;
    KILNUTIL_UNICODE_UTF8_get_char_adv_str(&decoded);
    check(decoded == next && next > p && next <= s + byte_length);
    p = next;
  }
  check(KILNUTIL_UNICODE_UTF8_StrLength(s) == walked);
  check(KILNUTIL_UNICODE_UTF8_ASSERT_VALID(s) == s + byte_length);
  check(KILNUTIL_UNICODE_UTF8_StrIndexToChar(byte_length, s) == walked);
  check(KILNUTIL_UNICODE_UTF8_StrCharToIndex(walked, s) == byte_length);
  KILNUTIL_UTF8_get_last_char(s);

  const int budget = size > 0 ? data[0] % 16 : 0;
  std::unique_ptr<char[]> copy(new char[budget + 1]);
  const int copied = KILNUTIL_UNICODE_UTF8_copy_n_bytes(copy.get(), budget, s);
  check(copied <= walked && static_cast<int>(std::strlen(copy.get())) <= budget);

  check(KILNUTIL_UNICODE_UTF8_Compare(s, s) == 0);
  KILNUTIL_UNICODE_UTF8_CompareI(s, "abc");
  std::unique_ptr<char[]> changed(new char[size + 1]);
  std::memcpy(changed.get(), s, size + 1);
  KILNUTIL_UNICODE_UTF8_to_upper_or_to_lower(changed.get(), size % 2, 0, budget);
  check(std::strlen(changed.get()) <= static_cast<std::size_t>(byte_length));
  return 0;
}
