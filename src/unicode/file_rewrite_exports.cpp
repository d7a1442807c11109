// Whole-file rewrites (UTF-8 mark, code-page text, UTF-16): the exported forms.
#include "unicode/file_rewrites.h"

#include <kilnutil/unicode.h>

using namespace kiln::unicode;

extern "C" {

int InsertUTF8BOM(const char* path, int only_if_non_ascii) { return insert_utf8_mark(path, only_if_non_ascii != 0); }

int ConvertUTF8TextFileToCodePageIfPossible(const char* path, int code_page) {
  return convert_utf8_file_to_code_page(path, code_page, kStreamingConversionSize);
}

int KILNUTIL_MakeFileUTF16(const KILN_WCHAR* path) { return make_file_utf16_at(path); }

void make_file_UTF16(const char* path, int delete_first) { make_file_utf16_from_utf8(path, delete_first != 0); }

}  // extern "C"
