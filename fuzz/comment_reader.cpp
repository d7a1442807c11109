// Any bytes through the comment reader on a string source: it ends (the
// string source reports its end, also inside an open block comment), never
// reads past the NUL, and counts no more lines than the text has characters
// (an overlong form such as C0 8A reads as a line feed too).
#include <kilnutil/frame.h>

#include <cstdint>
#include <cstdlib>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);  // cut at its first NUL by the source
  // Lines joined by an earlier input are still pending: report them first.
  KILNUTIL_getc_skip_C_comments_ex(nullptr, nullptr, 0);
  VTextAccessFromString flush("\n");
  int flushed = 0;
  KILNUTIL_getc_skip_C_comments_ex(&flush, &flushed, 0);
  KILNUTIL_getc_skip_C_comments_ex(nullptr, nullptr, 0);
  VTextAccessFromString source(text.c_str());
  int lines = 0;
  size_t reads = 0;
  for (;;) {
    const unsigned c = KILNUTIL_getc_skip_C_comments_ex(&source, &lines, 0);
    if (c == KILNUTIL_COMMENT_END || source.IsEOF(c)) break;
    if (++reads > size) std::abort();  // every call consumes at least one character
  }
  if (lines < 0 || static_cast<size_t>(lines) > size) std::abort();
  KILNUTIL_parse_C_comments(text.c_str(), KILNUTIL_COMMENTS_SKIP_SPACES);
  KILNUTIL_skip_CPP_comments_and_spaces(text.c_str());
  return 0;
}
