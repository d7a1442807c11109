// The digit-run conversion of the real parser: the integer part or the
// fraction digits of a number, as the parser has cut them out of its text.
#pragma once

#include "numeric/text_scan.h"

#include <cstdint>

namespace kiln::numeric {

enum class RunKind { integer, fraction };

struct DigitRunValue {
  double value = 0.0;
  std::int32_t low_bits = 0;  // integer kind: the low 32 bits of the integer
  bool ok = false;
};

// text is NUL-terminated where the run ends. Runs of more than 8 bytes:
// integer runs are tried with the runtime's 64-bit conversion first, then
// (like every long fraction run) summed digit by digit, where anything but an
// ASCII digit is an error. Shorter runs are trimmed (and, with cut_at_blank,
// cut at their first blank) and must follow the integer rule; empty is 0. A
// fraction run of n digits is their value / 10^n.
DigitRunValue convert_digit_run(const char* text, RunKind kind, bool cut_at_blank);

}  // namespace kiln::numeric
