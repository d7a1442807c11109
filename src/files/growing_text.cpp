// The growth rule of section text: the first line allocates a fixed block of
// its length plus 1; a line that does not fit grows the block by the larger
// of the shortfall and 30% of its size, as a movable zero-filled block.
#include "files/growing_text.h"

#include "platform/global_memory.h"

#include <algorithm>
#include <cstring>

namespace kiln::files {

GrowingText::~GrowingText() {
  if (block_ != nullptr) kiln::platform::global_free(block_);
}

bool GrowingText::make_room(size_t needed) {
  if (block_ == nullptr) {
    block_ = kiln::platform::global_alloc(GPTR, needed);
    size_ = block_ != nullptr ? needed : 0;
    return block_ != nullptr;
  }
  if (needed <= size_) return true;
  const double shortfall = static_cast<double>(needed - size_);
  const double size = static_cast<double>(size_);
  const auto grown = static_cast<size_t>(size + std::max(shortfall, 0.3 * size));
  HGLOBAL larger = kiln::platform::global_realloc(block_, grown, GMEM_MOVEABLE | GMEM_ZEROINIT);
  if (larger == nullptr) {
    kiln::platform::global_free(block_);
    block_ = nullptr;
    return false;
  }
  block_ = larger;
  size_ = grown;
  return true;
}

bool GrowingText::append(const char* text, size_t length) {
  if (!make_room(used_ + length + 1)) return false;
  auto* data = static_cast<char*>(kiln::platform::global_lock(block_));
  if (data == nullptr) return false;
  std::memcpy(data + used_, text, length);
  used_ += length;
  kiln::platform::global_unlock(block_);
  return true;
}

HGLOBAL GrowingText::release() {
  HGLOBAL block = block_;
  block_ = nullptr;
  return block;
}

}  // namespace kiln::files
