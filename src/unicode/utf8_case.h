// In-place case change of UTF-8 text.
#pragma once

namespace kiln::unicode {

// KILNUTIL_UNICODE_UTF8_to_upper_or_to_lower of a string: the first len bytes
// (the whole text when len is below 1 or not below its length), through
// UTF-16 and back; a result that no longer fits is cut at the text's end.
char* change_case_in_place(char* p, bool to_lower, int len);

}  // namespace kiln::unicode
