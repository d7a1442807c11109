#include "numeric/digit_run.h"

#include "numeric/integer_rule.h"
#include "numeric/runtime_integer.h"

#include <cmath>
#include <cstring>

namespace kiln::numeric {
namespace {

constexpr std::size_t kShortRun = 8;

DigitRunValue sum_digits(const char* text, std::size_t length, RunKind kind) {
  DigitRunValue run;
  std::uint32_t low_bits = 0;
  for (std::size_t position = 0; position < length; ++position) {
    const char c = text[position];
    if (!is_ascii_digit(c)) return {};
    const int digit = c - '0';
    if (kind == RunKind::integer) {
      run.value += digit * std::pow(10.0, static_cast<double>(length - position - 1));
      low_bits = low_bits * 10u + static_cast<std::uint32_t>(digit);
    } else {
      run.value += digit / std::pow(10.0, static_cast<double>(position + 1));
    }
  }
  run.low_bits = static_cast<std::int32_t>(low_bits);
  run.ok = true;
  return run;
}

DigitRunValue convert_long_run(const char* text, std::size_t length, RunKind kind) {
  if (kind == RunKind::integer) {
    const UnsignedConversion c = convert_unsigned(text, 10, UINT64_MAX);
    if (c.end == text + length && !c.overflow) {
      return {static_cast<double>(c.value), static_cast<std::int32_t>(static_cast<std::uint32_t>(c.value)), true};
    }
  }
  return sum_digits(text, length, kind);
}

DigitRunValue convert_short_run(const char* text, std::size_t length, RunKind kind, bool cut_at_blank) {
  std::uint32_t value = 0;
  std::size_t digits = 0;
  if (!convert_trimmed_integer({text, text + length}, cut_at_blank, &value, &digits)) return {};
  const auto as_signed = static_cast<std::int32_t>(value);
  if (kind == RunKind::integer) return {static_cast<double>(as_signed), as_signed, true};
  return {static_cast<double>(as_signed) / std::pow(10.0, static_cast<double>(digits)), 0, true};
}

}  // namespace

DigitRunValue convert_digit_run(const char* text, RunKind kind, bool cut_at_blank) {
  const std::size_t length = std::strlen(text);
  if (length > kShortRun) return convert_long_run(text, length, kind);
  return convert_short_run(text, length, kind, cut_at_blank && kind == RunKind::integer);
}

}  // namespace kiln::numeric
