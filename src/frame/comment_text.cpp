// Comment skipping in text held in memory: the block comments that open a
// text, and white space followed by comments.
#include "frame/comment_reader.h"

#include "text/char_class.h"
#include "text/chars.h"

#include <cstring>

namespace kiln::frame {

namespace {

const char* skip_white(const char* p) {
  while (*p != '\0') {
    const char* next = p;
    if (text::char_class(text::read_char(next)) != text::kWhiteSpace) break;
    p = next;
  }
  return p;
}

bool opens_block_comment(const char* p) { return p[0] == '/' && p[1] == '*'; }

}  // namespace

const char* skip_leading_block_comments(const char* text, unsigned flags) {
  const char* p = text;
  while (opens_block_comment(p)) {
    const char* close = std::strstr(p + 2, "*/");
    if (close == nullptr) return text;  // an open comment skips nothing
    p = close + 2;
    if (flags & KILNUTIL_COMMENTS_SKIP_SPACES) p = skip_white(p);
  }
  return p;
}

const char* skip_comments_and_spaces(const char* text) {
  const char* p = skip_leading_block_comments(skip_white(text), KILNUTIL_COMMENTS_SKIP_SPACES);
  if (*p == '#' || (p[0] == '/' && p[1] == '/')) {
    const char* line_end = std::strchr(p, '\n');
    p = line_end != nullptr ? line_end : p + std::strlen(p);
  }
  return p;
}

}  // namespace kiln::frame
