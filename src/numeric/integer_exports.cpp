// Decimal integers in text: the exported forms.
#include "numeric/integer_rule.h"
#include "numeric/integer_text.h"

#include <kilnutil/numeric.h>

using namespace kiln::numeric;

extern "C" {

int KILNUTIL_cvtstr2int(const char* text, int* value) { return convert_integer_text(text, value) ? 1 : 0; }

int KILNUTIL_str2int(const char* text) {
  int value = 0;
  return convert_integer_text(text, &value) ? value : 0;
}

int is_str_numeric_integer(const char* text, unsigned int* value) { return read_whole_integer(text, value) ? 1 : 0; }

char* is_str_numeric_integer_with_args(char* text, unsigned int* value, char separator) {
  return read_integer_before_arguments(text, value, separator);
}

bool is_str_digits_only(const char* text) { return is_digits_only(text); }

int KILNUTIL_is_str_lead_zero_numbers(const char* text) { return has_leading_zero(text) ? 1 : 0; }

}  // extern "C"
