// Records and fields of delimited text: a record ends at a line feed, a
// carriage return or both, outside double quotes (so quoted fields may span
// lines); fields are cut at the separator outside double quotes.
#pragma once

#include "text_decoder.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kilnutil_cli {

// Blank-separated text (separator ' ') takes runs of blanks and tabs as one
// separator and ignores leading ones.
inline constexpr char kBlankSeparator = ' ';

// Pulls UTF-8 text from a decoder and hands out one record at a time.
class RecordReader {
public:
  explicit RecordReader(TextDecoder& decoder) : decoder_(decoder) {}
  // The next record without its line end (valid until the next call); false
  // at the end or when the decoder failed (see error()).
  bool next(std::string_view& record);
  // Records handed out so far: the 1-based number of the last one.
  std::uint64_t count() const { return count_; }
  const std::string& error() const { return error_; }
  // The separator, once known (0: not yet): only a double quote at the start
  // of a record or after it opens a quoted field.
  void set_separator(char separator) { separator_ = separator; }

private:
  bool pull();
  bool take_plain_line(std::string_view& record);

  TextDecoder& decoder_;
  std::string text_;
  std::size_t at_ = 0;
  std::uint64_t count_ = 0;
  static constexpr std::size_t kUnknown = static_cast<std::size_t>(-1);
  std::size_t quote_at_ = kUnknown;   // the next double quote at or after at_ (text_.size(): none)
  std::size_t return_at_ = kUnknown;  // the next carriage return likewise
  bool ended_ = false;
  char separator_ = 0;
  std::string error_;
};

// Cuts a record into fields (views into it, quotes kept); no separator (0)
// gives one field.
void split_fields(std::string_view record, char separator, std::vector<std::string_view>& fields);

// A field's text: surrounding blanks trimmed, enclosing double quotes
// removed and doubled quotes inside them made single.
std::string field_text(std::string_view field);
// The same into text, reusing its storage.
void assign_field_text(std::string_view field, std::string& text);

}  // namespace kilnutil_cli
