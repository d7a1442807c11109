// The lenient UTF-8 walk shared by every narrow-text scanner of the library.
//
// A character's length comes from its lead byte's bits alone (0x20 and 0x10),
// never from whether the following bytes are continuation bytes; a NUL where
// a further byte would be ends the character early. So a stray continuation
// byte counts as a lead byte (0x80-0x9F two bytes, 0xA0-0xAF three, 0xB0-0xBF
// and 0xF8-0xFF four), and no walk can ever pass the terminating NUL.
#pragma once

#include <cstddef>
#include <cstdint>

namespace kiln::unicode {

// Bytes the walk advances over the character at p.
inline int utf8_advance_length(const unsigned char* p) {
  const unsigned lead = p[0];
  if (lead < 0x80 || p[1] == 0) return 1;
  if (!(lead & 0x20) || p[2] == 0) return 2;
  if (!(lead & 0x10)) return 3;
  return p[3] != 0 ? 4 : 3;
}

inline const char* utf8_advance(const char* p) {
  return p + utf8_advance_length(reinterpret_cast<const unsigned char*>(p));
}

// The class of a lead byte of 0x80 or more, by its bits 0x20 and 0x10 alone:
// how many continuation bytes follow and the lead's own bits of the value.
struct Utf8Lead {
  int continuation_bytes;
  std::uint32_t bits;
};

inline Utf8Lead utf8_lead(std::uint32_t lead) {
  if (!(lead & 0x20)) return {1, lead & 0x1F};
  if (!(lead & 0x10)) return {2, lead & 0x0F};
  return {3, lead & 0x07};
}

// Decodes the character at p by the lead byte's classes (no check for
// overlong forms, surrogates or values above 0x10FFFF); a NUL met where a
// further byte is expected ends the decoding with the bits gathered so far.
// `length` receives the bytes consumed, which always equals the advance.
inline std::uint32_t utf8_decode(const unsigned char* p, int* length) {
  const std::uint32_t lead = p[0];
  if (lead < 0x80) {
    *length = 1;
    return lead;
  }
  const Utf8Lead lead_class = utf8_lead(lead);
  const int continuation_bytes = lead_class.continuation_bytes;
  std::uint32_t value = lead_class.bits;
  int consumed = 1;
  for (int i = 1; i <= continuation_bytes; ++i) {
    value <<= 6;
    if (p[consumed] == 0) continue;  // keep shifting the gathered bits into place
    value |= p[consumed] & 0x3Fu;
    ++consumed;
  }
  // A NUL cuts the character short: the position stays on that NUL.
  *length = consumed;
  return value;
}

// Writes the standard UTF-8 form of cp (surrogates included); nothing for
// cp >= 0x110000. Returns the number of bytes written.
inline int utf8_encode(std::uint32_t cp, char* out) {
  if (cp < 0x80) {
    out[0] = static_cast<char>(cp);
    return 1;
  }
  if (cp < 0x800) {
    out[0] = static_cast<char>(0xC0 | (cp >> 6));
    out[1] = static_cast<char>(0x80 | (cp & 0x3F));
    return 2;
  }
  if (cp < 0x10000) {
    out[0] = static_cast<char>(0xE0 | (cp >> 12));
    out[1] = static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
    out[2] = static_cast<char>(0x80 | (cp & 0x3F));
    return 3;
  }
  if (cp < 0x110000) {
    out[0] = static_cast<char>(0xF0 | (cp >> 18));
    out[1] = static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
    out[2] = static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
    out[3] = static_cast<char>(0x80 | (cp & 0x3F));
    return 4;
  }
  return 0;
}

// Given the position just after a character, the position of its first byte:
// back 1 over an ASCII byte, else to the nearest of the bytes two, three back
// whose bit 0x40 is set, else four back. Only bit 0x40 is looked at, so an
// ASCII letter two back stops the walk too. No lower bound check.
inline const char* utf8_go_back(const char* p) {
  const auto* b = reinterpret_cast<const unsigned char*>(p);
  if (b[-1] < 0x80) return p - 1;
  if (b[-2] & 0x40) return p - 2;
  if (b[-3] & 0x40) return p - 3;
  return p - 4;
}

// The same walk back, for a caller that knows where its string starts: bytes
// before `start` are never looked at, and the walk stops at `start` when the
// rule would go further (only malformed text can ask for that).
inline const char* utf8_go_back_within(const char* p, const char* start) {
  const auto* b = reinterpret_cast<const unsigned char*>(p);
  const std::ptrdiff_t room = p - start;
  if (b[-1] < 0x80 || room < 2) return p - 1;
  if (b[-2] & 0x40) return p - 2;
  if (room < 3) return start;
  if (b[-3] & 0x40) return p - 3;
  return room < 4 ? start : p - 4;
}

}  // namespace kiln::unicode
