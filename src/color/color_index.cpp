// Colour-list indices and packed values.
#include "color/color_index.h"

#include "color/color_list.h"
#include "color/color_text.h"
#include "color/packed_models.h"

#include <kilnutil/color.h>

namespace kiln::color {

namespace {

std::uint32_t fixed_color_of(int code) {
  switch (code) {
    case KILNUTIL_COLOR_FIXED_WHITE: return 0xFFFFFF;
    case KILNUTIL_COLOR_FIXED_LIGHT_GRAY: return 0xC0C0C0;
    case KILNUTIL_COLOR_FIXED_DARK_GRAY: return 0x404040;
    case KILNUTIL_COLOR_FIXED_GRAY: return 0x808080;
    default: return 0;
  }
}

}  // namespace

std::uint32_t rgb_of_index(int index, int mode, int& status) {
  status = KILNUTIL_COLOR_STATUS_OK;
  const int count = list_count();
  if (index < 0) index = count - 1;
  if (mode == KILNUTIL_COLOR_INDEX_AS_IS) {
    const auto bits = static_cast<std::uint32_t>(index);
    if (has_rgb_marker(bits)) return bits & kRgbMask;
    if (index > KILNUTIL_COLOR_INDEX_LIMIT) return 0;
  } else if (count > 0) {
    index %= count;
  }
  if (index >= 0 && index < count) return list_rgb(index);
  std::uint32_t custom = 0;
  if (custom_rgb(index, custom)) return custom;
  status = KILNUTIL_COLOR_STATUS_NOT_FOUND;
  return 0;
}

int palette_number(int value, int offset, unsigned flags) {
  if ((flags & KILNUTIL_COLOR_MAP_NONE) != 0 && value == KILNUTIL_COLOR_NONE) return offset - 1;
  const auto bits = static_cast<std::uint32_t>(value);
  if (has_rgb_marker(bits)) return find_nearest(bits & kRgbMask) + offset;
  if (value == KILNUTIL_COLOR_PASS_THROUGH) return KILNUTIL_COLOR_PASS_THROUGH + offset;
  return (value & 0xFFFF) + offset;
}

int packed_from_palette_number(int number, int offset, unsigned flags) {
  if ((flags & KILNUTIL_COLOR_MAP_NONE) != 0 && number == offset - 1) return KILNUTIL_COLOR_NONE;
  return number - offset;
}

int index_of_color_code(int value) {
  if (value >= 0) return value;
  return find_exact(fixed_color_of(value)) - 1;
}

bool shift_index_base(int& index, bool up) {
  const int count = list_count();
  if (up && index >= 0 && index < count) {
    ++index;
    return true;
  }
  if (!up && index >= 1 && index <= count) {
    --index;
    return true;
  }
  return false;
}

}  // namespace kiln::color
