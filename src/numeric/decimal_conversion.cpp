#include "numeric/decimal_conversion.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace kiln::numeric {
namespace {

constexpr double kExactPowersOfTen[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                        1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                        1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr int kMaxExactPower = 22;
constexpr std::uint64_t kMaxExactMantissa = std::uint64_t{1} << 53;
constexpr int kMaxMantissaDigits = 19;

bool is_c_space(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
bool is_digit(char c) { return c >= '0' && c <= '9'; }

// The decimal form read digit by digit: the first 19 significant digits as an
// integer, scaled by a power of ten; `truncated` when digits were left out.
struct DecimalDigits {
  std::uint64_t mantissa = 0;
  std::int64_t exponent = 0;
  int significant = 0;
  bool truncated = false;
  bool any_digit = false;
  const char* end = nullptr;
};

void take_digit(DecimalDigits& d, char c, bool after_point) {
  d.any_digit = true;
  if (d.mantissa == 0 && c == '0') {
    if (after_point) --d.exponent;  // a leading zero only moves the point
    return;
  }
  if (d.significant < kMaxMantissaDigits) {
    d.mantissa = d.mantissa * 10 + static_cast<std::uint64_t>(c - '0');
    ++d.significant;
    if (after_point) --d.exponent;
  } else {
    d.truncated = true;
    if (!after_point) ++d.exponent;
  }
}

DecimalDigits scan_decimal(const char* p) {
  DecimalDigits d;
  for (; is_digit(*p); ++p) take_digit(d, *p, false);
  if (*p == '.') {
    for (++p; is_digit(*p); ++p) take_digit(d, *p, true);
  }
  d.end = p;
  if (!d.any_digit || (*p != 'e' && *p != 'E')) return d;
  // The exponent counts only when digits follow its optional sign.
  const char* q = p + 1;
  bool negative = false;
  if (*q == '+' || *q == '-') negative = *q++ == '-';
  if (!is_digit(*q)) return d;
  std::int64_t exponent = 0;
  for (; is_digit(*q); ++q) {
    if (exponent < 100000000) exponent = exponent * 10 + (*q - '0');
  }
  d.exponent += negative ? -exponent : exponent;
  d.end = q;
  return d;
}

// A NaN or infinity name, a hexadecimal form or a decimal too long for the
// exact path: the standard library converts the range [begin, end).
double convert_by_library(const char* begin, const char* end, std::chars_format format, const char** used,
                          bool too_large) {
  double value = 0.0;
  const std::from_chars_result r = std::from_chars(begin, end, value, format);
  *used = r.ptr;
  if (r.ec == std::errc::result_out_of_range) return too_large ? HUGE_VAL : 0.0;
  if (r.ec != std::errc{}) *used = begin;
  return value;
}

}  // namespace

DecimalConversion convert_decimal_text(const char* text) {
  const char* p = text;
  while (is_c_space(*p)) ++p;
  bool negative = false;
  if (*p == '+' || *p == '-') negative = *p++ == '-';
  const double sign = negative ? -1.0 : 1.0;

  if (p[0] == '0' && (p[1] == 'x' || p[1] == 'X')) {
    const char* used = nullptr;
    const double value = convert_by_library(p + 2, p + 2 + std::strlen(p + 2), std::chars_format::hex, &used, true);
    if (used == p + 2) return {sign * 0.0, p + 1};  // "0x" without digits is the number 0
    return {sign * value, used};
  }

  const DecimalDigits d = scan_decimal(p);
  if (!d.any_digit) {
    if (*p != 'i' && *p != 'I' && *p != 'n' && *p != 'N') return {0.0, text};
    const char* used = nullptr;
    const double value = convert_by_library(p, p + std::strlen(p), std::chars_format::general, &used, true);
    return used == p ? DecimalConversion{0.0, text} : DecimalConversion{sign * value, used};
  }
  if (d.mantissa == 0) return {sign * 0.0, d.end};
  if (!d.truncated && d.mantissa <= kMaxExactMantissa && d.exponent >= -kMaxExactPower &&
      d.exponent <= kMaxExactPower) {
    const double m = static_cast<double>(d.mantissa);
    const double value = d.exponent >= 0 ? m * kExactPowersOfTen[d.exponent] : m / kExactPowersOfTen[-d.exponent];
    return {sign * value, d.end};
  }
  const char* used = nullptr;
  const bool too_large = d.exponent + d.significant - 1 >= 0;
  const double value = convert_by_library(p, d.end, std::chars_format::general, &used, too_large);
  return {sign * value, d.end};
}

}  // namespace kiln::numeric
