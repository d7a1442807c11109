#include "frame/library_load.h"

#include <gtest/gtest.h>

namespace {

TEST(LibraryLoad, SavesTheModuleHandleAndSucceeds) {
  EXPECT_NE(kiln::frame::module_instance(), nullptr);
  EXPECT_TRUE(kiln::frame::attach_process());  // attaching again changes nothing
}

}  // namespace
