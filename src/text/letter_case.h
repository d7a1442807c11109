// Single-character case mapping of the scanners: ASCII letters directly,
// other characters of the basic plane by the platform's simple mapping.
#pragma once

namespace kiln::text {

unsigned upper_case_slow(unsigned c);
unsigned lower_case_slow(unsigned c);

inline unsigned upper_case(unsigned c) {
  if (c < 128) return c - 'a' < 26u ? c - 32 : c;
  return upper_case_slow(c);
}

inline unsigned lower_case(unsigned c) {
  if (c < 128) return c - 'A' < 26u ? c + 32 : c;
  return lower_case_slow(c);
}

// The case-converted form of c: its upper case, or its lower case when
// upper-casing leaves c as it is (c itself above U+FFFF). The either-case
// character searches match c and this one form.
inline unsigned other_case(unsigned c) {
  const unsigned upper = upper_case(c);
  return upper != c ? upper : lower_case(c);
}

// a equals b, or b's other case.
inline bool same_letter_either_case(unsigned a, unsigned b) {
  return a == b || a == upper_case(b) || a == lower_case(b);
}

}  // namespace kiln::text
