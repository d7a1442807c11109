// The process-wide separator-exclusion character of separator detection.
#include "frame/relaxed.h"
#include "text/templates.h"

#include <kilnutil/text.h>

namespace kiln::text {

namespace {

kiln::frame::Relaxed<int> g_separator_exclusion_char{0};  // none

}  // namespace

int separator_exclusion_char() { return g_separator_exclusion_char.load(); }

int set_separator_exclusion_char(int c) {
  const int previous = g_separator_exclusion_char.load();
  g_separator_exclusion_char.store(c);
  return previous;
}

}  // namespace kiln::text

int KILNUTIL_SetSeparatorExclusionChar(int c) { return kiln::text::set_separator_exclusion_char(c); }

int KILNUTIL_GetSeparatorExclusionChar(void) { return kiln::text::separator_exclusion_char(); }
