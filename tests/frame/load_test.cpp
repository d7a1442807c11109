#include "frame/library_load.h"
#include "platform/library_load.h"

#include <gtest/gtest.h>

namespace {

TEST(LibraryLoad, SavesTheModuleHandleAndSucceeds) {
  // A DLL's entry point does not run in this program, which links the
  // library's objects: attach here as the entry point would.
  if (!kiln::platform::load_hook_runs_when_linked_statically()) {
    ASSERT_TRUE(kiln::frame::attach_process());
  }
  EXPECT_NE(kiln::frame::module_instance(), nullptr);
  EXPECT_TRUE(kiln::frame::attach_process());  // attaching again changes nothing
}

}  // namespace
