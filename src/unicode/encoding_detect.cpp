// The buffer detector: mark, UTF-8 check, UTF-16 heuristics, in that order.
#include "unicode/encoding_detect.h"

#include "frame/settings.h"
#include "platform/bits.h"

#include <kilnutil/unicode.h>

#include <array>
#include <cstdint>
#include <cstring>

namespace kiln::unicode {

namespace {

// The detector's parameters, built afresh for every buffer. A NUL byte
// always fails the UTF-8 check (see kContinuations).
struct DetectorParameters {
  int high_ratio_percent = 70;
  int low_ratio_percent = 10;
  bool guess = true;
};

bool starts_with(const unsigned char* bytes, size_t count, const unsigned char* mark, size_t mark_size) {
  return count >= mark_size && std::memcmp(bytes, mark, mark_size) == 0;
}

using platform::load_word;
using platform::zero_or_high_byte;

// Length of the run of bytes 0x01-0x7F at the start, found 32 bytes at a time.
size_t ascii_run(const unsigned char* bytes, size_t count) {
  size_t i = 0;
  while (i + 32 <= count) {
    const uint64_t bad = zero_or_high_byte(load_word(bytes + i)) | zero_or_high_byte(load_word(bytes + i + 8)) |
                         zero_or_high_byte(load_word(bytes + i + 16)) | zero_or_high_byte(load_word(bytes + i + 24));
    if (bad != 0) break;
    i += 32;
  }
  while (i < count && bytes[i] != 0 && bytes[i] < 0x80) ++i;
  return i;
}

// Continuation bytes each byte announces as a lead byte: 0 for ASCII, -1 for
// a byte that can't start a character (NUL included: it fails the test).
constexpr auto kContinuations = [] {
  std::array<signed char, 256> table{};
  for (int b = 0; b < 256; ++b) {
    table[b] = b == 0 ? -1 : b < 0x80 ? 0 : b < 0xC2 ? -1 : b < 0xE0 ? 1 : b < 0xF0 ? 2 : b < 0xF5 ? 3 : -1;
  }
  return table;
}();

unsigned run_detector(const unsigned char* bytes, size_t count, const DetectorParameters& parameters) {
  if (const unsigned mark = mark_encoding(bytes, count); mark != 0) return mark;
  if (!parameters.guess) return kEncodingCodePage;
  switch (utf8_verdict(bytes, count)) {
    case Utf8Verdict::kAscii: return kEncodingAsciiBit;
    case Utf8Verdict::kUtf8: return kEncodingUtf8;
    case Utf8Verdict::kInvalid: break;
  }
  if (const unsigned by_line_ends = utf16_by_line_ends(bytes, count, frame::detect_encoding_need_guess()))
    return by_line_ends;
  return utf16_by_zero_ratio(bytes, count, parameters.high_ratio_percent, parameters.low_ratio_percent);
}

}  // namespace

bool guessing_allowed(int flags) {
  return (frame::detect_encoding_need_guess() & kGuessAllowed) != 0 && (flags & kDetectMarkOnly) == 0;
}

unsigned mark_encoding(const unsigned char* bytes, size_t count) {
  static constexpr unsigned char kUtf16Le[] = {0xFF, 0xFE};
  static constexpr unsigned char kUtf16Be[] = {0xFE, 0xFF};
  static constexpr unsigned char kUtf8[] = {0xEF, 0xBB, 0xBF};
  static constexpr unsigned char kUtf32Le[] = {0xFF, 0xFE, 0x00, 0x00};
  static constexpr unsigned char kUtf32Be[] = {0x00, 0x00, 0xFE, 0xFF};
  if (starts_with(bytes, count, kUtf16Le, 2)) return kEncodingMarkBit | kEncodingUtf16Le;
  if (starts_with(bytes, count, kUtf16Be, 2)) return kEncodingMarkBit | kEncodingUtf16Be;
  if (starts_with(bytes, count, kUtf8, 3)) return kEncodingMarkBit | kEncodingUtf8;
  if (starts_with(bytes, count, kUtf32Le, 4)) return kEncodingMarkBit | kEncodingUtf32Le;
  if (starts_with(bytes, count, kUtf32Be, 4)) return kEncodingMarkBit | kEncodingUtf32Be;
  return 0;
}

Utf8Verdict utf8_verdict(const unsigned char* bytes, size_t count) {
  bool continuation_seen = false;
  size_t i = 0;
  while (i < count) {
    const int expected = kContinuations[bytes[i]];
    if (expected == 0) {
      // Runs of ASCII go 32 bytes at a time.
      i += ascii_run(bytes + i, count - i);
      continue;
    }
    if (expected < 0) return Utf8Verdict::kInvalid;
    // The end of the buffer may cut the last sequence short: that passes.
    const size_t end = i + 1 + static_cast<size_t>(expected) < count ? i + 1 + static_cast<size_t>(expected) : count;
    for (++i; i < end; ++i) {
      if ((bytes[i] & 0xC0) != 0x80) return Utf8Verdict::kInvalid;
      continuation_seen = true;
    }
  }
  return continuation_seen ? Utf8Verdict::kUtf8 : Utf8Verdict::kAscii;
}

unsigned utf16_by_line_ends(const unsigned char* bytes, size_t count, unsigned guess_setting) {
  if (count < 2) return 0;
  auto is_line_end = [](unsigned char b) { return b == 0x0A || b == 0x0D; };
  size_t little_endian = 0;
  size_t big_endian = 0;
  for (size_t i = 0; i < count - 1; i += 2) {
    const unsigned char first = bytes[i];
    const unsigned char second = bytes[i + 1];
    if (first != 0 && second == 0) {
      if (is_line_end(first)) ++little_endian;
    } else if (first == 0 && second == 0) {
      if (guess_setting & kGuessZeroPairRulesOutUtf16) return 0;
    } else if (first == 0) {
      if (is_line_end(second)) ++big_endian;
    }
    if (little_endian != 0 && big_endian != 0) return 0;
  }
  if (little_endian != 0) return kEncodingUtf16Le;
  if (big_endian != 0) return kEncodingUtf16Be;
  return 0;
}

unsigned utf16_by_zero_ratio(const unsigned char* bytes, size_t count, int high_percent, int low_percent) {
  if (count == 0) return 0;
  size_t even_zeros = 0;
  size_t odd_zeros = 0;
  for (size_t i = 0; i < count; ++i) {
    if (bytes[i] == 0) ++((i & 1) ? odd_zeros : even_zeros);
  }
  const double even = 2.0 * static_cast<double>(even_zeros) / static_cast<double>(count);
  const double odd = 2.0 * static_cast<double>(odd_zeros) / static_cast<double>(count);
  const double high = high_percent / 100.0;
  const double low = low_percent / 100.0;
  if (low > even && odd > high) return kEncodingUtf16Le;
  if (!(low > odd)) return 0;
  return even > high ? kEncodingUtf16Be : 0;
}

unsigned detect_encoding(const unsigned char* bytes, size_t count, int flags) {
  DetectorParameters parameters;
  parameters.guess = guessing_allowed(flags);
  if (bytes == nullptr) return kEncodingNone;
  return run_detector(bytes, count, parameters);
}

int byte_order_mark_size(unsigned code) {
  if ((code & kEncodingMarkBit) == 0) return 0;
  switch (encoding_family(code)) {
    case kEncodingUtf8: return 3;
    case kEncodingUtf16Le:
    case kEncodingUtf16Be: return 2;
    case kEncodingUtf32Le:
    case kEncodingUtf32Be: return 4;
    default: return 0;
  }
}

}  // namespace kiln::unicode
