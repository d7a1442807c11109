// Stripping enclosing pairs: thin forwards to text/enclosing_pairs.h.
#include "text/enclosing_pairs.h"

#include <kilnutil/text.h>

extern "C" {

char* KILNUTIL_str_inside_ex(char* text, unsigned int options, int* kind) {
  return kiln::text::str_inside(text, options, kind);
}

char* KILNUTIL_str_inside(char* text, unsigned int options) { return kiln::text::str_inside(text, options, nullptr); }

char* KILNUTIL_text_inside_remove_quotes_ex(char* text, int* removed, unsigned int options) {
  return kiln::text::remove_enclosing_pairs(text, removed, options);
}

char* KILNUTIL_text_inside_remove_quotes(char* text, int* removed) {
  return kiln::text::remove_enclosing_pairs(text, removed, 0);
}

char* KILNUTIL_text_inside_remove_quotes_even_mismatch(char* text, int* removed) {
  return kiln::text::remove_enclosing_pairs_even_mismatch(text, removed);
}

}  // extern "C"
