// Character constants and the special integer forms: the exported forms.
#include "numeric/char_constant.h"

#include <kilnutil/numeric.h>

using namespace kiln::numeric;

extern "C" {

int KILNUTIL_expand_C_escape_codes(char* text) { return expand_escapes_in_place(text); }

int KILNUTIL_is_str_ascii_char(const char* text, int* value) { return read_character_constant(text, value) ? 1 : 0; }

int KILNUTIL_cvt_special_str_to_int(const char* text, int* value, int* error) {
  return read_special_integer(text, value, error) ? 1 : 0;
}

}  // extern "C"
