#include "unicode/code_page_direct.h"

#include "unicode/utf8.h"

#include <cstdint>
#include <cstring>
#include <memory>
#include <new>

namespace kiln::unicode {

namespace {

bool is_single_byte_page(unsigned page) {
  return page == 874 || (page >= 1250 && page <= 1258) || (page >= 28591 && page <= 28605);
}

bool is_double_byte_page(unsigned page) { return page == 932 || page == 936 || page == 949 || page == 950; }

// A character's UTF-8 form packed in 32 bits: up to three bytes, the length
// in the top byte. 0 means "not known yet".
using PackedUtf8 = uint32_t;

// Converts one character (1 or 2 bytes) through the platform and packs its
// UTF-8 form; 0 when it is not one BMP character outside the surrogates (a
// substitution followed by a second character, say).
PackedUtf8 convert_character(unsigned page, const unsigned char* bytes, int size) {
  KILN_WCHAR units[4];
  const int count = platform::multibyte_to_wide(page, reinterpret_cast<const char*>(bytes), size, units, 4);
  if (count != 1 || (units[0] >= 0xD800 && units[0] <= 0xDFFF)) return 0;
  char encoded[4];
  const int length = utf8_encode(units[0], encoded);
  PackedUtf8 packed = static_cast<PackedUtf8>(length) << 24;
  for (int i = 0; i < length; ++i) packed |= static_cast<PackedUtf8>(static_cast<unsigned char>(encoded[i])) << (8 * i);
  return packed;
}

// Appends a packed character; the output keeps one spare byte for the
// 4-byte store.
inline char* put(char* out, PackedUtf8 packed) {
  std::memcpy(out, &packed, sizeof packed);
  return out + (packed >> 24);
}

// Characters that have no packed form (several units): converted through the
// platform on their own and encoded unit by unit; false when a unit is a
// surrogate (the two-step conversion would pair it across characters).
bool put_unpacked(unsigned page, const unsigned char* bytes, int size, char*& out) {
  KILN_WCHAR units[8];
  const int count = platform::multibyte_to_wide(page, reinterpret_cast<const char*>(bytes), size, units, 8);
  if (count <= 0 || count > size) return false;  // keeps within 3 bytes per byte
  for (int i = 0; i < count; ++i) {
    if (units[i] >= 0xD800 && units[i] <= 0xDFFF) return false;
    out += utf8_encode(units[i], out);
  }
  return true;
}

// Small open-addressing cache of the two-byte characters met in one call.
class PairCache {
public:
  bool ready() const { return slots_ != nullptr; }
  PackedUtf8* find(unsigned key) {
    for (unsigned probe = 0, slot = hash(key); probe < kMaxProbes; ++probe, slot = (slot + 1) & kMask) {
      Slot& s = slots_[slot];
      if (s.key == key + 1) return &s.value;
      if (s.key == 0) {
        s.key = key + 1;
        return &s.value;
      }
    }
    return nullptr;  // crowded: convert without caching
  }

private:
  static constexpr unsigned kSlots = 4096, kMask = kSlots - 1, kMaxProbes = 8;
  struct Slot {
    uint32_t key;  // the two bytes plus one; 0 for an empty slot
    PackedUtf8 value;
  };
  static unsigned hash(unsigned key) { return (key * 0x9E3779B1u) >> 20; }
  std::unique_ptr<Slot[]> slots_{new (std::nothrow) Slot[kSlots]()};
};

int convert_single_byte(unsigned page, const unsigned char* p, size_t n, char* out_begin) {
  // Every byte 0x80-0xFF in one run: one unit each, or no direct path.
  unsigned char high[128];
  for (int i = 0; i < 128; ++i) high[i] = static_cast<unsigned char>(0x80 + i);
  KILN_WCHAR units[128];
  if (platform::multibyte_to_wide(page, reinterpret_cast<const char*>(high), 128, units, 128) != 128) return -1;
  PackedUtf8 table[128];
  for (int i = 0; i < 128; ++i) {
    if (units[i] >= 0xD800 && units[i] <= 0xDFFF) return -1;
    char encoded[4];
    const int length = utf8_encode(units[i], encoded);
    table[i] = static_cast<PackedUtf8>(length) << 24;
    for (int k = 0; k < length; ++k)
      table[i] |= static_cast<PackedUtf8>(static_cast<unsigned char>(encoded[k])) << (8 * k);
  }
  char* out = out_begin;
  for (size_t i = 0; i < n; ++i) {
    if (p[i] < 0x80) *out++ = static_cast<char>(p[i]);
    else out = put(out, table[p[i] - 0x80]);
  }
  return static_cast<int>(out - out_begin);
}

int convert_double_byte(unsigned page, const unsigned char* p, size_t n, char* out_begin) {
  PackedUtf8 singles[128] = {};
  PairCache pairs;
  if (!pairs.ready()) return -1;
  char* out = out_begin;
  for (size_t i = 0; i < n;) {
    const unsigned char lead = p[i];
    if (lead < 0x80) {
      *out++ = static_cast<char>(lead);
      ++i;
      continue;
    }
    // The platform's split: a lead byte takes the next byte whatever it is.
    const int size = platform::is_lead_byte(page, lead) && i + 1 < n ? 2 : 1;
    PackedUtf8* cached = size == 1 ? &singles[lead - 0x80] : pairs.find((static_cast<unsigned>(lead) << 8) | p[i + 1]);
    PackedUtf8 packed = cached != nullptr ? *cached : 0;
    if (packed == 0) {
      packed = convert_character(page, p + i, size);
      if (cached != nullptr) *cached = packed;
    }
    if (packed != 0) {
      out = put(out, packed);
    } else if (!put_unpacked(page, p + i, size, out)) {
      return -1;
    }
    i += static_cast<size_t>(size);
  }
  return static_cast<int>(out - out_begin);
}

}  // namespace

int code_page_to_utf8_direct(unsigned code_page, const char* text, int length, Scratch<char>& utf8) {
  const bool single = is_single_byte_page(code_page);
  if (text == nullptr || (!single && !is_double_byte_page(code_page))) return -1;
  const size_t n = length < 0 ? std::strlen(text) + 1 : static_cast<size_t>(length);
  if (n < static_cast<size_t>(kDirectConversionMinimum) || n > 0x7FFFFFFF / 3) return -1;
  // At most 3 UTF-8 bytes per byte (a character of one or two bytes is one
  // BMP unit or a few substitutions), and a spare byte for the 4-byte store.
  if (!utf8.reserve(3 * n + 4)) return 0;
  const auto* bytes = reinterpret_cast<const unsigned char*>(text);
  return single ? convert_single_byte(code_page, bytes, n, utf8.data())
                : convert_double_byte(code_page, bytes, n, utf8.data());
}

}  // namespace kiln::unicode
