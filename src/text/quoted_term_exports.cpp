// The next separated, possibly quoted term: the exported forms.
#include "text/quoted_term.h"

#include <kilnutil/text.h>

extern "C" {

char* KILNUTIL_next_quoted_term_ex_ex(char* dest, const char* text, int sep, int quote, int drop_quotes, int size) {
  return kiln::text::next_quoted_term(dest, text, sep, quote, drop_quotes, size);
}

char* KILNUTIL_next_quoted_term(char* dest, const char* text, int sep) {
  return kiln::text::next_quoted_term(dest, text, sep, '"', 1, -1);
}

}  // extern "C"
