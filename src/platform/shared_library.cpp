// POSIX dynamic loading.
#include "platform/shared_library.h"

#include <dlfcn.h>

namespace kiln::platform {

void* load_shared_library(const char* path) { return dlopen(path, RTLD_NOW | RTLD_LOCAL); }

void* find_exported_symbol(void* library, const char* name) { return dlsym(library, name); }

void unload_shared_library(void* library) { dlclose(library); }

}  // namespace kiln::platform
