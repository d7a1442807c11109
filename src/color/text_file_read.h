// A whole text file as UTF-8, whatever its encoding: the library's encoding
// detection picks UTF-8 (mark dropped), UTF-16 or UTF-32 of either byte order,
// or code-page text in the effective code page, which is converted.
#pragma once

#include <string>

namespace kiln::color {

enum class TextFileStatus { kOk, kCantRead, kCantConvert };

TextFileStatus read_text_file_as_utf8(const char* path, std::string& utf8);

}  // namespace kiln::color
