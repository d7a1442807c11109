// The tool's reading of text files: the library's detection first, then the
// checks that need the whole file, then conversion piece by piece.
#include "text_decoder.h"

#include "utf8_check.h"

#include <kilnutil/unicode.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string_view>

namespace kilnutil_cli {

namespace {

constexpr std::size_t kPiece = 1 << 20;
constexpr std::size_t kBinaryCheckBytes = 64 * 1024;
constexpr std::size_t kMaxControlPercent = 10;

bool is_text_control(unsigned char c) {
  return c == '\t' || c == '\n' || c == '\r' || c == '\f' || c == '\v' || c == '\b' || c == 0x1A || c == 0x1B;
}

std::string hex_byte(unsigned byte) {
  char text[8];
  std::snprintf(text, sizeof text, "0x%02X", byte & 0xFFu);
  return text;
}

bool starts_with(std::string_view text, std::string_view prefix) { return text.substr(0, prefix.size()) == prefix; }

// The mark of a form, for skipping it when the user names the form.
std::string_view mark_of(TextForm form) {
  using namespace std::string_view_literals;
  switch (form) {
    case TextForm::kUtf8: return "\xEF\xBB\xBF"sv;
    case TextForm::kUtf16Le: return "\xFF\xFE"sv;
    case TextForm::kUtf16Be: return "\xFE\xFF"sv;
    case TextForm::kUtf32Le: return "\xFF\xFE\0\0"sv;
    case TextForm::kUtf32Be: return "\0\0\xFE\xFF"sv;
    case TextForm::kCodePage: break;
  }
  return {};
}

// Where the last character that may continue past `text` starts, so that a
// piece never ends inside a UTF-8 sequence.
std::size_t complete_utf8_end(std::string_view text) {
  const std::size_t size = text.size();
  for (std::size_t back = 1; back <= std::min<std::size_t>(3, size); ++back) {
    const auto byte = static_cast<unsigned char>(text[size - back]);
    if ((byte & 0xC0u) == 0x80u) continue;
    const std::size_t length = byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : byte >= 0xC0 ? 2 : 1;
    return length > back ? size - back : size;
  }
  return size;
}

// Converts NUL-free code-page text with the library; false on failure.
bool code_page_to_utf8(char* begin, std::size_t length, unsigned code_page, std::string& out) {
  if (length == 0) return true;
  const char saved = begin[length];
  begin[length] = '\0';
  const std::size_t old = out.size();
  out.resize(old + 3 * length + 1);
  const int written = KILNUTIL_UNICODE_MBCS_to_UTF8(begin, -1, out.data() + old, static_cast<int>(3 * length + 1),
                                                    static_cast<int>(code_page));
  begin[length] = saved;
  out.resize(old + static_cast<std::size_t>(written > 0 ? written : 0));
  return written > 0;
}

// What a code page's converter writes for bytes the page does not define:
// U+FFFD from the POSIX build's converters; the page's own default character
// from Windows' (U+30FB KATAKANA MIDDLE DOT in 932, "?" in the other
// double-byte pages).
constexpr std::string_view kKatakanaMiddleDot = "\xE3\x83\xBB";

std::size_t count_of(std::string_view text, char c) {
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), c));
}

// Whether `converted`, the conversion of the non-ASCII `bytes`, is a
// converter's stand-in rather than the character the bytes encode.
bool is_substitute(std::string_view converted, std::string_view bytes, unsigned code_page) {
  if (converted.find(kReplacementCharacter) != std::string_view::npos || converted == "?") return true;
  if (converted != kKatakanaMiddleDot) return false;
  char own[8] = {};
  const int length = KILNUTIL_UNICODE_UTF8_to_MBCS(kKatakanaMiddleDot.data(), static_cast<int>(kKatakanaMiddleDot.size()),
                                                   own, static_cast<int>(sizeof own), static_cast<int>(code_page));
  return bytes != std::string_view(own, static_cast<std::size_t>(length > 0 ? length : 0));
}

// Whether the conversion of `bytes` may hold a stand-in for an undefined
// character (then the bytes are checked one character at a time).
bool may_hold_substitutes(std::string_view converted, std::string_view bytes) {
  return converted.find(kReplacementCharacter) != std::string_view::npos ||
         converted.find(kKatakanaMiddleDot) != std::string_view::npos || count_of(converted, '?') > count_of(bytes, '?');
}

// The offset of the first byte (or two-byte character) that the code page
// does not define.
std::size_t first_undefined_byte(std::string_view text, unsigned code_page) {
  std::string piece, converted;
  for (std::size_t at = 0; at < text.size();) {
    if (static_cast<unsigned char>(text[at]) < 0x80) {
      ++at;
      continue;
    }
    const std::size_t length = is_double_byte_code_page(code_page) && at + 1 < text.size() ? 2 : 1;
    for (std::size_t take = length; take >= 1; --take) {
      piece.assign(text.substr(at, take));
      converted.clear();
      if (code_page_to_utf8(piece.data(), piece.size(), code_page, converted) &&
          !is_substitute(converted, piece, code_page)) {
        at += take;
        break;
      }
      if (take == 1) return at;
    }
  }
  return text.size();
}

// Well-formed multibyte sequences and ill-formed bytes of UTF-8 text.
struct Utf8Tally {
  std::size_t multibyte = 0;
  std::size_t invalid = 0;
  // More well-formed multibyte sequences than ill-formed bytes: code-page
  // text rarely forms them, so this is damaged UTF-8.
  bool mostly_utf8() const { return multibyte > invalid; }
};

// Counts the sequences of text up to a sequence cut off by its end, and
// returns where that one starts (text.size() when none is).
std::size_t tally_utf8(std::string_view text, Utf8Tally& tally) {
  for (std::size_t at = 0; at < text.size();) {
    at += ascii_prefix(text.substr(at));
    if (at == text.size()) break;
    const Sequence sequence = sequence_at(text, at);
    if (sequence.status == SequenceStatus::kTruncated) return at;
    (sequence.status == SequenceStatus::kValid ? tally.multibyte : tally.invalid) += 1;
    at += sequence.length;
  }
  return text.size();
}

bool mostly_utf8(std::string_view text) {
  Utf8Tally tally;
  tally_utf8(text, tally);
  return tally.mostly_utf8();
}

}  // namespace

bool TextDecoder::fill(bool more) {
  if (at_end_ || (!more && pending_.size() >= kPiece)) return true;
  const std::size_t old = pending_.size();
  pending_.resize(old + kPiece);
  const std::size_t got = input_.read_full(pending_.data() + old, kPiece);
  pending_.resize(old + got);
  if (input_.failed()) {
    error_ = input_.error();
    return false;
  }
  at_end_ = got < kPiece;
  return true;
}

bool TextDecoder::start() {
  if (!fill(false)) return false;
  const std::string path = input_.name() == "-" ? "" : input_.name();
  const unsigned examined = KILNUTIL_DetectEncoding_GetBufSizeFromFilePath(path.c_str());
  const std::size_t count = examined == 0 ? pending_.size() : std::min<std::size_t>(pending_.size(), examined);
  detected_code_ = pending_.empty()
                       ? KILNUTIL_ENCODING_NONE
                       : KILNUTIL_DetectEncodingBuffer(reinterpret_cast<const unsigned char*>(pending_.data()),
                                                       static_cast<unsigned>(count), 0);
  choose_mode();
  consume(mark_size_);
  return options_.force || !refuse_binary_head();
}

void TextDecoder::choose_mode() {
  static constexpr Mode kModes[] = {Mode::kCodePage, Mode::kUtf8,    Mode::kUtf16Le,
                                    Mode::kUtf16Be,  Mode::kUtf32Le, Mode::kUtf32Be};
  if (options_.forced) {
    mode_ = kModes[static_cast<int>(options_.forced->form)];
    code_page_ = options_.forced->code_page;
    const std::string_view mark = mark_of(options_.forced->form);
    if (!mark.empty() && starts_with(pending_, mark)) mark_size_ = mark.size();
    return;
  }
  if (starts_with(pending_, std::string_view("\xFF\xFE\0\0", 4))) {
    mode_ = Mode::kUtf32Le;  // the library's mark test answers UTF-16LE for this mark
    mark_size_ = 4;
    return;
  }
  if (detected_code_ == KILNUTIL_ENCODING_NONE) return;
  if (detected_code_ & KILNUTIL_ENCODING_ASCII) {
    mode_ = Mode::kAsciiSoFar;
    return;
  }
  const unsigned family = detected_code_ & 0xFFu;
  mode_ = family < 6 ? kModes[family] : Mode::kCodePage;
  mark_size_ = static_cast<std::size_t>(KILNUTIL_GetBOMSize(detected_code_));
  if (mode_ == Mode::kCodePage && mostly_utf8(pending_)) {
    mode_ = Mode::kUtf8;  // damaged UTF-8: its invalid bytes are reported, not misread
    note_ = "mostly valid UTF-8";
  } else if (mode_ == Mode::kCodePage) {
    code_page_ = locale_code_page();
    if (code_page_ == 65001) {
      code_page_ = 1252;
      note_ = "not UTF-8, which the locale's code page is: read as Windows-1252";
    }
  }
}

bool TextDecoder::refuse_binary_head() {
  if (mode_ != Mode::kAsciiSoFar && mode_ != Mode::kUtf8 && mode_ != Mode::kCodePage) return false;
  const std::string_view head = std::string_view(pending_).substr(0, kBinaryCheckBytes);
  if (const std::size_t nul = head.find('\0'); nul != std::string_view::npos) return !fail_binary(nul);
  const std::size_t controls = static_cast<std::size_t>(std::count_if(head.begin(), head.end(), [](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte < 0x20 && !is_text_control(byte);
  }));
  if (head.empty() || controls * 100 <= head.size() * kMaxControlPercent) return false;
  error_ = "looks binary (" + std::to_string(controls * 100 / head.size()) + "% control bytes in the first " +
           std::to_string(head.size()) + " bytes); --force reads it as text";
  return true;
}

bool TextDecoder::fail_invalid(std::size_t at, std::string_view what) {
  error_ = "illegal input sequence at position " + std::to_string(pending_offset_ + at) + " (" + std::string(what) +
           "); --replace writes U+FFFD instead";
  return false;
}

bool TextDecoder::fail_binary(std::size_t at) {
  error_ = "looks binary (NUL byte at offset " + std::to_string(pending_offset_ + at) + "); --force reads it as text";
  return false;
}

void TextDecoder::consume(std::size_t bytes) {
  pending_.erase(0, bytes);
  pending_offset_ += bytes;
}

bool TextDecoder::take_valid_text(std::string_view text, std::string& out) {
  if (!options_.force) {
    if (const std::size_t nul = text.find('\0'); nul != std::string_view::npos) {
      out.append(text.substr(0, nul));
      return fail_binary(static_cast<std::size_t>(text.data() - pending_.data()) + nul);
    }
  }
  out.append(text);
  return true;
}

TextDecoder::Utf8Verdict TextDecoder::check_rest_as_utf8() {
  const std::uint64_t resume = input_.offset();
  std::FILE* spool = nullptr;
  if (!at_end_ && !input_.seekable() && (spool = std::tmpfile()) == nullptr) {
    error_ = "cannot make a temporary copy of the input to check its encoding";
    return Utf8Verdict::kFailed;
  }
  Utf8Tally tally;
  std::string window = pending_;
  std::string chunk(kPiece, '\0');
  for (bool more = !at_end_;;) {
    const std::size_t cut = tally_utf8(window, tally);
    if (!more) {
      tally.invalid += cut < window.size() ? 1 : 0;  // cut off by the end of the input
      break;
    }
    window.erase(0, cut);
    const std::size_t got = input_.read(chunk.data(), chunk.size());
    if (input_.failed()) error_ = input_.error();
    if (spool != nullptr && error_.empty() && std::fwrite(chunk.data(), 1, got, spool) != got) {
      error_ = "cannot write the temporary copy of the input";
    }
    if (!error_.empty()) {
      if (spool != nullptr) std::fclose(spool);
      return Utf8Verdict::kFailed;
    }
    more = got > 0;
    window.append(chunk, 0, got);
  }
  if (spool != nullptr) {
    std::rewind(spool);
    input_.adopt(spool, resume);
  } else if (!at_end_ && !input_.seek_back(resume)) {
    error_ = "cannot return to the checked part of the input";
    return Utf8Verdict::kFailed;
  }
  if (tally.invalid == 0) return Utf8Verdict::kValid;
  return tally.mostly_utf8() ? Utf8Verdict::kDamaged : Utf8Verdict::kNotUtf8;
}

bool TextDecoder::decode_ascii_so_far(std::string& out) {
  const std::size_t ascii = ascii_prefix(pending_);
  if (!take_valid_text(std::string_view(pending_).substr(0, ascii), out)) return false;
  consume(ascii);
  if (pending_.empty()) return true;
  const std::uint64_t first = pending_offset_;
  const Utf8Verdict verdict = check_rest_as_utf8();
  if (verdict == Utf8Verdict::kFailed) return false;
  const std::string where = "first non-ASCII byte at offset " + std::to_string(first);
  if (verdict != Utf8Verdict::kNotUtf8) {
    mode_ = Mode::kUtf8;
    note_ = "ASCII in the bytes the detection examined; " + where +
            (verdict == Utf8Verdict::kValid ? ", valid UTF-8 to the end" : ", mostly valid UTF-8");
  } else {
    mode_ = Mode::kCodePage;
    code_page_ = locale_code_page() == 65001 ? 1252 : locale_code_page();
    note_ = "ASCII in the bytes the detection examined; " + where + ", not valid UTF-8";
  }
  return true;
}

bool TextDecoder::decode_utf8(std::string& out) {
  const std::string_view text = pending_;
  const std::size_t end = at_end_ ? text.size() : complete_utf8_end(text);
  if (options_.replace) {
    std::string replaced;
    append_replacing_invalid(text.substr(0, end), replaced);
    if (!take_valid_text(replaced, out)) return false;
    consume(end);
    return true;
  }
  const std::size_t valid = valid_utf8_prefix(text.substr(0, end));
  if (!take_valid_text(text.substr(0, valid), out)) return false;
  if (valid < end) {
    std::string bytes = hex_byte(static_cast<unsigned char>(text[valid]));
    return fail_invalid(valid, "invalid UTF-8 byte " + bytes);
  }
  consume(end);
  return true;
}

bool TextDecoder::decode_code_page(std::string& out) {
  std::size_t end = pending_.size();
  if (!at_end_ && is_double_byte_code_page(code_page_)) {
    const std::size_t feed = pending_.rfind('\n');
    end = feed == std::string::npos ? 0 : feed + 1;  // a line feed is never a trail byte
  }
  const std::size_t old = out.size();
  for (std::size_t at = 0; at < end;) {
    const void* nul = std::memchr(pending_.data() + at, 0, end - at);
    const std::size_t stop = nul ? static_cast<std::size_t>(static_cast<const char*>(nul) - pending_.data()) : end;
    if (!code_page_to_utf8(pending_.data() + at, stop - at, code_page_, out)) {
      error_ = "cannot convert from " + encoding_label({TextForm::kCodePage, code_page_});
      return false;
    }
    if (stop < end && !options_.force) return fail_binary(stop);
    if (stop < end) out += '\0';
    at = stop + 1;
  }
  if (!options_.replace && may_hold_substitutes(std::string_view(out).substr(old), std::string_view(pending_).substr(0, end))) {
    const std::size_t bad = first_undefined_byte(std::string_view(pending_).substr(0, end), code_page_);
    if (bad < end) {
      out.resize(old);
      if (std::memchr(pending_.data(), 0, bad) == nullptr) code_page_to_utf8(pending_.data(), bad, code_page_, out);
      return fail_invalid(bad, "byte " + hex_byte(static_cast<unsigned char>(pending_[bad])) + " is not " +
                                   encoding_label({TextForm::kCodePage, code_page_}) + " text");
    }
  }
  consume(end);
  return true;
}

bool TextDecoder::decode_wide(std::string& out) {
  const bool utf16 = mode_ == Mode::kUtf16Le || mode_ == Mode::kUtf16Be;
  const bool big_endian = mode_ == Mode::kUtf16Be || mode_ == Mode::kUtf32Be;
  const std::size_t unit = utf16 ? 2 : 4;
  const auto unit_at = [&](std::size_t at) {
    char32_t value = 0;
    for (std::size_t i = 0; i < unit; ++i) {
      const auto byte = static_cast<unsigned char>(pending_[at + (big_endian ? i : unit - 1 - i)]);
      value = (value << 8) | byte;
    }
    return value;
  };
  const std::size_t size = pending_.size();
  std::size_t at = 0;
  while (at + unit <= size) {
    char32_t c = unit_at(at);
    std::size_t used = unit;
    bool valid = c < 0xD800 || (c > 0xDFFF && c < 0x110000);
    if (utf16 && c >= 0xD800 && c <= 0xDBFF) {
      if (at + 4 > size && !at_end_) break;
      const char32_t low = at + 4 <= size ? unit_at(at + 2) : 0;
      valid = low >= 0xDC00 && low <= 0xDFFF;
      if (valid) c = 0x10000 + ((c - 0xD800) << 10) + (low - 0xDC00), used = 4;
    }
    if (!valid && !options_.replace) {
      consume(at);
      char unit_text[16];
      std::snprintf(unit_text, sizeof unit_text, "0x%04lX", static_cast<unsigned long>(c));
      return fail_invalid(0, "code unit " + std::string(unit_text) + " is not a character");
    }
    if (c == 0 && !options_.force) {
      consume(at);
      return fail_binary(0);
    }
    if (valid) append_code_point(c, out);
    else out.append(kReplacementCharacter);
    at += used;
  }
  if (at_end_ && at < size) {
    if (!options_.replace) {
      consume(at);
      return fail_invalid(0, "the text ends inside a code unit");
    }
    out.append(kReplacementCharacter);
    at = size;
  }
  consume(at);
  return true;
}

bool TextDecoder::next(std::string& out) {
  if (!error_.empty()) return false;
  const std::size_t before = out.size();
  while (true) {
    if (!fill(false)) return false;
    if (pending_.empty() && at_end_) return out.size() > before;
    const std::size_t pending_before = pending_.size();
    const Mode mode_before = mode_;
    bool ok = false;
    switch (mode_) {
      case Mode::kAsciiSoFar: ok = decode_ascii_so_far(out); break;
      case Mode::kUtf8: ok = decode_utf8(out); break;
      case Mode::kCodePage: ok = decode_code_page(out); break;
      default: ok = decode_wide(out); break;
    }
    if (!ok) return false;
    if (out.size() > before) return true;
    // Nothing decodable yet (a long line of two-byte text): read more.
    if (pending_.size() == pending_before && mode_ == mode_before && !fill(true)) return false;
  }
}

std::string TextDecoder::description() const {
  std::string text;
  switch (mode_) {
    case Mode::kAsciiSoFar: text = detected_code_ == KILNUTIL_ENCODING_NONE ? "empty" : "ASCII"; break;
    case Mode::kUtf8: text = detected_code_ == KILNUTIL_ENCODING_NONE ? "empty" : "UTF-8"; break;
    case Mode::kCodePage: text = encoding_label({TextForm::kCodePage, code_page_}); break;
    case Mode::kUtf16Le: text = "UTF-16LE"; break;
    case Mode::kUtf16Be: text = "UTF-16BE"; break;
    case Mode::kUtf32Le: text = "UTF-32LE"; break;
    case Mode::kUtf32Be: text = "UTF-32BE"; break;
  }
  if (mark_size_ > 0) text += " with mark";
  if (options_.forced) text += " (as asked)";
  if (!note_.empty()) text += " (" + note_ + ")";
  return text;
}

}  // namespace kilnutil_cli
