// kilnutil chars TEXT|-: each character of a UTF-8 text, walked with the
// library's own primitives, with its byte offset, byte count, code point and
// UTF-16 units.
#include "commands.h"

#include <kilnutil/unicode.h>

#include <cstdio>
#include <string>

namespace kilnutil_cli {

int run_chars(Args args) {
  if (args.size() != 1) return usage_error("chars takes one argument: TEXT, or - for standard input");
  const std::string text = text_argument(args[0]);

  std::printf("%-7s %-5s %-10s %s\n", "offset", "bytes", "code point", "UTF-16");
  const char* begin = text.c_str();
  for (const char* p = begin; *p != '\0';) {
    const char* character = p;
    const unsigned int code_point = KILNUTIL_UNICODE_UTF8_get_char_adv_str(&p);
    // Out-of-range values (the lenient decoder can yield up to 0x1FFFFF) make
    // the encoder zero the unit before its buffer, so keep one in front.
    KILN_WCHAR storage[4];
    KILN_WCHAR* units = storage + 1;
    const int unit_count = KILNUTIL_UNICODE_UTF16_get_char_length(code_point, units);
    std::string utf16;
    for (int i = 0; i < unit_count; ++i) {
      char unit[8];
      std::snprintf(unit, sizeof unit, "%s%04X", i ? " " : "", static_cast<unsigned>(units[i]));
      utf16 += unit;
    }
    if (unit_count < 0) utf16 = "(none)";
    std::printf("%-7td %-5td U+%-8.4X %s\n", character - begin, p - character, code_point, utf16.c_str());
  }
  return kOk;
}

}  // namespace kilnutil_cli
