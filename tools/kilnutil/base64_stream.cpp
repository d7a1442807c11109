// Base64 pieces around the library's encoder and decoder: the library does
// the bulk of whole groups, this file the wrapping, padding and checking.
#include "base64_stream.h"

#include <kilnutil/unicode.h>

#include <array>
#include <cstdio>

namespace kilnutil_cli {

namespace {

constexpr char kAlphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

// 0-63 for alphabet characters, 64 for "=", 65 for a line feed, 66 otherwise.
constexpr std::array<unsigned char, 256> make_classes() {
  std::array<unsigned char, 256> classes{};
  for (auto& c : classes) c = 66;
  for (unsigned char i = 0; i < 64; ++i) classes[static_cast<unsigned char>(kAlphabet[i])] = i;
  classes['='] = 64;
  classes['\n'] = 65;
  return classes;
}
constexpr std::array<unsigned char, 256> kClasses = make_classes();

unsigned char class_of(char c) { return kClasses[static_cast<unsigned char>(c)]; }

}  // namespace

void Base64Encoder::append_wrapped(std::string_view text, std::string& out) {
  if (text.empty()) return;
  wrote_ = true;
  if (wrap_ == 0) {
    out.append(text);
    return;
  }
  out.reserve(out.size() + text.size() + text.size() / wrap_ + 2);
  while (!text.empty()) {
    const std::size_t take = std::min(text.size(), wrap_ - column_);
    out.append(text.substr(0, take));
    text.remove_prefix(take);
    column_ += take;
    if (column_ == wrap_) {
      out += '\n';
      column_ = 0;
    }
  }
}

void Base64Encoder::add(std::string_view bytes, std::string& out) {
  if (!carry_.empty()) {
    while (carry_.size() < 3 && !bytes.empty()) {
      carry_ += bytes.front();
      bytes.remove_prefix(1);
    }
    if (carry_.size() < 3) return;
    char group[4];
    KILNUTIL_encode_base64(reinterpret_cast<const unsigned char*>(carry_.data()), 3, group);
    append_wrapped(std::string_view(group, 4), out);
    carry_.clear();
  }
  const std::size_t whole = bytes.size() / 3 * 3;
  if (whole > 0) {
    encoded_.resize(whole / 3 * 4);
    KILNUTIL_encode_base64(reinterpret_cast<const unsigned char*>(bytes.data()), static_cast<int>(whole),
                           encoded_.data());
    append_wrapped(encoded_, out);
  }
  carry_.assign(bytes.substr(whole));
}

void Base64Encoder::finish(std::string& out) {
  if (!carry_.empty()) {
    char group[4];
    KILNUTIL_encode_base64(reinterpret_cast<const unsigned char*>(carry_.data()), static_cast<int>(carry_.size()),
                           group);
    append_wrapped(std::string_view(group, 4), out);
    carry_.clear();
  }
  if (wrap_ > 0 && wrote_ && column_ > 0) out += '\n';
  column_ = 0;
}

void Base64Decoder::decode_clean(std::string& out) {
  // Whole groups of alphabet characters go to the library in one call.
  std::size_t at = 0;
  while (at + 4 <= clean_.size()) {
    std::size_t end = at;
    while (end + 4 <= clean_.size() && class_of(clean_[end + 2]) < 64 && class_of(clean_[end + 3]) < 64 &&
           class_of(clean_[end]) < 64 && class_of(clean_[end + 1]) < 64) {
      end += 4;
    }
    if (end > at) {
      const std::size_t old = out.size();
      out.resize(old + (end - at) / 4 * 3);
      KILNUTIL_decode_base64(clean_.data() + at, static_cast<int>(end - at),
                             reinterpret_cast<unsigned char*>(out.data() + old));
      at = end;
    }
    if (at + 4 > clean_.size()) break;
    clean_.erase(0, at);
    at = 0;
    if (!take_group(out)) return;
  }
  clean_.erase(0, at);
}

// One group with padding (or wrong padding) at the front of clean_.
bool Base64Decoder::take_group(std::string& out) {
  const unsigned char c[4] = {class_of(clean_[0]), class_of(clean_[1]), class_of(clean_[2]), class_of(clean_[3])};
  const bool valid = c[0] < 64 && c[1] < 64 && ((c[2] < 64 && c[3] == 64) || (c[2] == 64 && c[3] == 64));
  if (!valid) {
    const std::size_t usable = c[0] < 64 && c[1] < 64 ? (c[2] < 64 ? 3 : 2) : 0;
    if (usable >= 2) out += static_cast<char>((c[0] << 2) | (c[1] >> 4));
    if (usable == 3) out += static_cast<char>(((c[1] & 15) << 4) | (c[2] >> 2));
    error_ = "invalid input: misplaced padding \"=\" in the group ending at character " +
             std::to_string(offset_ - clean_.size() + 4);
    return false;
  }
  out += static_cast<char>((c[0] << 2) | (c[1] >> 4));
  if (c[2] < 64) out += static_cast<char>(((c[1] & 15) << 4) | (c[2] >> 2));
  clean_.erase(0, 4);
  return true;
}

bool Base64Decoder::add(std::string_view text, std::string& out) {
  if (!error_.empty()) return false;
  clean_.reserve(clean_.size() + text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const unsigned char kind = class_of(text[i]);
    if (kind <= 64) {
      clean_ += text[i];
    } else if (kind == 66 && !ignore_garbage_) {
      offset_ += i;
      decode_clean(out);
      if (!error_.empty()) return false;
      take_partial_group(out);
      char byte[8];
      std::snprintf(byte, sizeof byte, "0x%02X", static_cast<unsigned char>(text[i]));
      error_ = "invalid input: character " + std::string(byte) + " at offset " + std::to_string(offset_) +
               " is not Base64 (-i skips such characters)";
      return false;
    }
  }
  offset_ += text.size();
  decode_clean(out);
  return error_.empty();
}

bool Base64Decoder::finish(std::string& out) {
  if (!error_.empty()) return false;
  if (clean_.empty()) return true;
  take_partial_group(out);
  error_ = "invalid input: the text ends inside a group of four characters";
  return false;
}

void Base64Decoder::take_partial_group(std::string& out) {
  if (clean_.empty()) return;
  clean_.append(4 - clean_.size(), '\x01');  // not the alphabet: only the whole bytes are kept
  take_group(out);
  clean_.clear();
}

}  // namespace kilnutil_cli
