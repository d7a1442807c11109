// Characters of byte streams, one UTF-8 character or UTF-16 unit at a time:
// the exported forms.
#include "unicode/char_stream.h"

#include <kilnutil/unicode.h>

using namespace kiln::unicode;

extern "C" {

int KILNUTIL_UTF8_fgetc(void* stream, unsigned int flags) { return read_utf8_char(stream, flags); }

void KILNUTIL_UTF8_ungetc(unsigned int c, void* stream, unsigned int flags) { unread_utf8_char(c, stream, flags); }

int KILNUTIL_UTF16_fgetc(void* stream, int big_endian, unsigned int flags) {
  return read_utf16_unit(stream, big_endian != 0, flags);
}

int KILNUTIL_UTF16_ungetc(unsigned int unit, void* stream, int big_endian, unsigned int flags) {
  return unread_utf16_unit(unit, stream, big_endian != 0, flags);
}

}  // extern "C"
