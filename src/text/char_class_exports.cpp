// Character classes: the class table, white space and the quote and pair
// classifications. Negative values lie outside every table.
#include "text/char_class.h"

#include <kilnutil/text.h>

namespace {

bool outside_tables(int c) { return c < 0; }

}  // namespace

extern "C" {

unsigned char KILNUTIL_test_char(int c) {
  return outside_tables(c) ? kiln::text::kOther : kiln::text::char_class(static_cast<unsigned>(c));
}

int KILNUTIL_isspace(int c) { return !outside_tables(c) && kiln::text::is_space(static_cast<unsigned>(c)) ? 1 : 0; }

int KILNUTIL_is_quote_char(int c) { return outside_tables(c) ? 0 : kiln::text::quote_class(static_cast<unsigned>(c)); }

int is_begin_quote(int c) { return outside_tables(c) ? 0 : kiln::text::begin_quote_class(static_cast<unsigned>(c)); }

int is_end_quote(int c) { return outside_tables(c) ? 0 : kiln::text::end_quote_class(static_cast<unsigned>(c)); }

}  // extern "C"
