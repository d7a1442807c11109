// Files opened and tested by UTF-8 path: the exported forms.
#include "unicode/utf8_paths.h"

#include <kilnutil/unicode.h>

using namespace kiln::unicode;

extern "C" {

FILE* KILNUTIL_UTF8_fopen(const char* path, const char* mode) { return open_utf8_path(path, mode); }

HANDLE KILNUTIL_UTF8_CreateFile(const char* path, unsigned int access, unsigned int /*share_mode*/, void* /*security*/,
                                unsigned int disposition, unsigned int flags_and_attributes, HANDLE /*template_file*/) {
  return create_utf8_path(path, access, disposition, flags_and_attributes);
}

int KILNUTIL_UTF8__access(const char* path, int mode) { return test_utf8_path_access(path, mode); }

}  // extern "C"
