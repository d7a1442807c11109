// Reading and giving back one UTF-8 character or one UTF-16 unit of a stdio
// stream (or, with flag 4, of a KilnByteSource).
#pragma once

namespace kiln::unicode {

// One UTF-8 character, or -1 at the end.
int read_utf8_char(void* stream, unsigned flags);
// Pushes c back as UTF-8 bytes; nothing for c >= 0x110000.
void unread_utf8_char(unsigned c, void* stream, unsigned flags);

// One UTF-16 unit of two bytes (little-endian unless big_endian), or -1 when
// either byte is missing or there is no stream.
int read_utf16_unit(void* stream, bool big_endian, unsigned flags);
// Pushes the unit's two bytes back, the one read first last: what the second
// push-back gives, -1 without a stream.
int unread_utf16_unit(unsigned unit, void* stream, bool big_endian, unsigned flags);

}  // namespace kiln::unicode
