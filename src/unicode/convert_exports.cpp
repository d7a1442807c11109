// Conversions between code-page text, UTF-8 and UTF-16 in caller buffers and
// in global memory blocks: the exported forms.
#include "unicode/code_page_text.h"
#include "unicode/global_text.h"

#include <kilnutil/unicode.h>

using namespace kiln::unicode;

extern "C" {

int KILNUTIL_UNICODE_MBCS_to_UTF8(const char* src, int src_len, char* dst, int dst_size, int code_page) {
  return code_page_to_utf8_buffer(src, src_len, dst, dst_size, code_page);
}

int KILNUTIL_UNICODE_UTF8_to_MBCS(const char* src, int src_len, char* dst, int dst_size, int code_page) {
  return utf8_to_code_page_buffer(src, src_len, dst, dst_size, code_page);
}

int KILNUTIL_UNICODE_UTF16_to_UTF8_buffers(char* dst, int dst_size, const KILN_WCHAR* src) {
  return utf16_to_utf8_buffer(dst, dst_size, src);
}

int KILNUTIL_UNICODE_UTF8_to_UTF16_buffers_ex(KILN_WCHAR* dst, int dst_units, const char* src, int src_len) {
  return utf8_to_utf16_buffer(dst, dst_units, src, src_len);
}

int KILNUTIL_UNICODE_UTF16LE_to_UTF16BE(KILN_WCHAR* text) {
  swap_utf16_bytes(text);
  return 1;
}

int IsUTF8StringConvertibleToCodePage(const char* text, unsigned int code_page) {
  return utf8_convertibility(text, code_page);
}

int KILNUTIL_UNICODE_mbcs_to_UTF8_or_back_handle(HGLOBAL* handle, int direction, int code_page) {
  return convert_handle_text(handle, direction, code_page);
}

int KILNUTIL_UNICODE_mbcs_to_UTF8_handle(HGLOBAL* handle, int code_page) {
  return convert_handle_text(handle, 0, code_page);
}

int KILNUTIL_UNICODE_UTF8_to_mbcs_handle(HGLOBAL* handle, int code_page) {
  return convert_handle_text(handle, 1, code_page);
}

HGLOBAL KILNUTIL_UNICODE_UTF8_to_UTF16_handle(HGLOBAL utf8, int movable, int free_source) {
  return utf8_block_to_utf16(utf8, movable != 0, free_source != 0);
}

}  // extern "C"
