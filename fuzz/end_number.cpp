// Any bytes through KILNUTIL_End_Number_ex in every mode, with prefix
// buffers sized as a host sizes them (n bytes for mode n, the text's length
// plus one otherwise): no access outside the text or the prefix, the text
// unchanged, and prefix plus digit run spelling the text.
#include "fuzz_support.h"

#include <kilnutil/numeric.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

using fuzz_support::check;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const int mode = data[0] % 24 - 2;  // -2 .. 21
  ++data;
  --size;
  std::unique_ptr<char[]> text(new char[size + 1]);
  std::memcpy(text.get(), data, size);
  text[size] = '\0';
  std::unique_ptr<char[]> original(new char[size + 1]);
  std::memcpy(original.get(), text.get(), size + 1);
  const std::size_t length = std::strlen(text.get());

  const std::size_t prefix_size = mode >= 1 ? static_cast<std::size_t>(mode) : length + 1;
  std::unique_ptr<char[]> prefix(new char[prefix_size]);
  char* number_start = nullptr;
  const int value = KILNUTIL_End_Number_ex(prefix.get(), text.get(), &number_start, mode);
  check(value >= 0);
  check(std::memcmp(text.get(), original.get(), size + 1) == 0);
  check(number_start >= text.get() && number_start <= text.get() + length);
  const std::size_t prefix_length = std::strlen(prefix.get());
  check(prefix_length < prefix_size);
  check(std::memcmp(prefix.get(), text.get(), prefix_length) == 0);
  if (mode < 1)
    check(prefix.get() + 0 != nullptr && prefix_length == static_cast<std::size_t>(number_start - text.get()));
  for (const char* p = number_start; *p != '\0'; ++p) check(*p >= '0' && *p <= '9');

  KILNUTIL_End_Number_ex(nullptr, text.get(), nullptr, mode);
  std::unique_ptr<char[]> unbounded(new char[length + 1]);
  string_to_prefix_end_number(unbounded.get(), text.get(), mode % 2 != 0);
  return 0;
}
