// Exports of the comment-skipping reader and of comment skipping in text.
#include "frame/comment_reader.h"

#include <kilnutil/frame.h>

extern "C" {

unsigned int KILNUTIL_getc_skip_C_comments_ex(VTextAccess* source, int* line, unsigned int flags) {
  if (source == nullptr) {
    kiln::frame::reset_comment_marks();
    return 0;
  }
  return kiln::frame::read_skipping_comments(*source, line, flags);
}

unsigned int KILNUTIL_getc_skip_C_comments(FILE* stream, int* line, unsigned int flags) {
  if (stream == nullptr) {
    kiln::frame::reset_comment_marks();
    return 0;
  }
  VTextAccessFromFile source(stream);
  return kiln::frame::read_skipping_comments(source, line, flags);
}

char* KILNUTIL_parse_C_comments(const char* text, unsigned int flags) {
  if (text == nullptr) return nullptr;
  return const_cast<char*>(kiln::frame::skip_leading_block_comments(text, flags));
}

char* KILNUTIL_skip_CPP_comments_and_spaces(const char* text) {
  if (text == nullptr) return nullptr;
  return const_cast<char*>(kiln::frame::skip_comments_and_spaces(text));
}

}  // extern "C"
