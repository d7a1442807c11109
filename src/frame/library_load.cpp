// Work done when the library is loaded into a process.
//
// On Windows the entry point does this at process attach; here a library
// constructor runs the same steps in the same order. There is no unload work:
// no setting is reset and nothing is freed.
#include "frame/library_load.h"

#include "locale/language_state.h"

#include <dlfcn.h>

namespace kiln::frame {
namespace {

void* g_module_instance = nullptr;

// The module's own address: what resource loading would use as its handle.
void* find_module_instance() {
  Dl_info info{};
  if (dladdr(reinterpret_cast<void*>(&find_module_instance), &info) != 0) return info.dli_fbase;
  return nullptr;
}

}  // namespace

void* module_instance() { return g_module_instance; }

bool attach_process() {
  // 1. The load notice goes to the diagnostic log only when one is open, and
  //    none is at load time: nothing is written.
  // 2. Remember the module handle.
  g_module_instance = find_module_instance();
  // 3. Priming the date formatter's tables has nothing to do: it holds no
  //    state of its own.
  // 4. Choose the resource language (which sets the string-process code
  //    page) and make the thread language follow it.
  kiln::locale::resource_language();
  kiln::locale::setup_thread_language();
  // 5. Registering the script-window class is user-interface work: on POSIX
  //    there is no window class, so it succeeds without doing anything.
  return true;
}

}  // namespace kiln::frame

__attribute__((constructor)) static void kilnutil_on_load() { kiln::frame::attach_process(); }
