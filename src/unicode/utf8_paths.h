// Files opened and tested by UTF-8 path.
#pragma once

#include <kilnutil/unicode.h>

#include <cstdio>

namespace kiln::unicode {

// Opens `path` with a runtime-library `mode` ("t", ", ccs=..." and the
// Windows-only hints are dropped); null, with errno ENOENT, for a path or
// mode too long for the wide calls' buffers.
std::FILE* open_utf8_path(const char* path, const char* mode);

// Opens or creates `path` by a CreateFileW access mask, disposition and
// attributes (read-only honoured); INVALID_HANDLE_VALUE with errno EINVAL for
// an unknown disposition, ENOENT for a path too long, or the system's error.
HANDLE create_utf8_path(const char* path, unsigned access, unsigned disposition, unsigned flags_and_attributes);

// The runtime's access test (mode 0 exists, 2 write, 4 read, 6 both): 0 or
// -1 with errno; other mode bits are EINVAL, a path too long ENOENT.
int test_utf8_path_access(const char* path, int mode);

}  // namespace kiln::unicode
