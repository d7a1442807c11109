// Any text file as a UTF-8 stream: the work of
// KILNUTIL_UNICODE_open_text_file_to_UTF8_BEGIN and _END.
#pragma once

#include <kilnutil/unicode.h>

#include <cstdio>

namespace kiln::unicode {

// Detects the stream's encoding and hands back a stream of its UTF-8 text
// (the same stream past its mark, or one on a converted copy).
FILE* open_text_file_as_utf8(FILE* stream, TextFileToUTF8Context* context);
// Closes the stream and deletes the converted copy, if any.
void close_text_file_as_utf8(FILE* stream, TextFileToUTF8Context* context);

}  // namespace kiln::unicode
