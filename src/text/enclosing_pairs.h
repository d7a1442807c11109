// Stripping enclosing pairs ("(" ")", "{" "}", double quotes, "[" "]") off a
// term, in place: the bodies of KILNUTIL_str_inside_ex and the
// KILNUTIL_text_inside_remove_quotes family.
#pragma once

namespace kiln::text {

// One pair; options and *kind as KILNUTIL_str_inside_ex (kind may be null).
char* str_inside(char* text, unsigned options, int* kind);
// Pairs stripped while there are any; *removed (may be null) 1 when one was.
char* remove_enclosing_pairs(char* text, int* removed, unsigned options);
// The same, trimming and cutting a last closer that does not match.
char* remove_enclosing_pairs_even_mismatch(char* text, int* removed);

}  // namespace kiln::text
