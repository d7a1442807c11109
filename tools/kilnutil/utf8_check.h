// Well-formed UTF-8 as the tool accepts it: no overlong forms, no encoded
// surrogates, nothing past U+10FFFF.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kilnutil_cli {

enum class SequenceStatus { kValid, kInvalid, kTruncated };

struct Sequence {
  SequenceStatus status;
  // kValid: the sequence's bytes; kInvalid: the bytes of the longest
  // well-formed beginning (at least 1), which one U+FFFD replaces.
  std::size_t length;
};

// The sequence starting at text[at] (at < text.size()).
Sequence sequence_at(std::string_view text, std::size_t at);

// The offset of the first byte that does not begin (or continue) a
// well-formed sequence, or of a sequence cut off by the end of the text;
// text.size() when all of it is well formed.
std::size_t valid_utf8_prefix(std::string_view text);

// The offset of the first byte of 0x80 or above, or text.size().
std::size_t ascii_prefix(std::string_view text);

// Appends text to out with every ill-formed part replaced by U+FFFD (a
// truncated sequence at the end included).
void append_replacing_invalid(std::string_view text, std::string& out);

inline constexpr std::string_view kReplacementCharacter = "\xEF\xBF\xBD";

// Appends the UTF-8 form of a code point (below 0x110000, not a surrogate).
void append_code_point(char32_t code_point, std::string& out);

}  // namespace kilnutil_cli
