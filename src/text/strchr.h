// KILNUTIL_strchr's pair nesting and text walk, shared with the token reader.
#pragma once

#include "text/char_class.h"

namespace kiln::text {

// One pair kind at a time (the begin_quote_class kinds: "(" ")", "{" "}",
// the double quote, "[" "]"); only the open kind's opener and closer count,
// the others are ordinary text inside it. No escapes.
struct PairNesting {
  int kind = 0;
  int depth = 0;

  void reset() { kind = depth = 0; }
  bool is_open() const { return depth != 0; }
  void open(int k) {
    kind = k;
    depth = 1;
  }
  // Follows c while a pair is open; true when c closed it. The closer is
  // tested first, so a double quote closes a double-quoted section.
  bool follow(unsigned c) {
    if (end_quote_class(c) == kind) {
      if (--depth == 0) kind = 0;
      return depth == 0;
    }
    if (begin_quote_class(c) == kind) ++depth;
    return false;
  }
};

// The process-wide nesting of KILNUTIL_strchr, reset by every call to it and
// by KILNUTIL_next_token, which reads tokens with it.
PairNesting& strchr_nesting();

// Whether narrow text is walked byte by byte: the string-process code page
// (or the ANSI code page when none is set) is a Western one, 1200 to 1254.
bool walks_bytes();

}  // namespace kiln::text
