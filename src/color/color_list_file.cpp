// Loading and saving the colour list as an initialisation-file section.
#include "color/color_list_file.h"

#include "color/color_list.h"
#include "color/ini_section.h"
#include "color/packed_models.h"
#include "color/text_file_read.h"
#include "platform/file_replacement.h"

#include <kilnutil/color.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace kiln::color {

namespace {

constexpr char kSection[] = KILNUTIL_COLOR_LIST_SECTION;

// Three integers separated by blanks; trailing text is ignored.
bool parse_rgb_value(const std::string& value, std::uint32_t& rgb) {
  int channels[3] = {0, 0, 0};
  const char* p = value.c_str();
  for (int& channel : channels) {
    char* end = nullptr;
    const long number = std::strtol(p, &end, 10);
    if (end == p) return false;
    channel = static_cast<int>(number & 0xFF);
    p = end;
  }
  rgb = rgb_of(static_cast<unsigned>(channels[0]), static_cast<unsigned>(channels[1]),
               static_cast<unsigned>(channels[2]));
  return true;
}

std::string rgb_value_text(std::uint32_t rgb) {
  char text[40];
  std::snprintf(text, sizeof text, "%d %d %d", static_cast<int>(red_of(rgb)), static_cast<int>(green_of(rgb)),
                static_cast<int>(blue_of(rgb)));
  return text;
}

}  // namespace

int load_color_list(const char* path) {
  std::string text;
  if (path == nullptr || read_text_file_as_utf8(path, text) != TextFileStatus::kOk) return -1;
  std::array<ColorEntry, kListCapacity> loaded{};
  int count = 0;
  for (const IniEntry& entry : section_entries(text, kSection)) {
    if (count == kListCapacity) break;
    ColorEntry& slot = loaded[static_cast<std::size_t>(count)];
    if (!parse_rgb_value(entry.value, slot.rgb)) continue;
    copy_name(slot.name, entry.key);
    ++count;
  }
  if (count == 0) return -1;
  replace_list(loaded.data(), count);
  return count;
}

bool save_color_list(const char* path) {
  if (path == nullptr) return false;
  std::string text;
  const TextFileStatus read = read_text_file_as_utf8(path, text);
  // A file that exists but can't be read or converted is never overwritten.
  std::error_code error;
  if (read != TextFileStatus::kOk && std::filesystem::exists(path, error)) return false;
  std::vector<IniEntry> entries;
  for (int i = 0; i < list_count(); ++i) entries.push_back({list_name(i), rgb_value_text(list_rgb(i))});
  const std::string updated = with_section_replaced(text, kSection, entries);
  return platform::replace_file(path, {{updated.data(), updated.size()}}) == platform::ReplaceStatus::kDone;
}

}  // namespace kiln::color
