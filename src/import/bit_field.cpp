// Bit fields: one bit per cell of a grid, in the plain order (least
// significant bit first along the cell index) or the monochrome-bitmap order
// (most significant bit first within each row of bytes).
#include <kilnutil/import.h>

#include <cstdint>
#include <cstring>

namespace {

// Signed 32-bit arithmetic as the host's callers use it, without overflow faults.
int wrap(std::int64_t value) { return static_cast<int>(static_cast<std::uint32_t>(value)); }

}  // namespace

extern "C" {

void KILNUTIL_InitBitField(unsigned char* field, int size) {
  if (field != nullptr && size > 0) std::memset(field, 0, static_cast<std::size_t>(size));
}

int KILNUTIL_GetBitFieldSize(int width, int height) {
  return wrap((std::int64_t{wrap(std::int64_t{width} * height)} + 7) / 8);
}

int KILNUTIL_GetBitFieldHeight(int size, int width) {
  if (width == 0) return 0;  // no grid has width 0; answer rather than fault
  const int bits = wrap(std::int64_t{size} * 8);
  return wrap(std::int64_t{bits} / width);
}

int KILNUTIL_GetBitFieldIndexOffset(int y, int x, int width, unsigned char* bit) {
  const int index = wrap(std::int64_t{y} * width + x);
  if (bit != nullptr) *bit = static_cast<unsigned char>(index % 8);
  return index / 8;
}

int KILNUTIL_GetBitFieldIndexOffset_BITMAP(int y, int x, int stride, unsigned char* bit) {
  if (bit != nullptr) *bit = static_cast<unsigned char>(7 - x % 8);
  return wrap(std::int64_t{x / 8} + std::int64_t{y} * stride);
}

int KILNUTIL_SetBitField(KILNUTIL_BitFieldIndexFunc index, unsigned char* field, int y, int x, int width_or_stride,
                         long long value) {
  if (index == nullptr || field == nullptr) return 1;
  unsigned char bit = 0;
  const int byte = index(y, x, width_or_stride, &bit);
  const auto mask = static_cast<unsigned char>(1u << (bit & 7u));
  if (static_cast<std::uint32_t>(value) != 0) {
    field[byte] = static_cast<unsigned char>(field[byte] | mask);
  } else {
    field[byte] = static_cast<unsigned char>(field[byte] & ~mask);
  }
  return 1;
}

int KILNUTIL_TestBitField(KILNUTIL_BitFieldIndexFunc index, const unsigned char* field, int y, int x,
                          int width_or_stride) {
  if (index == nullptr || field == nullptr) return 0;
  unsigned char bit = 0;
  const int byte = index(y, x, width_or_stride, &bit);
  return (field[byte] >> (bit & 7u)) & 1u;
}

}  // extern "C"
