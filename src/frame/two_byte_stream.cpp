// Two-byte characters on byte streams: the reader (code-page or UTF-16
// mode), the push-back and the store. The first byte goes in the low byte.
#include "frame/settings.h"
#include "platform/codepage.h"

#include <kilnutil/frame.h>

#include <cstdio>

namespace {

constexpr unsigned kUtf16Mode = 0x1000;

// The reader's code page, chosen at every call: the loading code page when it
// is non-negative as a signed number, else the string-process code page when
// set, else the system ANSI code page.
unsigned reader_code_page() {
  const unsigned loading = kiln::frame::mbcs_loading_code_page();
  if (static_cast<int>(loading) >= 0) return loading;
  const unsigned string_process = kiln::frame::string_process_code_page();
  if (string_process != kiln::frame::kCodePageNotSet) return string_process;
  return kiln::platform::ansi_code_page();
}

unsigned read_two_byte_char(FILE* stream, unsigned flags) {
  // End of file (-1) leaves 0xFF in a byte; callers test the stream's
  // end-of-file indicator, as the value alone cannot tell.
  const unsigned low = static_cast<unsigned>(std::fgetc(stream)) & 0xFFu;
  unsigned high = 0;
  if (flags & kUtf16Mode) {
    if (!std::feof(stream)) high = static_cast<unsigned>(std::fgetc(stream)) & 0xFFu;
  } else if (low != 0xFF && kiln::platform::is_lead_byte(reader_code_page(), static_cast<unsigned char>(low))) {
    high = static_cast<unsigned>(std::fgetc(stream)) & 0xFFu;
  }
  return (high << 8) | low;
}

}  // namespace

extern "C" {

unsigned int KILNUTIL_fgetc_two_new(FILE* stream, unsigned int flags) { return read_two_byte_char(stream, flags); }

unsigned int KILNUTIL_fgetc_two(FILE* stream) { return read_two_byte_char(stream, 0); }

int KILNUTIL_ungetc_two(unsigned int c, FILE* stream) {
  const unsigned high = (c >> 8) & 0xFFu;
  if (high != 0) std::ungetc(static_cast<int>(high), stream);
  return std::ungetc(static_cast<int>(c & 0xFFu), stream);
}

char* setc_two_DBCS(char* dest, unsigned int c) {
  dest[0] = static_cast<char>(c & 0xFFu);
  if ((c & ~0xFFu) == 0) return dest + 1;
  dest[1] = static_cast<char>((c >> 8) & 0xFFu);
  return dest + 2;
}

}  // extern "C"
