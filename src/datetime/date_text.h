// The weekday names that date editing matches.
#pragma once

namespace kiln::datetime {

// The index (0 = Sunday .. 6 = Saturday) of an English weekday name, full or
// its first three letters, ignoring case and surrounding blanks; -1 for any
// other text.
int weekday_index(const char* text);

}  // namespace kiln::datetime
