// Any text file as a stream of UTF-8 pieces. The library's detection (over
// the leading bytes its extension rule gives) is the first opinion; the tool
// then decides on the whole file: ASCII so far is read as UTF-8 when
// everything after it is valid UTF-8 and as code-page text otherwise, UTF-32
// marks are honoured, binary input is refused and invalid input is reported
// with its byte offset (or replaced by U+FFFD on request).
#pragma once

#include "encoding_names.h"
#include "file_io.h"

#include <cstdint>
#include <optional>
#include <string>

namespace kilnutil_cli {

struct DecodeOptions {
  std::optional<TextEncoding> forced;  // -c/--codepage: no detection
  bool force = false;                  // --force: read binary-looking input as text
  bool replace = false;                // --replace: U+FFFD for invalid input
};

class TextDecoder {
public:
  TextDecoder(InputFile& input, DecodeOptions options) : input_(input), options_(options) {}

  // Reads the leading bytes and decides the encoding; false with error().
  bool start();
  // Appends the next piece of UTF-8 text (up to about 1 MiB) to out; false
  // at the end of the input or on failure (then error() is set).
  bool next(std::string& out);
  const std::string& error() const { return error_; }

  // The library's encoding code for the leading bytes.
  unsigned detected_code() const { return detected_code_; }
  // What the text is read as, such as "Windows-1252 (code page 1252)" or
  // "UTF-8 with mark", and why when the tool overrode the first opinion.
  std::string description() const;

private:
  enum class Mode { kAsciiSoFar, kUtf8, kCodePage, kUtf16Le, kUtf16Be, kUtf32Le, kUtf32Be };

  // Reads a piece when fewer than a piece's bytes wait (or always, with more).
  bool fill(bool more);
  void choose_mode();
  bool refuse_binary_head();
  bool decode_ascii_so_far(std::string& out);
  bool decode_utf8(std::string& out);
  bool decode_code_page(std::string& out);
  bool decode_wide(std::string& out);
  enum class Utf8Verdict { kValid, kDamaged, kNotUtf8, kFailed };
  // Checks pending_ and the rest of the input as UTF-8 and comes back to
  // where it was (a pipe is copied to a temporary file on the way).
  Utf8Verdict check_rest_as_utf8();
  bool take_valid_text(std::string_view text, std::string& out);
  bool fail_invalid(std::size_t at, std::string_view what);
  bool fail_binary(std::size_t at);
  void consume(std::size_t bytes);

  InputFile& input_;
  DecodeOptions options_;
  Mode mode_ = Mode::kUtf8;
  unsigned code_page_ = 1252;
  unsigned detected_code_ = 255;
  std::size_t mark_size_ = 0;
  std::string note_;
  std::string error_;
  std::string pending_;               // raw bytes not yet decoded
  std::uint64_t pending_offset_ = 0;  // input offset of pending_[0]
  bool at_end_ = false;
};

}  // namespace kilnutil_cli
