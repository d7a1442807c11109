// Matching brackets and counting mismatches: the bodies of the
// KILNUTIL_find_end_..., KILNUTIL_find_matching_opening_paranthesis_ex and
// KILNUTIL_count_..._mismatch exports.
#pragma once

namespace kiln::text {

// The closer of a pair opened just before text; null (with *error set when
// error is given) when there is none or text is null.
const char* find_closer(const char* text, unsigned open, unsigned close, int* error);
// The opener, at or after start, whose exposed closer is closer.
char* find_matching_opener(const char* start, const char* closer, unsigned flags, int* colon_flag);
int count_bracket_mismatch(const char* text, char** position, int open, int close, unsigned flags);
int count_quote_mismatch(const char* text, char** position);

}  // namespace kiln::text
