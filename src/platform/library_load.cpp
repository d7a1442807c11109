#include "platform/library_load.h"

#include <dlfcn.h>

namespace kiln::platform {

void* library_base_address() {
  Dl_info info{};
  if (dladdr(reinterpret_cast<void*>(&library_base_address), &info) != 0) return info.dli_fbase;
  return nullptr;
}

bool load_hook_runs_when_linked_statically() { return true; }

}  // namespace kiln::platform

// No unload work: nothing is reset or freed when the library goes away.
__attribute__((constructor)) static void kilnutil_on_load() { kiln::platform::on_process_attach(); }
