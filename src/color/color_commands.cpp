// The colour-list command dispatcher.
#include "color/color_commands.h"

#include "color/color_list.h"
#include "color/color_list_file.h"
#include "color/packed_models.h"

#include <kilnutil/color.h>

namespace kiln::color {

namespace {

constexpr int kFailed = KILNUTIL_COLOR_FAILED;

int rgb_result(std::uint32_t rgb) { return static_cast<int>(rgb); }

int rgb_at(int index) {
  if (index >= 0 && index < list_count()) return rgb_result(list_rgb(index));
  std::uint32_t custom = 0;
  return custom_rgb(index, custom) ? rgb_result(custom) : kFailed;
}

int rgb_wrapped(int index) {
  const int count = list_count();
  if (count == 0) return kFailed;
  const int wrapped = ((index % count) + count) % count;
  return rgb_result(list_rgb(wrapped));
}

std::uint32_t rgb_argument(int value) { return static_cast<std::uint32_t>(value) & kRgbMask; }

}  // namespace

int color_command(int index, void* argument, int command, int extra) {
  const char* text = static_cast<const char*>(argument);
  switch (command) {
    case KILNUTIL_COLOR_CMD_COUNT: return list_count();
    case KILNUTIL_COLOR_CMD_RGB: return rgb_at(index);
    case KILNUTIL_COLOR_CMD_RGB_WRAP: return rgb_wrapped(index);
    case KILNUTIL_COLOR_CMD_NAME: return copy_list_name(index, static_cast<char*>(argument), extra);
    case KILNUTIL_COLOR_CMD_FIND_EXACT: return find_exact(rgb_argument(index));
    case KILNUTIL_COLOR_CMD_FIND_NEAREST: return find_nearest(rgb_argument(index));
    case KILNUTIL_COLOR_CMD_FIND_NAME: return text != nullptr ? find_name(text) : 0;
    case KILNUTIL_COLOR_CMD_LOAD: return load_color_list(text);
    case KILNUTIL_COLOR_CMD_SAVE: return save_color_list(text) ? 1 : kFailed;
    case KILNUTIL_COLOR_CMD_SET: return set_list_entry(index, text, rgb_argument(extra)) ? 1 : kFailed;
    case KILNUTIL_COLOR_CMD_RESTORE: restore_builtin_list(); return list_count();
    case KILNUTIL_COLOR_CMD_SET_CUSTOM: return set_custom_rgb(index, rgb_argument(extra)) ? 1 : kFailed;
    default: return KILNUTIL_COLOR_NOT_SUPPORTED;
  }
}

}  // namespace kiln::color
