// Whole-file rewrites: adding a UTF-8 mark, turning a UTF-8 file into
// code-page text, making a file UTF-16. Every rewrite goes through
// FileReplacement, so a failure never damages the original.
#pragma once

#include <kilnutil/unicode.h>

namespace kiln::unicode {

// Result codes of the rewrites.
inline constexpr int kRewriteShortWrite = KILNUTIL_REWRITE_SHORT_WRITE;
inline constexpr int kRewriteCantWrite = KILNUTIL_REWRITE_CANT_WRITE;
inline constexpr int kRewriteNotUtf16Convertible = KILNUTIL_REWRITE_NOT_UTF16_CONVERTIBLE;
inline constexpr int kRewriteNoMark = KILNUTIL_REWRITE_NO_MARK;
inline constexpr int kRewriteShortRead = KILNUTIL_REWRITE_SHORT_READ;
inline constexpr int kRewriteNoMemoryForText = KILNUTIL_REWRITE_NO_MEMORY_FOR_TEXT;
inline constexpr int kRewriteNoMemoryForFile = KILNUTIL_REWRITE_NO_MEMORY_FOR_FILE;
inline constexpr int kRewriteEmptyFile = KILNUTIL_REWRITE_EMPTY_FILE;
inline constexpr int kRewriteCantOpen = KILNUTIL_REWRITE_CANT_OPEN;
inline constexpr int kRewriteCodePageFails = KILNUTIL_REWRITE_CODE_PAGE_FAILS;

// Files of this size and more are converted one character at a time.
inline constexpr long long kStreamingConversionSize = 0x40000000;

// ConvertUTF8TextFileToCodePageIfPossible with the size from which the file
// is streamed instead of read whole.
int convert_utf8_file_to_code_page(const char* path, int code_page, long long streaming_size);

// Makes the file at the UTF-16 `path` UTF-16 little-endian: a missing file is
// created (with its folders) holding the mark, an empty one gets the mark,
// code-page text without a mark is rewritten. 1 when a file with only the
// mark was written, else 0.
int make_file_utf16_at(const KILN_WCHAR* path);

// make_file_utf16_at for a UTF-8 path, the file deleted first on request.
void make_file_utf16_from_utf8(const char* path, bool delete_first);

// Puts the UTF-8 mark in front of the file's bytes: 2 when written, 0 when the
// mark is there already, 1 when left alone (pure ASCII with only_if_non_ascii,
// or no rewrite possible); the rewrite result codes for a failed read or a
// short write.
int insert_utf8_mark(const char* path, bool only_if_non_ascii);

}  // namespace kiln::unicode
