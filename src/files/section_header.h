// Header lines of sectioned text files: "[name]" after optional white space.
#pragma once

namespace kiln::files {

// The "[" of a header line, or null; *close (optional) receives the
// character that closes the name.
const char* find_section_header(const char* line, const char** close);

// The header's name trimmed of spaces and tabs in place (the closing
// character is overwritten with a NUL), or null when the line is no header.
char* section_name_in_line(char* line);

// Whether two names are equal without regard to ASCII case.
bool same_section_name(const char* a, const char* b);

}  // namespace kiln::files
