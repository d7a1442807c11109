// Date text: the weekday names that date editing matches and the ISO date
// reader.
#pragma once

namespace kiln::datetime {

// The index (0 = Sunday .. 6 = Saturday) of an English weekday name, full or
// its first three letters, ignoring case and surrounding blanks; -1 for any
// other text.
int weekday_index(const char* text);

// KILNUTIL_str2date: "yyyy-mm-dd" with an optional time, as a date value of
// the active system; the missing value for any other text.
double read_iso_date(const char* text);

}  // namespace kiln::datetime
