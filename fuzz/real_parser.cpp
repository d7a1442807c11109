// Any bytes through the real parser in both modes, with either separator and
// fraction switch: no read past the terminator, the text restored on every
// path but the one rejected fraction (which may leave only "." for the
// separator and a NUL behind the fraction digits), and ordinary decimal texts
// bit-identical to the C library's correctly rounded strtod.
#include "fuzz_support.h"

#include <kilnutil/frame.h>
#include <kilnutil/numeric.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace {

using fuzz_support::check;

// Only differences the rejected-fraction path may leave.
bool only_fraction_marks(const char* original, const char* text, std::size_t size, char separator) {
  int separators = 0;
  int terminators = 0;
  for (std::size_t i = 0; i < size; ++i) {
    if (original[i] == text[i]) continue;
    if (original[i] == separator && text[i] == '.') {
      ++separators;
    } else if (text[i] == '\0') {
      ++terminators;
    } else {
      return false;
    }
  }
  return separators <= 1 && terminators <= 1;
}

// "-?digits.digits": the texts whose value must match strtod bit for bit.
bool is_ordinary_decimal(const char* text) {
  if (*text == '-') ++text;
  bool point = false;
  bool digit = false;
  for (; *text != '\0'; ++text) {
    if (*text == '.' && !point) {
      point = true;
    } else if (*text >= '0' && *text <= '9') {
      digit = true;
    } else {
      return false;
    }
  }
  return point && digit;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const unsigned options = data[0];
  ++data;
  --size;
  std::unique_ptr<char[]> original(new char[size + 1]);
  std::memcpy(original.get(), data, size);
  original[size] = '\0';
  std::unique_ptr<char[]> text(new char[size + 1]);
  std::memcpy(text.get(), original.get(), size + 1);

  const char separator = options & 2 ? ',' : '.';
  char separator_text[2] = {separator, '\0'};
  KILNUTIL_cvtstr2real_ex(separator_text, nullptr, 0, nullptr);
  const unsigned previous_switch = KILNUTIL_str2real_use_atof(0, options & 4 ? 0u : 1u);

  double value = 0;
  int integer_part = 0;
  const unsigned code = KILNUTIL_cvtstr2real_ex(text.get(), &value, options & 1, &integer_part);
  check(code == 0 || code == 1 || code == 2 || code == 4);
  if (std::memcmp(text.get(), original.get(), size + 1) != 0) {
    check(code == 0 && only_fraction_marks(original.get(), text.get(), size, separator));
  }
  if (code != 0 && separator == '.' && !(options & 4) && is_ordinary_decimal(original.get())) {
    const double reference = std::strtod(original.get(), nullptr);
    check(std::memcmp(&value, &reference, sizeof value) == 0);
  }

  std::memcpy(text.get(), original.get(), size + 1);
  const double as_real = KILNUTIL_str2real(text.get());
  std::memcpy(text.get(), original.get(), size + 1);
  const double as_db = KILNUTIL_dbStr2Real(text.get());
  check(is_missing_value(as_real) ? as_db == 0.0 || is_missing_value(as_db) : true);

  KILNUTIL_str2real_use_atof(0, previous_switch);
  char dot[] = ".";
  KILNUTIL_cvtstr2real_ex(dot, nullptr, 0, nullptr);
  return 0;
}
