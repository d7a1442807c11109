// Any bytes through the integer, radix, character-constant and exponent
// parsers: no read past the terminator, no write outside the caller's
// buffers, and the related forms agree with each other.
#include "fuzz_support.h"

#include <kilnutil/numeric.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace {

using fuzz_support::check;

std::unique_ptr<char[]> copy_of(const char* text, std::size_t size) {
  std::unique_ptr<char[]> copy(new char[size + 1]);
  std::memcpy(copy.get(), text, size + 1);
  return copy;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::unique_ptr<char[]> owned(new char[size + 1]);
  std::memcpy(owned.get(), data, size);
  owned[size] = '\0';
  const char* text = owned.get();
  const std::size_t length = std::strlen(text);

  int value = 0;
  const int parsed = KILNUTIL_cvtstr2int(text, &value);
  check(KILNUTIL_str2int(text) == (parsed ? value : 0));
  unsigned unsigned_value = 0;
  const int whole = is_str_numeric_integer(text, &unsigned_value);
  if (whole && length < 40 && length > 0 && text[length - 1] != ' ' && text[0] != ' ') {
    check(KILNUTIL_cvtstr2int(text, &value) == 1 && static_cast<unsigned>(value) == unsigned_value);
  }
  {
    auto args = copy_of(text, length);
    char* rest =
        is_str_numeric_integer_with_args(args.get(), &unsigned_value, size > 0 ? static_cast<char>(data[0]) : ':');
    check(rest == nullptr || (rest >= args.get() && rest <= args.get() + length));
  }
  is_str_digits_only(text);
  KILNUTIL_is_str_lead_zero_numbers(text);

  KILNUTIL_hexstr2int(text);
  check(Hex2Dec(text) == KILNUTIL_hexstr2int(text));
  KILNUTIL_binstr2int(text);
  unsigned long long wide = 0;
  KILNUTIL_hexstr2int64(text, &wide);
  is_hex_string(text);
  {
    auto hex = copy_of(text, length);
    double number = 0;
    check(hex_dec_convert(&number, hex.get(), -1) == 0);
    std::unique_ptr<char[]> out(new char[65]);
    const int width = size > 0 ? data[0] % 70 : 0;
    const int result = hex_dec_convert(&number, out.get(), width);
    check(result >= 0 && result <= 2 && std::strlen(out.get()) <= 64);
  }

  int character = 0;
  int error = 0;
  KILNUTIL_is_str_ascii_char(text, &character);
  KILNUTIL_cvt_special_str_to_int(text, &character, &error);
  {
    auto escaped = copy_of(text, length);
    KILNUTIL_expand_C_escape_codes(escaped.get());
    check(std::strlen(escaped.get()) <= length);
  }
  KILNUTIL_is_str_has_exponent(text);
  return 0;
}
