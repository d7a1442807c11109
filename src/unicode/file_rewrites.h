// Whole-file rewrites: adding a UTF-8 mark, turning a UTF-8 file into
// code-page text, making a file UTF-16. Every rewrite goes through
// FileReplacement, so a failure never damages the original.
#pragma once

#include <kilnutil/export.h>

namespace kiln::unicode {

// Result codes of the rewrites.
inline constexpr int kRewriteShortWrite = -321;
inline constexpr int kRewriteCantWrite = -322;
inline constexpr int kRewriteNotUtf16Convertible = -323;
inline constexpr int kRewriteNoMark = -324;
inline constexpr int kRewriteShortRead = -325;
inline constexpr int kRewriteNoMemoryForText = -326;
inline constexpr int kRewriteNoMemoryForFile = -327;
inline constexpr int kRewriteEmptyFile = -328;
inline constexpr int kRewriteCantOpen = -329;
inline constexpr int kRewriteCodePageFails = -330;

// Files of this size and more are converted one character at a time.
inline constexpr long long kStreamingConversionSize = 0x40000000;

// ConvertUTF8TextFileToCodePageIfPossible with the size from which the file
// is streamed instead of read whole.
int convert_utf8_file_to_code_page(const char* path, int code_page, long long streaming_size);

}  // namespace kiln::unicode
