// The colour list in the "Color List" section of an initialisation file: one
// key per colour name, the value "%d %d %d" (red, green, blue).
#pragma once

namespace kiln::color {

// Replaces the list by the section's colours (at most the capacity, entries
// whose value is not three integers skipped): the new count, or -1 with the
// list unchanged when the file can't be read or the section has no colour.
int load_color_list(const char* path);

// Writes the list into the section, keeping the rest of the file, through a
// temporary file renamed over the original: true when done; on failure the
// old file is kept as it was.
bool save_color_list(const char* path);

}  // namespace kiln::color
