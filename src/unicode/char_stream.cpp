// Reading and pushing back one character at a time: UTF-8 characters and
// UTF-16 units from a stdio stream, or (flag 4) from one of the library's
// byte sources.
#include "unicode/char_stream.h"
#include "unicode/utf8.h"

#include <kilnutil/unicode.h>

#include <cstdio>
#include <cwchar>

namespace {

// The bytes of a stdio stream or of a byte source, whichever the flags say.
class ByteReader {
public:
  ByteReader(void* stream, unsigned flags)
      : file_((flags & KILNUTIL_CHAR_SOURCE) ? nullptr : static_cast<FILE*>(stream)),
        source_((flags & KILNUTIL_CHAR_SOURCE) ? static_cast<KilnByteSource*>(stream) : nullptr) {}

  // The next byte, or -1 at the end.
  int get() {
    const int byte = file_ != nullptr ? std::fgetc(file_) : source_->next_byte();
    if (byte < 0) ended_ = true;
    return byte < 0 ? -1 : byte;
  }
  // Gives a byte back; the byte, or -1 when refused.
  int unget(int byte) {
    const int result = file_ != nullptr ? std::ungetc(byte, file_) : source_->push_back_byte(byte);
    return result < 0 ? -1 : result;
  }
  bool at_end() const { return file_ != nullptr ? std::feof(file_) != 0 : ended_; }

private:
  FILE* file_;
  KilnByteSource* source_;
  bool ended_ = false;
};

// Flag 0x1000: a raw little-endian unit. The end is not reported: a read at
// the end gives the byte 0xFF.
int read_raw_unit(ByteReader& reader) {
  const unsigned low = static_cast<unsigned char>(reader.get());
  const unsigned high = reader.at_end() ? 0 : static_cast<unsigned char>(reader.get());
  return static_cast<int>(low | (high << 8));
}

// A character by its lead byte's classes; continuation bytes are taken as
// they come, unchecked, the end of the stream included.
int read_utf8_character(ByteReader& reader) {
  const int lead = reader.get();
  if (lead < 0x80) return lead;
  const kiln::unicode::Utf8Lead lead_class = kiln::unicode::utf8_lead(static_cast<unsigned>(lead));
  const int continuation_bytes = lead_class.continuation_bytes;
  unsigned value = lead_class.bits;
  for (int i = 0; i < continuation_bytes; ++i) value = (value << 6) | (static_cast<unsigned>(reader.get()) & 0x3F);
  return static_cast<int>(value);
}

bool is_wide_stream(unsigned flags) { return (flags & KILNUTIL_CHAR_WIDE_STREAM) && !(flags & KILNUTIL_CHAR_SOURCE); }

}  // namespace

namespace kiln::unicode {

int read_utf8_char(void* stream, unsigned flags) {
  if (stream == nullptr) return -1;
  ByteReader reader(stream, flags);
  if (flags & KILNUTIL_CHAR_RAW_UTF16) return read_raw_unit(reader);
  if (is_wide_stream(flags)) {
    const wint_t character = std::fgetwc(static_cast<FILE*>(stream));
    return character == WEOF ? -1 : static_cast<int>(character);
  }
  return read_utf8_character(reader);
}

void unread_utf8_char(unsigned c, void* stream, unsigned flags) {
  if (stream == nullptr) return;
  if (is_wide_stream(flags)) {
    // wint_t is 32 bits wide on POSIX and 16 on Windows, where a wide stream
    // takes back one UTF-16 unit: the cast is the narrowing only there.
    std::ungetwc(static_cast<std::wint_t>(static_cast<unsigned long>(c)), static_cast<FILE*>(stream));
    return;
  }
  char bytes[4];
  const int count = utf8_encode(c, bytes);
  ByteReader reader(stream, flags);
  for (int i = count - 1; i >= 0; --i) reader.unget(static_cast<unsigned char>(bytes[i]));
}

int read_utf16_unit(void* stream, bool big_endian, unsigned flags) {
  if (stream == nullptr) return -1;
  ByteReader reader(stream, flags);
  const int first = reader.get();
  if (first < 0) return -1;
  const int second = reader.get();
  if (second < 0) return -1;
  return big_endian ? ((first << 8) | second) : (first | (second << 8));
}

int unread_utf16_unit(unsigned unit, void* stream, bool big_endian, unsigned flags) {
  if (stream == nullptr) return -1;
  ByteReader reader(stream, flags);
  const int low = static_cast<int>(unit & 0xFF);
  const int high = static_cast<int>((unit >> 8) & 0xFF);
  // The byte read first goes back last.
  const int first = big_endian ? high : low;
  const int second = big_endian ? low : high;
  reader.unget(second);
  return reader.unget(first);
}

}  // namespace kiln::unicode
