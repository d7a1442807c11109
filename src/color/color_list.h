// The process-wide colour list (up to 40 named colours, 24 built in), the
// built-in list it can be restored to, and the table of custom colours that
// continues the list's indices. Indices here are 0-based unless a function
// says otherwise. Nothing is locked: the host changes the list from one
// thread.
#pragma once

#include <kilnutil/color.h>

#include <cstdint>
#include <string_view>

namespace kiln::color {

inline constexpr int kListCapacity = KILNUTIL_COLOR_LIST_CAPACITY;
inline constexpr int kNameSize = KILNUTIL_COLOR_NAME_SIZE;
inline constexpr std::uint32_t kWhite = 0xFFFFFF;

struct ColorEntry {
  char name[kNameSize];
  std::uint32_t rgb;
};

int list_count();
// The colour and name at `index` < list_count().
std::uint32_t list_rgb(int index);
const char* list_name(int index);
// Copies the name at `index` into `buffer` of `size` bytes, cut to fit: 1,
// or 0 when the index is not in the list or there is no room.
int copy_list_name(int index, char* buffer, int size);

// Sets the entry at `index` (index == count appends); a null name keeps the
// old name (an appended entry without one is named ""). False when index is
// beyond the count or the capacity.
bool set_list_entry(int index, const char* name, std::uint32_t rgb);
// Replaces the whole list by `count` entries (at most the capacity).
void replace_list(const ColorEntry* entries, int count);
// The built-in list back, custom colours dropped.
void restore_builtin_list();

// The custom colour at `index` (>= the count): false when the table does not
// reach that far.
bool custom_rgb(int index, std::uint32_t& rgb);
// Sets the custom colour at `index` (>= the count); the table grows 16
// entries at a time, new entries white. False for an index below the count.
bool set_custom_rgb(int index, std::uint32_t rgb);

// The first entry equal to `rgb`, 1-based; 0 when there is none.
int find_exact(std::uint32_t rgb);
// The first entry of the smallest squared RGB distance, 0-based (0 for an
// empty list). An entry replaces the best only when strictly closer.
int find_nearest(std::uint32_t rgb);
// The entry whose name equals `name` ignoring ASCII case, 1-based; 0 if none.
int find_name(std::string_view name);

bool same_ignoring_ascii_case(std::string_view a, std::string_view b);

// Copies `text` into a name slot: at most kNameSize - 1 bytes, never cutting
// a UTF-8 character, terminated.
void copy_name(char (&slot)[kNameSize], std::string_view text);

}  // namespace kiln::color
