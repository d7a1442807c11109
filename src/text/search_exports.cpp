// The character searches of narrow text: the exported forms.
#include "text/chars.h"
#include "text/exposed_derived.h"
#include "text/exposed_search.h"
#include "text/strchr.h"

#include <kilnutil/text.h>

using namespace kiln::text;

extern "C" {

char* KILNUTIL_strchr(const char* text, int c, unsigned int mode) { return search_char(text, c, mode); }

char* KILNUTIL_strchr_reverse(const char* text, int c, const char* from) { return search_char_reverse(text, c, from); }

char* KILNUTIL_exposed_char_pos_ex_loc_ex(const char* text, int target, unsigned int flags, int* status, int loc,
                                          const char* end) {
  return mutable_pos(exposed_search_or_control(text, target, flags, status, loc != 0, end));
}

char* KILNUTIL_exposed_char_pos_from_end(const char* text, int target, int* status) {
  return mutable_pos(last_exposed_char(text, target, status));
}

char* KILNUTIL_exposed_2_char_pos(const char* text, int c1, int c2) {
  return mutable_pos(plain_char_pair(text, c1, c2));
}

char* KILNUTIL_exposed_word_pos(const char* text, const char* word, unsigned int flags) {
  return mutable_pos(exposed_word(text, word, flags));
}

}  // extern "C"
