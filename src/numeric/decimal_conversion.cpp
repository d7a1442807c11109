#include "numeric/decimal_conversion.h"

#include "platform/bits.h"

#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace kiln::numeric {
namespace {

constexpr double kExactPowersOfTen[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                        1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
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

// The exact conversion of the digits, when their value is exact by one
// multiplication or division by a power of ten; false otherwise.
bool convert_exactly(const DecimalDigits& d, double* value) {
  if (d.mantissa == 0) {
    *value = 0.0;
    return true;
  }
  if (d.truncated || d.mantissa > kMaxExactMantissa || d.exponent < -kMaxExactPower || d.exponent > kMaxExactPower) {
    return false;
  }
  const double m = static_cast<double>(d.mantissa);
  *value = d.exponent >= 0 ? m * kExactPowersOfTen[d.exponent] : m / kExactPowersOfTen[-d.exponent];
  return true;
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

constexpr std::uint64_t kZeros = 0x3030303030303030ull;

bool is_eight_digits(std::uint64_t word) {
  return ((word & 0xF0F0F0F0F0F0F0F0ull) | (((word + 0x0606060606060606ull) & 0xF0F0F0F0F0F0F0F0ull) >> 4)) ==
         0x3333333333333333ull;
}

// The value of eight decimal digits, the first byte the most significant.
std::uint64_t eight_digits_value(std::uint64_t word) {
  word -= kZeros;
  word = word * 10 + (word >> 8);
  return (((word & 0x000000FF000000FFull) * 0x000F424000000064ull) +
          (((word >> 16) & 0x000000FF000000FFull) * 0x0000271000000001ull)) >>
         32;
}

// A text of up to 16 bytes as one 128-bit little-endian number in two words.
struct TextWords {
  std::uint64_t low;
  std::uint64_t high;
};

template <class Word>
Word load(const char* p) {
  Word word;
  std::memcpy(&word, p, sizeof word);
  return word;
}

// The low 64 bits of the text shifted towards its end by `bits` (0 to 64).
std::uint64_t low_word_shifted_up(const TextWords& text, unsigned bits) { return bits >= 64 ? 0 : text.low << bits; }

// The low 64 bits of the text shifted towards its start by `bits` (1 to 127).
std::uint64_t low_word_shifted_down(const TextWords& text, unsigned bits) {
  if (bits >= 64) return text.high >> (bits - 64);
  return (text.low >> bits) | (text.high << (64 - bits));
}

// The bytes of a text of 2 to 16 bytes (first byte lowest, zeros behind the
// text), from two overlapping loads inside it.
TextWords load_short_text(const char* p, std::size_t length) {
  if (length >= 8) {
    const std::uint64_t tail = load<std::uint64_t>(p + length - 8);
    const auto shift = static_cast<unsigned>(8 * (length - 8));
    const std::uint64_t high = shift == 0 ? 0 : tail >> (64 - shift);
    return {load<std::uint64_t>(p) | (shift == 64 ? 0 : tail << shift), high};
  }
  if (length >= 4) {
    return {load<std::uint32_t>(p) | (std::uint64_t{load<std::uint32_t>(p + length - 4)} << (8 * (length - 4))), 0};
  }
  return {load<std::uint16_t>(p) | (std::uint32_t{load<std::uint16_t>(p + length - 2)} << (8 * (length - 2))), 0};
}

// Index of the first byte equal to c in a word (8 when there is none).
unsigned first_byte_equal(std::uint64_t word, char c) {
  return platform::first_byte_equal(word, static_cast<unsigned char>(c));
}

// Texts of 2 to 16 bytes with at most eight digits on each side of the
// separator, read as two eight-digit words: the integer digits right-aligned
// behind "0" padding, the fraction digits left-aligned and filled up with
// "0". Then the value is (integer x 10^8 + fraction digits) / 10^8, one
// correctly rounded division of exact operands.
bool convert_short_plain_decimal(const char* p, std::size_t length, char separator, double* value) {
  constexpr unsigned kSide = 8;
  if constexpr (std::endian::native != std::endian::little) return false;
  if (length < 2 || length > 2 * kSide) return false;
  const TextWords text = load_short_text(p, length);
  unsigned integer_length = first_byte_equal(text.low, separator);
  if (integer_length == kSide) integer_length += first_byte_equal(text.high, separator);
  if (integer_length >= length || integer_length > kSide) return false;
  const auto fraction_length = static_cast<unsigned>(length) - integer_length - 1;
  if (fraction_length > kSide) return false;

  const std::uint64_t zero_padding = integer_length == kSide ? 0 : kZeros >> (8 * integer_length);
  const std::uint64_t integer_word = low_word_shifted_up(text, 8 * (kSide - integer_length)) | zero_padding;
  const std::uint64_t kept = fraction_length == kSide ? ~0ull : (1ull << (8 * fraction_length)) - 1;
  const std::uint64_t fraction_word = (low_word_shifted_down(text, 8 * (integer_length + 1)) & kept) | (kZeros & ~kept);
  if (!is_eight_digits(integer_word) || !is_eight_digits(fraction_word)) return false;
  const std::uint64_t integer = eight_digits_value(integer_word);
  // Below 9 x 10^7 the mantissa is below 9 x 10^15 < 2^53: exact as a double,
  // so the one division is the only rounding.
  if (integer >= 90000000) return false;
  const std::uint64_t mantissa = integer * 100000000 + eight_digits_value(fraction_word);
  *value = static_cast<double>(mantissa) / kExactPowersOfTen[kSide];
  return true;
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
  if (double exact = 0.0; convert_exactly(d, &exact)) return {sign * exact, d.end};
  const char* used = nullptr;
  const bool too_large = d.exponent + d.significant - 1 >= 0;
  const double value = convert_by_library(p, d.end, std::chars_format::general, &used, too_large);
  return {sign * value, d.end};
}

const char* convert_plain_decimal(const char* p, char separator, double* value) {
  const std::size_t length = std::strlen(p);
  if (convert_short_plain_decimal(p, length, separator, value)) return p + length;
  // Every digit goes into the mantissa, leading zeros too; more than 19
  // digits in all leave this path, so a mantissa that overflowed is never
  // used.
  std::uint64_t mantissa = 0;
  const char* const start = p;
  for (; is_digit(*p); ++p) mantissa = mantissa * 10 + static_cast<std::uint64_t>(*p - '0');
  if (*p != separator) return nullptr;
  const char* const fraction = ++p;
  for (; is_digit(*p); ++p) mantissa = mantissa * 10 + static_cast<std::uint64_t>(*p - '0');
  const auto fraction_digits = p - fraction;
  const auto digits = fraction_digits + (fraction - 1 - start);
  if (digits == 0 || digits > kMaxMantissaDigits) return nullptr;
  while (*p == ' ' || (*p >= '\t' && *p <= '\r')) ++p;
  if (*p != '\0') return nullptr;
  DecimalDigits d;
  d.mantissa = mantissa;
  d.exponent = -fraction_digits;
  if (!convert_exactly(d, value)) return nullptr;
  return p;
}

}  // namespace kiln::numeric
