// The library's global memory is the system's: a host frees what the library
// returns with its own GlobalFree.
#include "platform/global_memory.h"

namespace kiln::platform {

HGLOBAL global_alloc(unsigned flags, std::size_t bytes) { return GlobalAlloc(flags, bytes); }

HGLOBAL global_free(HGLOBAL mem) { return GlobalFree(mem); }

HGLOBAL global_realloc(HGLOBAL mem, std::size_t bytes, unsigned flags) { return GlobalReAlloc(mem, bytes, flags); }

void* global_lock(HGLOBAL mem) { return GlobalLock(mem); }

bool global_unlock(HGLOBAL mem) { return GlobalUnlock(mem) != 0; }

std::size_t global_size(HGLOBAL mem) { return GlobalSize(mem); }

bool global_memory_is_the_systems() { return true; }

}  // namespace kiln::platform
