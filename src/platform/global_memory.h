// Global memory blocks for the library's own use (GlobalAlloc and GlobalFree
// with the Windows semantics): library code allocates through these, never
// through the exported names.
#pragma once

#include <kilnutil/platform.h>

#include <cstddef>

namespace kiln::platform {

// A block of `bytes` bytes (flags as GlobalAlloc: GMEM_MOVEABLE,
// GMEM_ZEROINIT); null when the memory cannot be had.
HGLOBAL global_alloc(unsigned flags, std::size_t bytes);

// Frees a block: null on success, the handle itself when it is not one.
HGLOBAL global_free(HGLOBAL mem);

// Whether the exported global-memory names are the operating system's own
// (Windows) rather than the library's Windows-compatible ones (POSIX).
bool global_memory_is_the_systems();

}  // namespace kiln::platform
