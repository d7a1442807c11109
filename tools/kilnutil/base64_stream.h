// Base64 in pieces, in the form of the common command-line tools: encoded
// text wrapped at a column (76 by default, 0 for one line without a final
// line end), and a strict decoder that skips only line feeds, takes padded
// groups anywhere and reports the first character it can't take.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kilnutil_cli {

class Base64Encoder {
public:
  explicit Base64Encoder(std::size_t wrap_column) : wrap_(wrap_column) {}
  // Appends the encoded text of bytes (any count; groups carry over).
  void add(std::string_view bytes, std::string& out);
  // Appends the last group and the final line end.
  void finish(std::string& out);

private:
  void append_wrapped(std::string_view text, std::string& out);

  std::size_t wrap_;
  std::size_t column_ = 0;
  std::string carry_;  // up to 2 bytes of an unfinished group
  std::string encoded_;
  bool wrote_ = false;
};

class Base64Decoder {
public:
  explicit Base64Decoder(bool ignore_garbage) : ignore_garbage_(ignore_garbage) {}
  // Appends the bytes of text; false at the first character that can't be
  // taken (the bytes before it are appended), with error() set.
  bool add(std::string_view text, std::string& out);
  // False when the text ended inside a group (its whole bytes are appended).
  bool finish(std::string& out);
  const std::string& error() const { return error_; }

private:
  bool take_group(std::string& out);
  // The whole bytes of an unfinished group (the decoders of the common tools write them before failing).
  void take_partial_group(std::string& out);
  void decode_clean(std::string& out);

  bool ignore_garbage_;
  std::uint64_t offset_ = 0;  // input characters seen
  std::string clean_;         // alphabet and "=" characters not yet decoded
  std::string error_;
};

}  // namespace kilnutil_cli
