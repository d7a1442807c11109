// The real parser: sign, integer part, decimal separator, fraction and
// exponent, with the process-wide decimal separator and the fraction switch.
//
// The parser cuts its text in place (a NUL for the exponent mark, the
// separator and the end of the fraction digits) and puts every byte back
// before it returns, except when the fraction conversion rejects the
// mantissa: callers have always seen "." for the separator and a NUL behind
// the fraction digits then, and some test for it.
#include "numeric/real_parser.h"

#include "frame/relaxed.h"
#include "frame/settings.h"
#include "numeric/decimal_conversion.h"
#include "numeric/digit_run.h"
#include "numeric/integer_rule.h"
#include "numeric/text_scan.h"
#include "unicode/utf8.h"

#include <kilnutil/frame.h>
#include <kilnutil/numeric.h>

#include <cmath>
#include <cstring>

namespace kiln::numeric {
namespace {

kiln::frame::Relaxed<char> g_decimal_separator{'.'};

constexpr unsigned kNotANumber = 0;
constexpr unsigned kInteger = 1;
constexpr unsigned kWithSeparator = 2;
constexpr unsigned kWithExponent = 4;
constexpr unsigned kMinusSign = 0x2212;
constexpr int kMaxExponent = 307;
constexpr std::size_t kMaxExponentText = 39;

// Bytes of the caller's text replaced while parsing, put back on return.
class TextCuts {
public:
  ~TextCuts() {
    for (int i = count_; i-- > 0;) *cuts_[i].at = cuts_[i].saved;
  }
  TextCuts() = default;
  TextCuts(const TextCuts&) = delete;
  TextCuts& operator=(const TextCuts&) = delete;

  void replace(char* at, char with) {
    cuts_[count_++] = {at, *at};
    *at = with;
  }
  // Leaves every replacement in the text.
  void keep() { count_ = 0; }

private:
  struct Cut {
    char* at;
    char saved;
  };
  Cut cuts_[3] = {};
  int count_ = 0;
};

struct Sign {
  bool negative = false;
  bool valid = true;
};

// "-" or U+2212 MINUS SIGN; any other non-ASCII character ends the parse.
Sign read_sign(char*& p) {
  if (*p == '-') {
    ++p;
    return {true, true};
  }
  if (static_cast<unsigned char>(*p) < 0x80) return {};
  int length = 0;
  if (unicode::utf8_decode(reinterpret_cast<const unsigned char*>(p), &length) != kMinusSign) return {false, false};
  p += length;
  return {true, true};
}

// The first exponent mark ("E" or "e") of the text and the first separator
// before it, found in one pass.
struct MantissaSplit {
  char* exponent_mark = nullptr;
  char* separator = nullptr;
};

MantissaSplit split_mantissa(char* p, char separator) {
  MantissaSplit split;
  for (; *p != '\0'; ++p) {
    if (*p == 'E' || *p == 'e') {
      split.exponent_mark = p;
      break;
    }
    if (*p == separator && split.separator == nullptr) split.separator = p;
  }
  return split;
}

// The exponent text: shorter than 40 bytes, trimmed, empty or an integer by
// the integer rule, within -307..307.
bool read_exponent(const char* text, int* exponent) {
  const std::size_t length = strnlen(text, kMaxExponentText + 1);
  std::uint32_t value = 0;
  if (length > kMaxExponentText || !convert_trimmed_integer({text, text + length}, false, &value)) return false;
  const auto e = static_cast<std::int32_t>(value);
  if (e < -kMaxExponent || e > kMaxExponent) return false;
  *exponent = e;
  return true;
}

double scale_by_power_of_ten(double value, int exponent) {
  if (exponent > 0) return value * std::pow(10.0, exponent);
  if (exponent < 0) return value / std::pow(10.0, -exponent);
  return value;
}

struct ParseResult {
  unsigned code = kNotANumber;
  double value = 0.0;
  bool has_integer_part = false;
  std::int32_t integer_part = 0;
};

// The common case read in one pass: digits, the separator and digits, then
// only ASCII blanks, with the fraction switch on. The general steps give the same
// result for it (no exponent mark, the separator split, the fraction
// conversion of the whole mantissa, nothing left to restore), so it is
// taken first; any other text goes the general way.
bool parse_plain_decimal(const char* mantissa, double* value) {
  const char separator = g_decimal_separator.load();
  if ((separator != '.' && separator != ',') || frame::str2real_use_atof() == 0) return false;
  return convert_plain_decimal(mantissa, separator, value) != nullptr;
}

// The general steps from the mantissa on: exponent and separator split,
// integer part, fraction and exponent. Kept out of line so that the common
// case above stays small.
[[gnu::noinline]] ParseResult parse_mantissa_and_exponent(char* const mantissa, Sign sign, bool strict) {
  ParseResult result;
  TextCuts cuts;
  const MantissaSplit split = split_mantissa(mantissa, g_decimal_separator.load());
  char* const exponent_mark = split.exponent_mark;
  char* const separator = split.separator;
  if (exponent_mark) cuts.replace(exponent_mark, '\0');
  if (separator) cuts.replace(separator, '\0');
  const bool fraction_by_library = separator && !exponent_mark && frame::str2real_use_atof() != 0;

  double value = 0.0;
  if (!fraction_by_library) {
    const DigitRunValue integer = convert_digit_run(mantissa, RunKind::integer, !strict);
    if (!integer.ok) return result;
    value = integer.value;
    result.has_integer_part = true;
    const auto bits = static_cast<std::uint32_t>(integer.low_bits);
    result.integer_part = static_cast<std::int32_t>(sign.negative ? 0u - bits : bits);
  }

  unsigned code = kInteger;
  if (separator) {
    char* const fraction = separator + 1;
    char* digits_end = fraction;
    while (is_ascii_digit(*digits_end)) ++digits_end;
    if (strict && !only_blanks(digits_end)) return result;
    if (*digits_end != '\0') cuts.replace(digits_end, '\0');
    if (fraction_by_library) {
      *separator = '.';
      const DecimalConversion converted = convert_decimal_text(mantissa);
      if (converted.end != digits_end) {
        cuts.keep();
        return result;
      }
      value = converted.value;
    } else {
      const DigitRunValue digits = convert_digit_run(fraction, RunKind::fraction, false);
      if (!digits.ok) return result;
      value += digits.value;
    }
    code = kWithSeparator;
  }

  if (exponent_mark) {
    int exponent = 0;
    if (!read_exponent(exponent_mark + 1, &exponent)) return result;
    value = scale_by_power_of_ten(value, exponent);
    code = kWithExponent;
  }
  result.code = code;
  result.value = sign.negative ? -value : value;
  return result;
}

ParseResult parse_real(char* text, bool strict) {
  char* p = const_cast<char*>(skip_blanks(text));
  if (*p == '\0') return {};
  const Sign sign = read_sign(p);
  if (!sign.valid || *p == 'E' || *p == 'e') return {};
  if (double value = 0.0; parse_plain_decimal(p, &value)) {
    ParseResult result;
    result.code = kWithSeparator;
    result.value = sign.negative ? -value : value;
    return result;
  }
  return parse_mantissa_and_exponent(p, sign, strict);
}

// The setter form: the first non-blank character becomes the separator.
unsigned exchange_decimal_separator(const char* text) {
  if (text == nullptr) return 0;
  const char* p = skip_blanks(text);
  if (*p == '\0') return 0;
  const char previous = g_decimal_separator.load();
  g_decimal_separator.store(*p);
  return static_cast<unsigned>(static_cast<int>(static_cast<signed char>(previous)));
}

}  // namespace

unsigned convert_real_text(char* text, double* value, unsigned flags, int* integer_part) {
  if (value == nullptr) return exchange_decimal_separator(text);
  if (text == nullptr) return kNotANumber;
  const ParseResult result = parse_real(text, (flags & kRealStrict) != 0);
  if (result.code == kNotANumber) return kNotANumber;
  *value = result.value;
  if (integer_part && result.has_integer_part) *integer_part = result.integer_part;
  return result.code;
}

}  // namespace kiln::numeric
