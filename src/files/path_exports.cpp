// Exports of the path syntax check and path splitting.
#include "files/paths.h"

#include <kilnutil/files.h>

extern "C" {

int KILNUTIL_IsPathValidSyntax(const char* path, int* code) {
  const int result = path != nullptr ? kiln::files::path_syntax_code(path) : KILNUTIL_PATH_NOT_ABSOLUTE;
  if (code != nullptr) *code = result;
  return result > 0 ? 1 : 0;
}

char* KILNUTIL_SeparatePath(const char* path, char* folder, char* name, char* extension) {
  if (path == nullptr || folder == nullptr || name == nullptr) return nullptr;
  return kiln::files::separate_path(path, folder, name, extension);
}

}  // extern "C"
