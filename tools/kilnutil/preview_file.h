// The import side of `kilnutil preview`: a text file opened as UTF-8 the way
// the host opens files to import (encoding detection, conversion of code-page
// and UTF-16 text to a UTF-8 copy), read as a stream of blocks.
#pragma once

#include <kilnutil/unicode.h>

#include <cstdio>
#include <string>
#include <vector>

namespace kilnutil_cli {

class Utf8TextFile {
public:
  // Opens path; check ok() (or error()) before reading.
  explicit Utf8TextFile(const std::string& path);
  ~Utf8TextFile();
  Utf8TextFile(const Utf8TextFile&) = delete;
  Utf8TextFile& operator=(const Utf8TextFile&) = delete;

  bool ok() const { return stream_ != nullptr; }
  const std::string& error() const { return error_; }
  // The detected encoding code (family, 0x100 mark, 0x200 ASCII, 255 empty).
  unsigned int encoding() const { return encoding_; }

  // Reads up to size bytes of UTF-8 text; 0 at the end.
  std::size_t read(char* buffer, std::size_t size);

private:
  TextFileToUTF8Context context_{};
  std::FILE* stream_ = nullptr;
  unsigned int encoding_ = KILNUTIL_ENCODING_NONE;
  std::string error_;
};

// A readable name of an encoding code, such as "UTF-8 with mark".
std::string encoding_name(unsigned int code);

// The first lines of the text: enough to find the separator.
std::string read_head(Utf8TextFile& file);

struct TableLayout {
  int separator = -1;  // tab, ',', ';' or -1 (each line one field)
  char decimal_separator = '.';
  int fields = 1;  // fields of the first line
};

// The separator as the host finds it: a table whose lines agree on
// semicolon-separated fields is semicolon-separated with decimal commas (the
// library's decimal separator becomes ","); otherwise tab, comma or none.
TableLayout find_table_layout(std::string head);

// Makes "," the library's decimal separator for the numbers read afterwards.
void use_decimal_comma();

// The fields of one line (its trailing CR dropped), cut in place.
std::vector<char*> split_fields(std::string& line, int separator);

}  // namespace kilnutil_cli
