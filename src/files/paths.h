// Path syntax check and path splitting (text only, no file system).
#pragma once

namespace kiln::files {

// The syntax code of a path (KILNUTIL_PATH_*).
int path_syntax_code(const char* path);

// Splits path into folder (up to and including the last ":" or backslash),
// name and, when given, extension (from the last "." on; untouched when there
// is none). Returns folder when there is a separator, else name.
char* separate_path(const char* path, char* folder, char* name, char* extension);

}  // namespace kiln::files
