#include "unicode/utf16_stream_to_utf8.h"

#include "platform/codepage.h"

#include <kilnutil/export.h>

#include <algorithm>
#include <vector>

namespace kiln::unicode {

namespace {

bool is_high_surrogate(KILN_WCHAR unit) { return unit >= 0xD800 && unit <= 0xDBFF; }

// Reads the next chunk's bytes into units from `first` on, a last odd byte
// becoming a unit of its own; the index past the last unit read. `at_end` is
// set when the text has no more bytes: a short read or `bytes_left` used up.
size_t read_units(FILE* in, unsigned long long& bytes_left, std::vector<unsigned char>& bytes,
                  std::vector<KILN_WCHAR>& units, size_t first, bool& at_end) {
  const size_t wanted = static_cast<size_t>(std::min<unsigned long long>((units.size() - first) * 2, bytes_left));
  const size_t got = std::fread(bytes.data(), 1, wanted, in);
  bytes_left -= got;
  at_end = got < wanted || bytes_left == 0;
  size_t end = first;
  for (size_t i = 0; i + 1 < got; i += 2) units[end++] = static_cast<KILN_WCHAR>(bytes[i] | bytes[i + 1] << 8);
  if (got % 2 != 0) units[end++] = bytes[got - 1];
  return end;
}

}  // namespace

StreamConversion utf16le_stream_to_utf8(FILE* in, unsigned long long byte_count, FILE* out, size_t chunk_units) {
  chunk_units = std::max<size_t>(chunk_units, 2);  // a held-back lead unit leaves room for one more
  std::vector<unsigned char> bytes(chunk_units * 2);
  std::vector<KILN_WCHAR> units(chunk_units);
  std::vector<char> utf8(chunk_units * 3);
  size_t held = 0;  // a lead surrogate carried over to join its trail unit
  for (bool at_end = false; !at_end;) {
    size_t count = read_units(in, byte_count, bytes, units, held, at_end);
    const auto zero = std::find(units.begin() + static_cast<std::ptrdiff_t>(held),
                                units.begin() + static_cast<std::ptrdiff_t>(count), KILN_WCHAR{0});
    if (zero != units.begin() + static_cast<std::ptrdiff_t>(count)) {
      count = static_cast<size_t>(zero - units.begin());
      at_end = true;
    }
    held = !at_end && count > 0 && is_high_surrogate(units[count - 1]) ? 1 : 0;
    count -= held;
    if (count > 0) {
      const int size = platform::wide_to_multibyte(platform::kCodePageUtf8, units.data(), static_cast<int>(count),
                                                   utf8.data(), static_cast<int>(utf8.size()));
      if (size <= 0) return StreamConversion::kConversionFailed;
      if (std::fwrite(utf8.data(), 1, static_cast<size_t>(size), out) != static_cast<size_t>(size)) {
        return StreamConversion::kWriteFailed;
      }
    }
    if (held != 0) units[0] = units[count];
  }
  return StreamConversion::kOk;
}

}  // namespace kiln::unicode
