// Searches built on the exposed search: the last hit, a two-character
// sequence, and a whole word.
#pragma once

namespace kiln::text {

// The last exposed `target` (a search that leaves a quote open stops with the
// hit before it); status may be null.
const char* last_exposed_char(const char* text, int target, int* status);

// The first c1 found by the plain character search whose next byte is c2.
const char* plain_char_pair(const char* text, int c1, int c2);

// The first exposed occurrence of `word` (flags 0x1000: comments and blanks
// skipped first; 0x2000: also inside a longer word; 0x4000: case matched).
const char* exposed_word(const char* text, const char* word, unsigned flags);

}  // namespace kiln::text
