// KILNUTIL_Color_ex: the numbered colour-list commands (kilnutil/color.h
// lists them). Drawing, pen, brush and dialog commands are not supported here.
#pragma once

namespace kiln::color {

int color_command(int index, void* argument, int command, int extra);

}  // namespace kiln::color
