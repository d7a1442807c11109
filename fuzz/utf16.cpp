// Any UTF-16 units through the UTF-16 step: the result is always one unit
// back, one or two forward, and never past the terminator when stepping on.
#include "fuzz_support.h"

#include <kilnutil/unicode.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

using fuzz_support::check;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::size_t count = size / 2;
  std::unique_ptr<KILN_WCHAR[]> units(new KILN_WCHAR[count + 2]);
  std::memcpy(units.get(), data, count * 2);
  units[count] = 0;
  units[count + 1] = 0;
  for (std::size_t i = 0; i < count; ++i) {
    unsigned cp = 0;
    const KILN_WCHAR* next = KILNUTIL_UNICODE_UTF16_adv_str(units.get() + i, &cp);
    const std::ptrdiff_t step = next - (units.get() + i);
    check(step == -1 || step == 1 || step == 2);
    KILN_WCHAR encoded[3];
    check(cp >= 0x110000 || KILNUTIL_UNICODE_UTF16_get_char_length(cp, encoded) >= 1);
  }
  return 0;
}
