// Global memory handles with the Windows semantics, for the POSIX build.
//
// A fixed block is one allocation: a 16-byte header, then the data; its
// handle is the data address (16-byte aligned). A movable block is a handle
// record that points at a separate data allocation, which may move when the
// block is resized; its handle is the record's address plus 8, so a handle
// tells its kind by its alignment (address % 16: 0 fixed, 8 movable), the way
// Windows tells its movable handles from fixed pointers.
#include "platform/global_memory.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <new>

namespace {

constexpr std::uint32_t kFixedMagic = 0x4B464958;    // "KFIX"
constexpr std::uint32_t kMovableMagic = 0x4B4D4F56;  // "KMOV"
constexpr std::uint32_t kFreedMagic = 0;

struct alignas(16) FixedHeader {
  std::uint32_t magic;
  std::uint32_t flags;
  std::size_t size;
};
static_assert(sizeof(FixedHeader) == 16);

struct alignas(16) MovableRecord {
  std::uint64_t reserved;  // keeps the handle (at `magic`) 8 bytes into the record
  std::uint32_t magic;
  std::uint32_t lock_count;
  std::size_t size;
  void* data;
};
static_assert(offsetof(MovableRecord, magic) == 8);

bool is_movable_handle(HGLOBAL mem) { return (reinterpret_cast<std::uintptr_t>(mem) & 15u) == 8u; }

MovableRecord* movable_record(HGLOBAL mem) {
  if (mem == nullptr || !is_movable_handle(mem)) return nullptr;
  auto* record = reinterpret_cast<MovableRecord*>(static_cast<char*>(mem) - offsetof(MovableRecord, magic));
  return record->magic == kMovableMagic ? record : nullptr;
}

FixedHeader* fixed_header(HGLOBAL mem) {
  if (mem == nullptr || (reinterpret_cast<std::uintptr_t>(mem) & 15u) != 0) return nullptr;
  auto* header = static_cast<FixedHeader*>(mem) - 1;
  return header->magic == kFixedMagic ? header : nullptr;
}

void zero_growth(void* data, std::size_t old_size, std::size_t new_size) {
  if (new_size > old_size) std::memset(static_cast<char*>(data) + old_size, 0, new_size - old_size);
}

HGLOBAL allocate_fixed(std::size_t bytes, unsigned flags) {
  if (bytes > SIZE_MAX - sizeof(FixedHeader)) return nullptr;
  void* raw = std::aligned_alloc(16, (sizeof(FixedHeader) + std::max<std::size_t>(bytes, 1) + 15) & ~std::size_t{15});
  if (raw == nullptr) return nullptr;
  auto* header = new (raw) FixedHeader{kFixedMagic, flags, bytes};
  if (flags & GMEM_ZEROINIT) std::memset(header + 1, 0, bytes);
  return header + 1;
}

HGLOBAL allocate_movable(std::size_t bytes, unsigned flags) {
  void* data = nullptr;
  if (bytes > 0) {
    data = (flags & GMEM_ZEROINIT) ? std::calloc(1, bytes) : std::malloc(bytes);
    if (data == nullptr) return nullptr;
  }
  auto* record = static_cast<MovableRecord*>(std::aligned_alloc(16, sizeof(MovableRecord)));
  if (record == nullptr) {
    std::free(data);
    return nullptr;
  }
  new (record) MovableRecord{0, kMovableMagic, 0, bytes, data};
  return &record->magic;
}

HGLOBAL resize_movable(MovableRecord* record, std::size_t bytes, unsigned flags) {
  // A locked block keeps its address unless the caller allows a move.
  const bool may_move = record->lock_count == 0 || (flags & GMEM_MOVEABLE);
  if (bytes <= record->size || may_move) {
    void* data = record->data;
    if (bytes == 0) {
      std::free(data);
      data = nullptr;
    } else if (bytes > record->size || data == nullptr) {
      data = std::realloc(data, bytes);
      if (data == nullptr) return nullptr;
      if (flags & GMEM_ZEROINIT) zero_growth(data, record->size, bytes);
    }
    record->data = data;
    record->size = bytes;
    return &record->magic;
  }
  return nullptr;
}

HGLOBAL resize_fixed(HGLOBAL mem, FixedHeader* header, std::size_t bytes, unsigned flags) {
  if (bytes <= header->size) {  // shrinking keeps the block where it is
    header->size = bytes;
    return mem;
  }
  if (!(flags & GMEM_MOVEABLE)) return nullptr;  // a fixed block may not move unasked
  HGLOBAL moved = allocate_fixed(bytes, header->flags);
  if (moved == nullptr) return nullptr;
  std::memcpy(moved, mem, header->size);
  if (flags & GMEM_ZEROINIT) zero_growth(moved, header->size, bytes);
  header->magic = kFreedMagic;
  std::free(header);
  return moved;
}

}  // namespace

namespace kiln::platform {

HGLOBAL global_alloc(unsigned flags, std::size_t bytes) {
  return (flags & GMEM_MOVEABLE) ? allocate_movable(bytes, flags) : allocate_fixed(bytes, flags);
}

bool global_memory_is_the_systems() { return false; }

HGLOBAL global_free(HGLOBAL mem) {
  if (mem == nullptr) return nullptr;
  if (MovableRecord* record = movable_record(mem)) {
    std::free(record->data);
    record->magic = kFreedMagic;
    std::free(record);
    return nullptr;
  }
  if (FixedHeader* header = fixed_header(mem)) {
    header->magic = kFreedMagic;
    std::free(header);
    return nullptr;
  }
  return mem;
}

HGLOBAL global_realloc(HGLOBAL mem, std::size_t bytes, unsigned flags) {
  if (MovableRecord* record = movable_record(mem)) {
    return (flags & GMEM_MODIFY) ? mem : resize_movable(record, bytes, flags);
  }
  if (FixedHeader* header = fixed_header(mem)) {
    return (flags & GMEM_MODIFY) ? mem : resize_fixed(mem, header, bytes, flags);
  }
  return nullptr;
}

void* global_lock(HGLOBAL mem) {
  if (MovableRecord* record = movable_record(mem)) {
    if (record->data == nullptr) return nullptr;  // a zero-size block has no memory to lock
    ++record->lock_count;
    return record->data;
  }
  return fixed_header(mem) != nullptr ? mem : nullptr;
}

bool global_unlock(HGLOBAL mem) {
  MovableRecord* record = movable_record(mem);
  if (record == nullptr || record->lock_count == 0) return false;
  --record->lock_count;
  return record->lock_count != 0;
}

std::size_t global_size(HGLOBAL mem) {
  if (MovableRecord* record = movable_record(mem)) return record->size;
  if (FixedHeader* header = fixed_header(mem)) return header->size;
  return 0;
}

}  // namespace kiln::platform

extern "C" {

HGLOBAL GlobalAlloc(unsigned int flags, size_t bytes) { return kiln::platform::global_alloc(flags, bytes); }

HGLOBAL GlobalReAlloc(HGLOBAL mem, size_t bytes, unsigned int flags) {
  return kiln::platform::global_realloc(mem, bytes, flags);
}

void* GlobalLock(HGLOBAL mem) { return kiln::platform::global_lock(mem); }

BOOL GlobalUnlock(HGLOBAL mem) { return kiln::platform::global_unlock(mem) ? 1 : 0; }

HGLOBAL GlobalFree(HGLOBAL mem) { return kiln::platform::global_free(mem); }

size_t GlobalSize(HGLOBAL mem) { return kiln::platform::global_size(mem); }

}  // extern "C"
