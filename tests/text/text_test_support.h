// Test helpers: settings changed for one test and restored afterwards, and
// mutable copies of literal texts.
#pragma once

#include <kilnutil/frame.h>
#include <kilnutil/text.h>

#include <string>
#include <vector>

namespace text_test {

class StringProcessCodePage {
 public:
  explicit StringProcessCodePage(unsigned cp) : previous_(set_code_page_for_string_process(cp)) {}
  ~StringProcessCodePage() { set_code_page_for_string_process(previous_); }

 private:
  unsigned previous_;
};

class NoBreakSpace {
 public:
  explicit NoBreakSpace(bool on) : previous_(KILNUTIL_test_char_NBSP(0, 0)) { KILNUTIL_test_char_NBSP(1, on); }
  ~NoBreakSpace() { KILNUTIL_test_char_NBSP(1, previous_); }

 private:
  unsigned char previous_;
};

class AngleBrackets {
 public:
  explicit AngleBrackets(bool on) : previous_(set_parenth_use_angle_brackets(on)) {}
  ~AngleBrackets() { set_parenth_use_angle_brackets(previous_); }

 private:
  unsigned previous_;
};

// The control mask has no getter; tests leave it at its default, 0.
class ControlMask {
 public:
  explicit ControlMask(unsigned char mask) { KILNUTIL_test_char_cntrl(mask); }
  ~ControlMask() { KILNUTIL_test_char_cntrl(0); }
};

// Backslash escapes off for the lifetime of the object (the -1/-2 control calls).
class EscapesOff {
 public:
  EscapesOff() { KILNUTIL_exposed_char_pos_ex_loc_ex(nullptr, -1, 0, &saved_, 0, nullptr); }
  ~EscapesOff() { KILNUTIL_exposed_char_pos_ex_loc_ex(nullptr, -2, 0, &saved_, 0, nullptr); }

 private:
  int saved_ = 0;
};

// A writable, NUL-terminated copy of a text.
class Text {
 public:
  explicit Text(const std::string& s) : bytes_(s.begin(), s.end()) { bytes_.push_back('\0'); }
  char* get() { return bytes_.data(); }
  char* at(std::size_t i) { return bytes_.data() + i; }
  std::size_t size() const { return bytes_.size() - 1; }

 private:
  std::vector<char> bytes_;
};

// Offset of a returned position in text, or -1 for null.
inline long offset(const char* text, const char* p) { return p == nullptr ? -1 : static_cast<long>(p - text); }

}  // namespace text_test
