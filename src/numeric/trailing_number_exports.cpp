// The exponent test and the number that ends a name: the exported forms.
#include "numeric/trailing_number.h"

#include <kilnutil/numeric.h>

using namespace kiln::numeric;

extern "C" {

int KILNUTIL_is_str_has_exponent(const char* text) { return has_signed_exponent(text) ? 1 : 0; }

int KILNUTIL_End_Number_ex(char* prefix, char* text, char** number_start, int mode) {
  return split_trailing_number(prefix, text, number_start, mode);
}

int string_to_prefix_end_number(char* prefix, char* text, bool skip_zeros) {
  return split_trailing_number(prefix, text, nullptr, skip_zeros ? kTrailingNumberSkipZeros : 0);
}

}  // extern "C"
