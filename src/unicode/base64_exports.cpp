// Base64 encoding and decoding: the exported forms.
#include "unicode/base64.h"

#include <kilnutil/unicode.h>

extern "C" {

int KILNUTIL_encode_base64(const unsigned char* src, int len, char* dst) {
  return kiln::unicode::encode_base64(src, len, dst);
}

int encode_base64(const unsigned char* src, int len, char* dst) { return kiln::unicode::encode_base64(src, len, dst); }

int KILNUTIL_decode_base64(const char* src, int len, unsigned char* dst) {
  return kiln::unicode::decode_base64(src, len, dst);
}

int decode_base64(const char* src, int len, unsigned char* dst) { return kiln::unicode::decode_base64(src, len, dst); }

}  // extern "C"
