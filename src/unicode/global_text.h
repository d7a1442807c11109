// Text held in global memory blocks: locking, the extent of the text within
// its block, and the conversions that replace a block's text.
#pragma once

#include "unicode/code_page_text.h"
#include "platform/global_memory.h"

#include <kilnutil/platform.h>

#include <cstddef>

namespace kiln::unicode {

// A locked block, unlocked when the object goes.
class LockedBlock {
public:
  explicit LockedBlock(HGLOBAL handle)
      : handle_(handle),
        data_(handle != nullptr ? kiln::platform::global_lock(handle) : nullptr),
        size_(data_ != nullptr ? kiln::platform::global_size(handle) : 0) {}
  ~LockedBlock() { unlock(); }
  LockedBlock(const LockedBlock&) = delete;
  LockedBlock& operator=(const LockedBlock&) = delete;

  void* data() const { return data_; }
  size_t size() const { return size_; }
  void unlock() {
    if (data_ != nullptr) kiln::platform::global_unlock(handle_);
    data_ = nullptr;
  }

private:
  HGLOBAL handle_;
  void* data_;
  size_t size_;
};

// Converts the narrow text of a locked block (up to its NUL, or the whole
// block when it holds none) with a terminating zero unit: the unit count with
// the zero, 0 on failure.
int block_text_to_wide(unsigned code_page, const LockedBlock& block, WideScratch& units);

// Reallocates `*handle` (movable, zero-filled) to the size of `units` in the
// code page and converts them into it. `default_used`, when given, asks for
// the default character "?" and receives whether it was used. The byte count
// with the NUL, or -1; `*handle` receives the reallocated handle.
int replace_block_text(HGLOBAL* handle, unsigned code_page, WideScratch& units, int unit_count, int* default_used);

// Replaces the text of the block `*handle` by its conversion: direction 0
// from the code page to UTF-8, otherwise from UTF-8 to the code page (then
// the default-character flag records whether "?" stood in). The byte count
// with the NUL, 1 for an empty block, 0 for no block, -1 on failure.
int convert_handle_text(HGLOBAL* handle, int direction, int code_page);

// A new block (movable or fixed) of the UTF-8 block's text in UTF-16 with its
// zero unit, null when there is no text; the source is freed on request.
HGLOBAL utf8_block_to_utf16(HGLOBAL utf8, bool movable, bool free_source);

}  // namespace kiln::unicode
