// Loading a shared library and finding its exports by name, as a host does.
#pragma once

namespace kiln::platform {

// Null when the library cannot be loaded.
void* load_shared_library(const char* path);
// The address the dynamic loader gives for an exported name, or null.
void* find_exported_symbol(void* library, const char* name);
void unload_shared_library(void* library);

}  // namespace kiln::platform
