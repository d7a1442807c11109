// Terms and statements of script text: the exported forms.
#include "text/terms.h"

#include <kilnutil/text.h>

using namespace kiln::text;

extern "C" {

char* KILNUTIL_separate_one_term(char** term, char* text, int* op, char** end) {
  return separate_term(term, text, op, end);
}

char* KILNUTIL_get_preceeding_term(char** term, char* closer, char* text) { return preceding_term(term, closer, text); }

char* KILNUTIL_get_remaining_term(char** term, char* text, unsigned short* brackets) {
  return remaining_term(term, text, brackets);
}

char* KILNUTIL_separate_one_statement(char** first, char* text, int* status) {
  return separate_statement(first, text, status);
}

}  // extern "C"
