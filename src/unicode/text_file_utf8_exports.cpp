// Any text file as a UTF-8 stream: the exported forms.
#include "unicode/text_file_utf8.h"

#include <kilnutil/unicode.h>

#include <cstring>

extern "C" {

void KILNUTIL_UNICODE_open_text_file_to_UTF8_INIT(TextFileToUTF8Context* context) {
  if (context != nullptr) std::memset(context, 0, sizeof *context);
}

FILE* KILNUTIL_UNICODE_open_text_file_to_UTF8_BEGIN(FILE* stream, TextFileToUTF8Context* context) {
  return kiln::unicode::open_text_file_as_utf8(stream, context);
}

void KILNUTIL_UNICODE_open_text_file_to_UTF8_END(FILE* stream, TextFileToUTF8Context* context) {
  kiln::unicode::close_text_file_as_utf8(stream, context);
}

}  // extern "C"
