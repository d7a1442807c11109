// Partial-import parts written out as text, so a test compares whole parts.
#pragma once

#include <kilnutil/import.h>

#include <string>

namespace partial_test {

// "[~]begin:end", then " count-skip[unit]" when not the plain 1-0, then
// " name special_count[unit]" when a special selection is set, then " flip".
inline std::string describe(const ImportFilesPartialPart& part) {
  std::string s = part.include ? "" : "~";
  s += std::to_string(part.begin) + ":" + std::to_string(part.end);
  if (part.count != 1 || part.skip != 0 || part.skip_unit != 0) {
    s += " " + std::to_string(part.count) + "-" + std::to_string(part.skip);
    if (part.skip_unit != 0) s += part.skip_unit;
  }
  if (part.name[0] != '\0' || part.special_count != 0 || part.special_unit != 0) {
    s += " " + std::string(part.name) + std::to_string(part.special_count);
    if (part.special_unit != 0) s += part.special_unit;
  }
  if (part.flip_shift[0] != '\0') s += " " + std::string(part.flip_shift);
  return s;
}

// Every part, separated by "; ".
inline std::string describe(const ImportFilesPartialParts& parts) {
  std::string s;
  for (int k = 0; k < parts.GetPartialParts(); ++k) s += (k ? "; " : "") + describe(*parts.GetPart(k));
  return s;
}

// The parts of a request, or "rejected" when it holds no item.
inline std::string parsed(const char* request) {
  ImportFilesPartialParts parts;
  return parts.Parse(request) ? describe(parts) : "rejected";
}

}  // namespace partial_test
