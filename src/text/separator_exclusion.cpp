// The process-wide separator-exclusion character of separator detection.
#include "text/templates.h"

#include <kilnutil/text.h>

namespace kiln::text {

namespace {

int g_separator_exclusion_char = 0;  // none

}  // namespace

int separator_exclusion_char() { return g_separator_exclusion_char; }

int set_separator_exclusion_char(int c) {
  const int previous = g_separator_exclusion_char;
  g_separator_exclusion_char = c;
  return previous;
}

}  // namespace kiln::text

int KILNUTIL_SetSeparatorExclusionChar(int c) { return kiln::text::set_separator_exclusion_char(c); }

int KILNUTIL_GetSeparatorExclusionChar(void) { return kiln::text::separator_exclusion_char(); }
