// The next separated term, where a term may be quoted.
#pragma once

namespace kiln::text {

// Copies the term of `text` up to the first separator `sep` outside `quote`s
// into dest (at most size - 1 bytes, whole characters; size -1: unbounded),
// the quotes dropped when drop_quotes is not 0 and a doubled quote kept as
// one. Behind the term's separator, or null when no separator follows.
char* next_quoted_term(char* dest, const char* text, int sep, int quote, int drop_quotes, int size);

}  // namespace kiln::text
