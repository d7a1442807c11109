// The runtime's unsigned integer conversions (strtoul, _strtoui64) as the
// library's callers know them on every platform: leading white space, one
// sign, for base 16 an optional "0x", digits up to the first other character.
// Overflow saturates to the type's maximum; a "-" negates in the type's
// unsigned arithmetic (so the 32-bit form does not follow 64-bit Linux).
#pragma once

#include <cstdint>

namespace kiln::numeric {

struct UnsignedConversion {
  std::uint64_t value;
  const char* end;  // behind the last digit used; the text itself when none
  bool overflow;
};

UnsignedConversion convert_unsigned(const char* text, int base, std::uint64_t maximum);

inline std::uint32_t runtime_strtoul(const char* text, int base, const char** end = nullptr) {
  const UnsignedConversion c = convert_unsigned(text, base, 0xFFFFFFFFu);
  if (end) *end = c.end;
  return static_cast<std::uint32_t>(c.value);
}

inline std::uint64_t runtime_strtoull(const char* text, int base, const char** end = nullptr) {
  const UnsignedConversion c = convert_unsigned(text, base, UINT64_MAX);
  if (end) *end = c.end;
  return c.value;
}

}  // namespace kiln::numeric
