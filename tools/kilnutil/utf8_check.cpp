// UTF-8 checks with a fast path over ASCII runs.
#include "utf8_check.h"

#include <cstdint>
#include <cstring>

namespace kilnutil_cli {

namespace {

unsigned byte_at(std::string_view text, std::size_t at) { return static_cast<unsigned char>(text[at]); }

bool is_continuation(unsigned byte) { return (byte & 0xC0u) == 0x80u; }

// The allowed range of the second byte after a lead byte (Unicode table 3-7).
struct SecondByteRange {
  unsigned low;
  unsigned high;
};

SecondByteRange second_byte_range(unsigned lead) {
  if (lead == 0xE0) return {0xA0, 0xBF};
  if (lead == 0xED) return {0x80, 0x9F};
  if (lead == 0xF0) return {0x90, 0xBF};
  if (lead == 0xF4) return {0x80, 0x8F};
  return {0x80, 0xBF};
}

std::size_t sequence_length_of_lead(unsigned lead) {
  if (lead >= 0xC2 && lead <= 0xDF) return 2;
  if (lead >= 0xE0 && lead <= 0xEF) return 3;
  if (lead >= 0xF0 && lead <= 0xF4) return 4;
  return 0;
}

}  // namespace

Sequence sequence_at(std::string_view text, std::size_t at) {
  const unsigned lead = byte_at(text, at);
  if (lead < 0x80) return {SequenceStatus::kValid, 1};
  const std::size_t length = sequence_length_of_lead(lead);
  if (length == 0) return {SequenceStatus::kInvalid, 1};
  const SecondByteRange second = second_byte_range(lead);
  for (std::size_t i = 1; i < length; ++i) {
    if (at + i >= text.size()) return {SequenceStatus::kTruncated, i};
    const unsigned byte = byte_at(text, at + i);
    const bool fits = i == 1 ? (byte >= second.low && byte <= second.high) : is_continuation(byte);
    if (!fits) return {SequenceStatus::kInvalid, i};
  }
  return {SequenceStatus::kValid, length};
}

std::size_t ascii_prefix(std::string_view text) {
  std::size_t at = 0;
  constexpr std::uint64_t kHighBits = 0x8080808080808080ull;
  for (; at + 8 <= text.size(); at += 8) {
    std::uint64_t word;
    std::memcpy(&word, text.data() + at, 8);
    if (word & kHighBits) break;
  }
  while (at < text.size() && byte_at(text, at) < 0x80) ++at;
  return at;
}

std::size_t valid_utf8_prefix(std::string_view text) {
  std::size_t at = 0;
  while (at < text.size()) {
    at += ascii_prefix(text.substr(at));
    if (at == text.size()) break;
    const Sequence sequence = sequence_at(text, at);
    if (sequence.status != SequenceStatus::kValid) return at;
    at += sequence.length;
  }
  return at;
}

void append_replacing_invalid(std::string_view text, std::string& out) {
  while (!text.empty()) {
    const std::size_t valid = valid_utf8_prefix(text);
    out.append(text.substr(0, valid));
    if (valid == text.size()) return;
    out.append(kReplacementCharacter);
    text.remove_prefix(valid + sequence_at(text, valid).length);
  }
}

void append_code_point(char32_t code_point, std::string& out) {
  const auto c = static_cast<std::uint32_t>(code_point);
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xC0 | (c >> 6));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    out += static_cast<char>(0xE0 | (c >> 12));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (c >> 18));
    out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  }
}

}  // namespace kilnutil_cli
