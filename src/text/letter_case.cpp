#include "text/letter_case.h"

#include "platform/case_mapping.h"

namespace kiln::text {

namespace {

template <unsigned (*Convert)(KILN_WCHAR*, unsigned)>
unsigned convert_unit(unsigned c) {
  if (c >= 0x10000) return c;
  KILN_WCHAR unit = static_cast<KILN_WCHAR>(c);
  Convert(&unit, 1);
  return unit;
}

}  // namespace

unsigned upper_case_slow(unsigned c) { return convert_unit<platform::upper_case_units>(c); }
unsigned lower_case_slow(unsigned c) { return convert_unit<platform::lower_case_units>(c); }

}  // namespace kiln::text
