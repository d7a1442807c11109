// The colour list and colour-list indices.
#include "color/color_commands.h"
#include "color/color_index.h"
#include "color/color_list.h"
#include "color/packed_models.h"

#include <kilnutil/color.h>

using namespace kiln::color;

extern "C" {

int KILNUTIL_Color_ex(HDC, int index, void* argument, int command, int extra) {
  return color_command(index, argument, command, extra);
}

unsigned int color_index_to_rgb(int index, int mode, int* status) {
  int found = 0;
  const std::uint32_t rgb = rgb_of_index(index, mode, found);
  if (status != nullptr) *status = found;
  return rgb;
}

int color_rgb_to_index(unsigned int rgb, int mode) {
  const std::uint32_t triple = rgb & kRgbMask;
  if (mode == KILNUTIL_COLOR_SEARCH_EXACT) return find_exact(triple) - 1;
  return find_nearest(triple);
}

int color_index_to_name(int index, char* buffer, int size) {
  return copy_list_name(index < 0 ? list_count() - 1 : index, buffer, size);
}

int check_correct_index_color(int* index, int direction) {
  return index != nullptr && shift_index_base(*index, direction != 0) ? 1 : 0;
}

int KILNUTIL_ColorToIndex(int value, int offset, unsigned int flags) { return palette_number(value, offset, flags); }

int KILNUTIL_IndexToColor(int number, int offset, unsigned int flags) {
  return packed_from_palette_number(number, offset, flags);
}

int KILNUTIL_get_color_index(int value) { return index_of_color_code(value); }

}  // extern "C"
