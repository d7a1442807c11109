// In-place transpose of a block of fixed-size elements through a scratch copy
// in global memory.
#include "platform/global_memory.h"

#include <kilnutil/import.h>
#include <kilnutil/platform.h>

#include <cstddef>
#include <cstring>

namespace {

// Copies each element (i, j) of the rows x cols source to (j, i) of the
// cols x rows destination.
void transpose_into(unsigned char* dest, const unsigned char* source, std::size_t rows, std::size_t cols,
                    std::size_t elem_size) {
  for (std::size_t i = 0; i < rows; ++i) {
    for (std::size_t j = 0; j < cols; ++j) {
      std::memcpy(dest + (j * rows + i) * elem_size, source + (i * cols + j) * elem_size, elem_size);
    }
  }
}

}  // namespace

extern "C" int KILNUTIL_RowColChange(void* block, unsigned short rows, unsigned short cols, int elem_size) {
  const std::size_t element = elem_size > 0 ? static_cast<std::size_t>(elem_size) : 0;
  const std::size_t bytes = std::size_t{rows} * cols * element;
  HGLOBAL scratch = kiln::platform::global_alloc(GHND, bytes);
  if (scratch == nullptr) return 1;
  if (rows == 0) {
    kiln::platform::global_free(scratch);
    return 0;
  }
  // An empty block (no columns, or elements of no size) cannot be locked, as
  // with the system's movable blocks: that counts as memory not to be had.
  auto* copy = static_cast<unsigned char*>(kiln::platform::global_lock(scratch));
  if (copy == nullptr) {
    kiln::platform::global_free(scratch);
    return 1;
  }
  if (block != nullptr) {
    std::memcpy(copy, block, bytes);
    transpose_into(static_cast<unsigned char*>(block), copy, rows, cols, element);
  }
  kiln::platform::global_unlock(scratch);
  kiln::platform::global_free(scratch);
  return 0;
}
