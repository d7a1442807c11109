// Colour-list indices and packed values: index to RGB, palette numbers with
// an offset, the fixed negative colour codes, 0/1-based index conversion.
#pragma once

#include <cstdint>

namespace kiln::color {

// color_index_to_rgb: `status` 0 found, 1 not found (result 0).
std::uint32_t rgb_of_index(int index, int mode, int& status);
int palette_number(int value, int offset, unsigned flags);
int packed_from_palette_number(int number, int offset, unsigned flags);
// The value itself when >= 0; else the 0-based index of its fixed colour, -1 if absent.
int index_of_color_code(int value);
// 0-based to 1-based (up) or back when in range; false and unchanged otherwise.
bool shift_index_base(int& index, bool up);

}  // namespace kiln::color
