// Byte-level helpers shared by the record sorts: addressing element i of a
// base pointer, swapping two records through a buffer, and the scratch
// records of the quicksorts (on the stack up to 208 bytes, zero-filled heap
// blocks above).
#pragma once

#include <cstddef>
#include <cstdlib>
#include <cstring>

namespace kiln::math {

inline constexpr std::size_t kSortStackRecord = 208;

inline char* record_at(void* base, long long i, std::size_t size) {
  return static_cast<char*>(base) + i * static_cast<long long>(size);
}

inline const char* record_at(const void* base, long long i, std::size_t size) {
  return static_cast<const char*>(base) + i * static_cast<long long>(size);
}

// (lo + hi) / 2, truncated toward zero, without overflowing.
inline int middle_of(int lo, int hi) { return static_cast<int>((static_cast<long long>(lo) + hi) / 2); }

// Exchanges two records through `buffer`, a piece of `buffer_size` bytes at a
// time (records larger than the buffer take several pieces).
inline void swap_records(char* a, char* b, std::size_t size, unsigned char* buffer, std::size_t buffer_size) {
  for (std::size_t done = 0; done < size; done += buffer_size) {
    const std::size_t piece = size - done < buffer_size ? size - done : buffer_size;
    std::memcpy(buffer, a + done, piece);
    std::memcpy(a + done, b + done, piece);
    std::memcpy(b + done, buffer, piece);
  }
}

// One record's worth of scratch: a stack buffer for records of up to 208
// bytes, a zero-filled heap block for larger ones (released with the object).
class ScratchRecord {
public:
  explicit ScratchRecord(std::size_t size)
      : heap_(size > kSortStackRecord ? static_cast<unsigned char*>(std::calloc(1, size)) : nullptr),
        data_(size > kSortStackRecord ? heap_ : stack_),
        size_(size > kSortStackRecord ? size : kSortStackRecord) {}
  ~ScratchRecord() { std::free(heap_); }
  ScratchRecord(const ScratchRecord&) = delete;
  ScratchRecord& operator=(const ScratchRecord&) = delete;

  // Null only when a heap block could not be had.
  unsigned char* data() const { return data_; }
  std::size_t size() const { return size_; }

private:
  unsigned char stack_[kSortStackRecord];
  unsigned char* heap_;
  unsigned char* data_;
  std::size_t size_;
};

}  // namespace kiln::math
