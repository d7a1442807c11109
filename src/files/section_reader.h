// Reading one section, the preamble or the whole of a sectioned text file
// into a global memory block (KILNUTIL_GetFileSectionEx).
#pragma once

#include <kilnutil/platform.h>

namespace kiln::files {

// name null: the whole file; "": the preamble; otherwise the named section,
// with *status and *line_index (both optional) set.
HGLOBAL read_file_section(const char* path, const char* name, unsigned* status, unsigned* line_index, unsigned flags);

}  // namespace kiln::files
