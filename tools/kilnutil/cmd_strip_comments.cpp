// kilnutil strip-comments [FILE|-]: script text with its block and line
// comments removed by the library's comment reader; the number of lines read
// goes to standard error.
#include "commands.h"

#include <kilnutil/frame.h>

#include <cstdio>
#include <string>

namespace kilnutil_cli {

namespace {

void put_utf8(unsigned c) {
  char bytes[4];
  int n = 0;
  if (c < 0x80) {
    bytes[n++] = static_cast<char>(c);
  } else if (c < 0x800) {
    bytes[n++] = static_cast<char>(0xC0 | (c >> 6));
    bytes[n++] = static_cast<char>(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    bytes[n++] = static_cast<char>(0xE0 | (c >> 12));
    bytes[n++] = static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    bytes[n++] = static_cast<char>(0x80 | (c & 0x3F));
  } else {
    bytes[n++] = static_cast<char>(0xF0 | ((c >> 18) & 0x07));
    bytes[n++] = static_cast<char>(0x80 | ((c >> 12) & 0x3F));
    bytes[n++] = static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    bytes[n++] = static_cast<char>(0x80 | (c & 0x3F));
  }
  std::fwrite(bytes, 1, static_cast<size_t>(n), stdout);
}

}  // namespace

int run_strip_comments(Args args) {
  if (args.size() > 1) return usage_error("strip-comments takes at most one file");
  const bool from_stdin = args.empty() || std::string(args[0]) == "-";
  FILE* stream = from_stdin ? stdin : std::fopen(args[0], "rb");
  if (stream == nullptr) return input_error(std::string(args[0]) + ": cannot open the file");
  KILNUTIL_getc_skip_C_comments(nullptr, nullptr, 0);
  int lines = 0;
  VTextAccessFromFile source(stream);
  for (;;) {
    const unsigned c = KILNUTIL_getc_skip_C_comments_ex(&source, &lines, 0);
    if (c == KILNUTIL_COMMENT_END || source.IsEOF(c)) break;
    put_utf8(c);
  }
  const bool failed = std::ferror(stream) != 0;
  if (!from_stdin) std::fclose(stream);
  if (failed) return input_error(std::string(from_stdin ? "-" : args[0]) + ": read error");
  std::fprintf(stderr, "lines: %d\n", lines);
  return kOk;
}

}  // namespace kilnutil_cli
