// Any characters through the Base64 decoder: the size asked first is the
// size decoded, the destination sized by it is never overrun, and re-encoding
// the bytes gives back the alphabet characters of a clean input.
#include "fuzz_support.h"

#include <kilnutil/unicode.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

namespace {

using fuzz_support::check;

bool in_alphabet(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '+' || c == '/';
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::unique_ptr<char[]> text(new char[size + 1]);
  std::memcpy(text.get(), data, size);
  text[size] = '\0';
  const int n = static_cast<int>(size);

  const int needed = KILNUTIL_decode_base64(text.get(), n, nullptr);
  std::unique_ptr<unsigned char[]> bytes(new unsigned char[needed > 0 ? needed : 1]);
  check(KILNUTIL_decode_base64(text.get(), n, bytes.get()) == needed);
  check(decode_base64(text.get(), n, nullptr) == needed);

  std::string valid;
  for (std::size_t i = 0; i < size; ++i) {
    if (in_alphabet(text[i])) valid += text[i];
  }
  check(needed == static_cast<int>(valid.size() / 4 * 3 + (valid.size() % 4 >= 2 ? valid.size() % 4 - 1 : 0)));
  if (needed > 0) {
    const int length = KILNUTIL_encode_base64(bytes.get(), needed, nullptr);
    std::unique_ptr<char[]> encoded(new char[length]);
    check(KILNUTIL_encode_base64(bytes.get(), needed, encoded.get()) == length);
    // Whole groups come back exactly; a partial last group differs only in
    // the bits its last character dropped.
    const size_t whole = valid.size() / 4 * 4;
    check(std::memcmp(encoded.get(), valid.data(), whole) == 0);
  }
  return 0;
}
