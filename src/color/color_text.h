// Colour text: a list name, "None", "#RGB" / "#RRGGBB", "RGB(r,g,b)",
// "HSL(h,l,s)" and bare numbers, read into packed colour values; and packed
// values written as names, numbers and RGB text forms.
#pragma once

#include <kilnutil/color.h>

#include <cstdint>

namespace kiln::color {

inline constexpr std::size_t kTextSize = KILNUTIL_COLOR_TEXT_SIZE;
inline constexpr std::uint32_t kRgbMarker = KILNUTIL_COLOR_RGB_MARKER;

// The packed value of the text, 0 when it is not a colour.
int color_from_text(const char* text, unsigned flags);

// Writes the text form of a packed value into `buffer` (kTextSize bytes).
void format_color(char* buffer, int value, unsigned flags);

// The RGB text form of a plain triple chosen by flags & 0xF0000: "RGB(r,g,b)",
// "HSL(h,s,l)" on the 0-240 scale, else "#RRGGBB".
void format_rgb_text(char* buffer, std::uint32_t rgb, unsigned flags);

// Whether a packed value is a direct RGB colour.
inline bool has_rgb_marker(std::uint32_t value) { return (value & KILNUTIL_COLOR_RGB_TEST_MASK) == kRgbMarker; }

}  // namespace kiln::color
