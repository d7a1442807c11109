// Files opened by UTF-8 path: the work of KILNUTIL_UTF8_fopen.
#pragma once

#include <cstdio>

namespace kiln::unicode {

// Opens `path` with a runtime-library `mode` ("t", ", ccs=..." and the
// Windows-only hints are dropped); null, with errno ENOENT, for a path or
// mode too long for the wide calls' buffers.
std::FILE* open_utf8_path(const char* path, const char* mode);

}  // namespace kiln::unicode
