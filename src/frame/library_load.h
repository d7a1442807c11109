// The library's load-time work and the module handle it saves.
#pragma once

namespace kiln::frame {

// Runs the process-attach steps; true when loading may go on.
bool attach_process();

// The module handle saved at load (the base address of the loaded library).
void* module_instance();

}  // namespace kiln::frame
