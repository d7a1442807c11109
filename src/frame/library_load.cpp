// Work done when the library is loaded into a process.
//
// The platform's load hook (platform/library_load.h) runs these steps once,
// at process attach. There is no unload work: no setting is reset and nothing
// is freed.
#include "frame/library_load.h"

#include "platform/library_load.h"

namespace kiln::frame {
namespace {

void* g_module_instance = nullptr;

}  // namespace

void* module_instance() { return g_module_instance; }

bool attach_process() {
  // 1. The load notice goes to the diagnostic log only when one is open, and
  //    none is at load time: nothing is written.
  // 2. Remember the module handle.
  g_module_instance = platform::library_base_address();
  // 3. Priming the date formatter's tables and 4. choosing the resource
  //    language have nothing to do before those subsystems hold state.
  // 5. Registering the script-window class is user-interface work: on POSIX
  //    there is no window class, so it succeeds without doing anything.
  return true;
}

}  // namespace kiln::frame

bool kiln::platform::on_process_attach() { return kiln::frame::attach_process(); }
