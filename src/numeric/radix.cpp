// Hexadecimal and binary integers, and the conversion between a number and
// its 64-bit hexadecimal text.
#include "numeric/radix.h"

#include "frame/missing_value.h"
#include "numeric/runtime_integer.h"

#include <kilnutil/numeric.h>

#include <cstdio>
#include <cstring>

namespace kiln::numeric {

namespace {

constexpr int kMaxHexWidth = 64;

bool is_hex_digit(char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'); }

bool is_f(char c) { return c == 'F' || c == 'f'; }

// Sixteen digits led by "F" (optionally after "0x") are a negative number in
// two's complement; every other text is unsigned.
bool reads_as_signed(const char* hex) {
  const std::size_t length = std::strlen(hex);
  if (length == 16) return is_f(hex[0]);
  return length == 18 && hex[0] == '0' && (hex[1] == 'x' || hex[1] == 'X') && is_f(hex[2]);
}

int hex_to_number(double* number, const char* hex) {
  unsigned long long bits = 0;
  if (!hex_text_to_bits(hex, &bits)) {
    *number = frame::kMissingValue;
  } else if (reads_as_signed(hex)) {
    *number = static_cast<double>(static_cast<long long>(bits));
  } else {
    *number = static_cast<double>(bits);
  }
  return 0;
}

// The double truncated to 64 bits: from 2^63 up as unsigned, negative values
// as their two's complement; values beyond the range saturate.
unsigned long long truncate_to_bits(double x) {
  if (x >= 18446744073709551616.0) return UINT64_MAX;
  if (x >= 9223372036854775808.0) return static_cast<unsigned long long>(x);
  if (x > -9223372036854775808.0) return static_cast<unsigned long long>(static_cast<long long>(x));
  return 0x8000000000000000ull;  // also what a NaN gives
}

int number_to_hex(double number, char* hex, int width) {
  if (frame::is_missing(number)) {
    *hex = '\0';
    return 1;
  }
  char digits[17];
  const int length = std::snprintf(digits, sizeof digits, "%llX", truncate_to_bits(number));
  if (width < 1 || width > kMaxHexWidth) {
    std::memcpy(hex, digits, static_cast<std::size_t>(length) + 1);
    return 0;
  }
  if (length > width) {
    std::memcpy(hex, digits, static_cast<std::size_t>(length) + 1);
    return 2;
  }
  const int padding = width - length;
  std::memset(hex, number < 0 ? 'F' : '0', static_cast<std::size_t>(padding));
  std::memcpy(hex + padding, digits, static_cast<std::size_t>(length) + 1);
  return 0;
}

}  // namespace

unsigned hex_text_value(const char* text) { return text ? runtime_strtoul(text, 16) : 0; }

unsigned binary_text_value(const char* text) { return text ? runtime_strtoul(text, 2) : 0; }

bool hex_text_to_bits(const char* text, unsigned long long* value) {
  if (value == nullptr || text == nullptr) return false;
  const char* end = text;
  const std::uint64_t converted = runtime_strtoull(text, 16, &end);
  if (*end != '\0') return false;
  *value = converted;
  return true;
}

bool is_hex_text(const char* text) {
  if (text == nullptr) return false;
  for (; *text != '\0'; ++text) {
    if (!is_hex_digit(*text)) return false;
  }
  return true;
}

int convert_hex_and_number(double* number, char* hex, int width) {
  if (number == nullptr || hex == nullptr) return -1;
  return width < 0 ? hex_to_number(number, hex) : number_to_hex(*number, hex, width);
}

}  // namespace kiln::numeric
