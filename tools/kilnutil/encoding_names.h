// Encodings a user names on the command line (-c/--codepage): code-page
// numbers and the usual names, and how the tool names encodings back.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kilnutil_cli {

enum class TextForm { kCodePage, kUtf8, kUtf16Le, kUtf16Be, kUtf32Le, kUtf32Be };

struct TextEncoding {
  TextForm form = TextForm::kCodePage;
  unsigned code_page = 0;  // for kCodePage
};

// "1252", "cp1252", "windows-1252", "shift_jis", "gbk", "big5", "euc-kr",
// "utf-8", "utf-16le", ... (case and "-"/"_" ignored). Empty when the name is
// unknown or the library has no converter for that code page.
std::optional<TextEncoding> encoding_from_name(std::string_view name);

// "Windows-1252 (code page 1252)", "Shift_JIS (code page 932)", "UTF-16LE".
std::string encoding_label(const TextEncoding& encoding);

// The ANSI code page of the process locale's codeset, by the library's rule:
// UTF-8 65001, Shift_JIS/EUC-JP 932, GBK/GB2312/GB18030 936, EUC-KR 949,
// Big5 950, anything else (the C locale included) 1252.
unsigned locale_code_page();

// Whether a code page uses two bytes for some characters.
bool is_double_byte_code_page(unsigned code_page);

}  // namespace kilnutil_cli
