// The operating system's side of loading the library: the hook it runs when
// the library is attached to a process, and the loaded module's address.
#pragma once

namespace kiln::platform {

// The library's process-attach work. Called once by the platform's load hook
// (a library constructor here, the entry point's process attach on Windows);
// defined by the frame subsystem.
bool on_process_attach();

// The base address of the loaded library: its module handle.
void* library_base_address();

// Whether the load hook also runs in a program that links the library's
// objects statically: a library constructor does, a DLL entry point does not.
bool load_hook_runs_when_linked_statically();

}  // namespace kiln::platform
