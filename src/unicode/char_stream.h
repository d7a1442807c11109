// Reading and giving back one UTF-8 character of a stdio stream (or, with
// flag 4, of a KilnByteSource): the work of KILNUTIL_UTF8_fgetc/_ungetc.
#pragma once

namespace kiln::unicode {

// One UTF-8 character, or -1 at the end.
int read_utf8_char(void* stream, unsigned flags);
// Pushes c back as UTF-8 bytes; nothing for c >= 0x110000.
void unread_utf8_char(unsigned c, void* stream, unsigned flags);

}  // namespace kiln::unicode
