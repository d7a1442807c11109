// Global memory blocks for the library's own use (GlobalAlloc, GlobalReAlloc,
// GlobalLock, GlobalUnlock, GlobalSize and GlobalFree with the Windows
// semantics): library code allocates through these, never
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

// Resizes a block (flags as GlobalReAlloc: GMEM_MOVEABLE lets a locked or
// fixed block move, GMEM_ZEROINIT zeroes the growth, GMEM_MODIFY changes
// nothing); the block's handle, or null when it can't be resized.
HGLOBAL global_realloc(HGLOBAL mem, std::size_t bytes, unsigned flags);

// The block's memory (a movable block's lock count goes up); null for a
// zero-size movable block or a handle that is not a block.
void* global_lock(HGLOBAL mem);

// Drops one lock of a movable block: true while it is still locked.
bool global_unlock(HGLOBAL mem);

// The block's size in bytes; 0 for a handle that is not a block.
std::size_t global_size(HGLOBAL mem);

// Whether the exported global-memory names are the operating system's own
// (Windows) rather than the library's Windows-compatible ones (POSIX).
bool global_memory_is_the_systems();

}  // namespace kiln::platform
