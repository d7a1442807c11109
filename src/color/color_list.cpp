// The colour list, its built-in contents and the custom-colour table.
#include "color/color_list.h"

#include "color/packed_models.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cstring>
#include <vector>

namespace kiln::color {

namespace {

constexpr std::uint32_t rgb(unsigned red, unsigned green, unsigned blue) { return red | green << 8 | blue << 16; }

// The built-in list: what the list holds at load and what restore brings back.
constexpr std::array<ColorEntry, KILNUTIL_COLOR_BUILTIN_COUNT> kBuiltinColors{{
    {"Black", rgb(0, 0, 0)},
    {"Red", rgb(255, 0, 0)},
    {"Green", rgb(0, 255, 0)},
    {"Blue", rgb(0, 0, 255)},
    {"Cyan", rgb(0, 255, 255)},
    {"Magenta", rgb(255, 0, 255)},
    {"Yellow", rgb(255, 255, 0)},
    {"Dark Yellow", rgb(128, 128, 0)},
    {"Navy", rgb(0, 0, 128)},
    {"Purple", rgb(128, 0, 128)},
    {"Wine", rgb(128, 0, 0)},
    {"Olive", rgb(0, 128, 0)},
    {"Dark Cyan", rgb(0, 128, 128)},
    {"Royal", rgb(0, 0, 160)},
    {"Orange", rgb(255, 128, 0)},
    {"Violet", rgb(128, 0, 255)},
    {"Pink", rgb(255, 0, 128)},
    {"White", rgb(255, 255, 255)},
    {"LT Gray", rgb(192, 192, 192)},
    {"Gray", rgb(128, 128, 128)},
    {"LT Yellow", rgb(255, 255, 128)},
    {"LT Cyan", rgb(128, 255, 255)},
    {"LT Magenta", rgb(255, 128, 255)},
    {"Dark Gray", rgb(64, 64, 64)},
}};

constexpr int kExtensionStep = KILNUTIL_COLOR_EXTENSION_STEP;
constexpr long kNearestStart = 4L * 255 * 255;

// The list and its count; the table of custom colours.
std::array<ColorEntry, kListCapacity> make_builtin_list() {
  std::array<ColorEntry, kListCapacity> entries{};
  for (std::size_t i = 0; i < kBuiltinColors.size(); ++i) entries[i] = kBuiltinColors[i];
  return entries;
}
std::array<ColorEntry, kListCapacity> g_entries = make_builtin_list();
std::atomic<int> g_count{KILNUTIL_COLOR_BUILTIN_COUNT};
std::vector<std::uint32_t> g_custom;

char ascii_lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

long squared_distance(std::uint32_t a, std::uint32_t b) {
  const auto channel = [](unsigned x, unsigned y) {
    const long d = static_cast<long>(x) - static_cast<long>(y);
    return d * d;
  };
  return channel(red_of(a), red_of(b)) + channel(green_of(a), green_of(b)) + channel(blue_of(a), blue_of(b));
}

bool is_continuation_byte(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

}  // namespace

bool same_ignoring_ascii_case(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (ascii_lower(a[i]) != ascii_lower(b[i])) return false;
  }
  return true;
}

int list_count() { return g_count.load(std::memory_order_relaxed); }

std::uint32_t list_rgb(int index) { return g_entries[static_cast<std::size_t>(index)].rgb; }

const char* list_name(int index) { return g_entries[static_cast<std::size_t>(index)].name; }

int copy_list_name(int index, char* buffer, int size) {
  if (index < 0 || index >= list_count() || buffer == nullptr || size <= 0) return 0;
  const std::size_t room = static_cast<std::size_t>(size) - 1;
  const std::size_t length = std::min(std::strlen(list_name(index)), room);
  std::memcpy(buffer, list_name(index), length);
  buffer[length] = '\0';
  return 1;
}

void copy_name(char (&slot)[kNameSize], std::string_view text) {
  std::size_t length = std::min(text.size(), static_cast<std::size_t>(kNameSize - 1));
  if (length < text.size()) {
    while (length > 0 && is_continuation_byte(text[length])) --length;
  }
  std::memcpy(slot, text.data(), length);
  slot[length] = '\0';
}

bool set_list_entry(int index, const char* name, std::uint32_t color) {
  const int count = list_count();
  if (index < 0 || index > count || index >= kListCapacity) return false;
  ColorEntry& entry = g_entries[static_cast<std::size_t>(index)];
  if (name != nullptr) {
    copy_name(entry.name, name);
  } else if (index == count) {
    entry.name[0] = '\0';
  }
  entry.rgb = color & kRgbMask;
  if (index == count) g_count.store(count + 1, std::memory_order_relaxed);
  return true;
}

void replace_list(const ColorEntry* entries, int count) {
  count = std::clamp(count, 0, kListCapacity);
  for (int i = 0; i < count; ++i) g_entries[static_cast<std::size_t>(i)] = entries[i];
  g_count.store(count, std::memory_order_relaxed);
}

void restore_builtin_list() {
  g_entries = make_builtin_list();
  g_count.store(KILNUTIL_COLOR_BUILTIN_COUNT, std::memory_order_relaxed);
  g_custom.clear();
}

bool custom_rgb(int index, std::uint32_t& color) {
  const long slot = static_cast<long>(index) - list_count();
  if (slot < 0 || slot >= static_cast<long>(g_custom.size())) return false;
  color = g_custom[static_cast<std::size_t>(slot)];
  return true;
}

bool set_custom_rgb(int index, std::uint32_t color) {
  const long slot = static_cast<long>(index) - list_count();
  if (slot < 0) return false;
  const auto needed = static_cast<std::size_t>(slot) + 1;
  if (needed > g_custom.size()) {
    const std::size_t steps = (needed + kExtensionStep - 1) / kExtensionStep;
    g_custom.resize(steps * kExtensionStep, kWhite);
  }
  g_custom[static_cast<std::size_t>(slot)] = color & kRgbMask;
  return true;
}

int find_exact(std::uint32_t color) {
  const int count = list_count();
  for (int i = 0; i < count; ++i) {
    if (list_rgb(i) == color) return i + 1;
  }
  return 0;
}

int find_nearest(std::uint32_t color) {
  const int count = list_count();
  long best_distance = kNearestStart;
  int best = 0;
  for (int i = 0; i < count; ++i) {
    const long distance = squared_distance(list_rgb(i), color);
    if (distance < best_distance) {
      best_distance = distance;
      best = i;
    }
  }
  return best;
}

int find_name(std::string_view name) {
  const int count = list_count();
  for (int i = 0; i < count; ++i) {
    if (same_ignoring_ascii_case(list_name(i), name)) return i + 1;
  }
  return 0;
}

}  // namespace kiln::color
