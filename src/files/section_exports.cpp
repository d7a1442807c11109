// Exports of the sectioned text files.
#include "files/section_header.h"
#include "files/section_reader.h"

#include <kilnutil/files.h>

extern "C" {

char* KILNUTIL_find_section_name(const char* line, char** end) {
  if (line == nullptr) return nullptr;
  const char* close = nullptr;
  const char* open = kiln::files::find_section_header(line, &close);
  if (open != nullptr && end != nullptr) *end = const_cast<char*>(close);
  return const_cast<char*>(open);
}

char* KILNUTIL_get_file_section_name(char* line) {
  if (line == nullptr) return nullptr;
  return kiln::files::section_name_in_line(line);
}

HGLOBAL KILNUTIL_GetFileSectionEx(const char* path, const char* name, unsigned int* status, unsigned int* line_index,
                                  unsigned int flags) {
  if (path == nullptr) return nullptr;
  return kiln::files::read_file_section(path, name, status, line_index, flags);
}

HGLOBAL KILNUTIL_GetFileSection(const char* path, const char* name, unsigned int* status) {
  if (path == nullptr) return nullptr;
  return kiln::files::read_file_section(path, name, status, nullptr, 0);
}

}  // extern "C"
