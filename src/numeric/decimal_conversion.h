// Text to double with the grammar of the C library's strtod in the "C"
// locale ("." is the only decimal point, whatever the user's locale), and a
// correctly rounded result: exactly the double nearest the decimal value,
// ties to even. Ordinary texts (at most 19 significant digits that fit 53
// bits, a power of ten up to 22) are converted exactly by one floating-point
// multiplication or division; everything else goes to the standard library's
// locale-independent std::from_chars.
#pragma once

namespace kiln::numeric {

struct DecimalConversion {
  double value;
  const char* end;  // behind the text used; the text itself when none was
};

// Leading white space, a sign, then decimal digits with an optional "." and
// exponent, a hexadecimal "0x" form, or an infinity or NaN name. Out of range
// gives infinity or 0 with the sign, as strtod does.
DecimalConversion convert_decimal_text(const char* text);

// The common shape of a worksheet number, read in one pass: digits, the
// separator, digits (at least one digit in all, nothing before them), then
// ASCII white space only. When the text has that shape and its value is
// exact by one multiplication or division, *value is set and the position of
// the terminating NUL returned; null otherwise (the caller takes the general
// way).
const char* convert_plain_decimal(const char* p, char separator, double* value);

}  // namespace kiln::numeric
