// Text gathered line by line into a global memory block that grows by at
// least 30% at a time.
#pragma once

#include <kilnutil/platform.h>

#include <cstddef>

namespace kiln::files {

class GrowingText {
public:
  GrowingText() = default;
  ~GrowingText();
  GrowingText(const GrowingText&) = delete;
  GrowingText& operator=(const GrowingText&) = delete;

  // Appends length bytes (the block stays NUL-terminated); false when an
  // allocation failed, which frees the block.
  bool append(const char* text, size_t length);
  // The block (null when nothing was appended); the caller owns it.
  HGLOBAL release();

private:
  bool make_room(size_t needed);

  HGLOBAL block_ = nullptr;
  size_t size_ = 0;
  size_t used_ = 0;
};

}  // namespace kiln::files
