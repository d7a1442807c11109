// Any bytes as date text: the ISO date reader and the text form of the
// date-editing operation, with no read past the terminator.
#include "fuzz_support.h"

#include <kilnutil/datetime.h>
#include <kilnutil/frame.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

using fuzz_support::check;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::unique_ptr<char[]> text(new char[size + 1]);
  std::memcpy(text.get(), data, size);
  text[size] = '\0';
  const double date = KILNUTIL_str2date(text.get());
  SYSTEMTIME fields{};
  check(is_missing_value(date) || JulianDateToSystemTime(&date, &fields, nullptr, 3));
  double value = 2451544.5;
  KILNUTIL_dateinc(&value, reinterpret_cast<double*>(text.get()), KILNUTIL_DATEINC_SET_FROM_TEXT, nullptr);
  return 0;
}
