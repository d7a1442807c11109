// The comment-skipping reader over a character source, and the comment
// skipping of text in memory.
#pragma once

#include <kilnutil/frame.h>

namespace kiln::frame {

// KILNUTIL_getc_skip_C_comments_ex for a source that is not null.
unsigned read_skipping_comments(VTextAccess& source, int* line, unsigned flags);

// Clears the four quote marks (not the pending line count).
void reset_comment_marks();

// The lines joined by line continuations and not yet reported.
unsigned pending_comment_lines();

// KILNUTIL_parse_C_comments and KILNUTIL_skip_CPP_comments_and_spaces of a
// text that is not null.
const char* skip_leading_block_comments(const char* text, unsigned flags);
const char* skip_comments_and_spaces(const char* text);

}  // namespace kiln::frame
