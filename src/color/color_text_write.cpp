// Writing packed colour values as text.
#include "color/color_list.h"
#include "color/color_text.h"
#include "color/packed_models.h"

#include "math/nint.h"

#include <cstdio>

namespace kiln::color {

namespace {

constexpr char kUnknown[] = "--";

void write(char* buffer, const char* text) { std::snprintf(buffer, kTextSize, "%s", text); }

unsigned hsl240(double fraction) { return static_cast<unsigned>(math::nint(fraction * 240)); }

// A non-negative value below 2^24 whose low byte is not 100-254 is an index.
bool is_index_value(int value) {
  const int low = value & 0xFF;
  return value >= 0 && value < 0x1000000 && (low < 100 || low == 255);
}

void format_index(char* buffer, int value, unsigned flags) {
  const bool one_based = (flags & KILNUTIL_COLOR_FORMAT_ONE_BASED) != 0;
  const bool with_html = (flags & KILNUTIL_COLOR_FORMAT_WITH_HTML) != 0;
  if (one_based && value == 0) return write(buffer, kUnknown);
  const int index = one_based ? value - 1 : value;
  const int count = list_count();
  if ((flags & KILNUTIL_COLOR_FORMAT_CHECK_COUNT) != 0 && index >= count) {
    if (!with_html) return write(buffer, kUnknown);
    std::snprintf(buffer, kTextSize, "%u: > %d", static_cast<unsigned>(value), count);
    return;
  }
  if ((flags & KILNUTIL_COLOR_FORMAT_NUMBER_ONLY) != 0) {
    std::snprintf(buffer, kTextSize, "%u", static_cast<unsigned>(one_based ? value : index));
    return;
  }
  if ((flags & KILNUTIL_COLOR_FORMAT_RGB_OF_INDEX) != 0) {
    if (count == 0) return write(buffer, kUnknown);
    return format_rgb_text(buffer, list_rgb(index % count), flags);
  }
  if (index >= count) return write(buffer, kUnknown);
  if (!with_html) return write(buffer, list_name(index));
  const std::uint32_t rgb = list_rgb(index);
  std::snprintf(buffer, kTextSize, "%s #%02X%02X%02X", list_name(index), red_of(rgb), green_of(rgb), blue_of(rgb));
}

}  // namespace

void format_rgb_text(char* buffer, std::uint32_t rgb, unsigned flags) {
  const unsigned form = flags & KILNUTIL_COLOR_TEXT_FORM_MASK;
  if (form == KILNUTIL_COLOR_TEXT_RGB) {
    std::snprintf(buffer, kTextSize, "RGB(%u,%u,%u)", red_of(rgb), green_of(rgb), blue_of(rgb));
  } else if (form == KILNUTIL_COLOR_TEXT_HSL) {
    const Triplet hsl = hsl_fractions_from_rgb(rgb);
    std::snprintf(buffer, kTextSize, "HSL(%u,%u,%u)", hsl240(hsl.c0), hsl240(hsl.c1), hsl240(hsl.c2));
  } else {
    std::snprintf(buffer, kTextSize, "#%02X%02X%02X", red_of(rgb), green_of(rgb), blue_of(rgb));
  }
}

void format_color(char* buffer, int value, unsigned flags) {
  if (value == KILNUTIL_COLOR_NONE) return write(buffer, "None");
  if (is_index_value(value)) return format_index(buffer, value, flags);
  const auto bits = static_cast<std::uint32_t>(value);
  if (has_rgb_marker(bits)) return format_rgb_text(buffer, bits & kRgbMask, flags);
  write(buffer, kUnknown);
}

}  // namespace kiln::color
