// Hexadecimal and binary integers: the exported forms.
#include "numeric/radix.h"

#include <kilnutil/numeric.h>

using namespace kiln::numeric;

extern "C" {

unsigned int KILNUTIL_hexstr2int(const char* text) { return hex_text_value(text); }

unsigned int Hex2Dec(const char* text) { return hex_text_value(text); }

unsigned int KILNUTIL_binstr2int(const char* text) { return binary_text_value(text); }

int KILNUTIL_hexstr2int64(const char* text, unsigned long long* value) {
  return hex_text_to_bits(text, value) ? 0 : -1;
}

int is_hex_string(const char* text) { return is_hex_text(text) ? 1 : 0; }

int hex_dec_convert(double* number, char* hex, int width) { return convert_hex_and_number(number, hex, width); }

}  // extern "C"
