// Work done when the library is loaded into a process.
//
// The platform's load hook (platform/library_load.h) runs these steps once,
// at process attach. There is no unload work: no setting is reset and nothing
// is freed.
#include "frame/library_load.h"

#include "frame/relaxed.h"
#include "locale/language_state.h"
#include "platform/library_load.h"

namespace kiln::frame {
namespace {

kiln::frame::Relaxed<void*> g_module_instance{nullptr};

}  // namespace

void* module_instance() { return g_module_instance.load(); }

bool attach_process() {
  // No diagnostic log is open at load, the date formatter keeps no tables and
  // there is no window class to register: the module handle is what is kept.
  g_module_instance.store(platform::library_base_address());
  // Choose the resource language (which sets the string-process code page)
  // and make the thread language follow it.
  kiln::locale::resource_language();
  kiln::locale::setup_thread_language();
  return true;
}

}  // namespace kiln::frame

bool kiln::platform::on_process_attach() { return kiln::frame::attach_process(); }
