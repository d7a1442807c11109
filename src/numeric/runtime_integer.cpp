#include "numeric/runtime_integer.h"

namespace kiln::numeric {
namespace {

bool is_c_space(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

int digit_value(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'z') return c - 'a' + 10;
  if (c >= 'A' && c <= 'Z') return c - 'A' + 10;
  return 99;
}

}  // namespace

UnsignedConversion convert_unsigned(const char* text, int base, std::uint64_t maximum) {
  const char* p = text;
  while (is_c_space(*p)) ++p;
  bool negative = false;
  if (*p == '+' || *p == '-') negative = *p++ == '-';
  // "0x" counts as a prefix only when a hexadecimal digit follows it;
  // otherwise the "0" alone is the number.
  if (base == 16 && p[0] == '0' && (p[1] == 'x' || p[1] == 'X') && digit_value(p[2]) < 16) p += 2;

  std::uint64_t value = 0;
  bool overflow = false;
  const char* digits = p;
  for (int d; (d = digit_value(*p)) < base; ++p) {
    if (value > (maximum - static_cast<std::uint64_t>(d)) / static_cast<std::uint64_t>(base)) overflow = true;
    if (!overflow) value = value * static_cast<std::uint64_t>(base) + static_cast<std::uint64_t>(d);
  }
  if (p == digits) return {0, text, false};
  if (overflow) return {maximum, p, true};
  if (negative) value = (0 - value) & maximum;
  return {value, p, false};
}

}  // namespace kiln::numeric
