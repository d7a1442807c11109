// Test helpers: settings changed for one scope and restored afterwards, and
// mutable copies of literal texts.
#pragma once

#include <kilnutil/frame.h>
#include <kilnutil/text.h>

#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace text_test {

// Runs undo at the end of the scope.
class Restore {
public:
  explicit Restore(std::function<void()> undo) : undo_(std::move(undo)) {}
  Restore(const Restore&) = delete;
  Restore& operator=(const Restore&) = delete;
  ~Restore() { undo_(); }

private:
  std::function<void()> undo_;
};

inline Restore string_process_code_page(unsigned cp) {
  return Restore([previous = set_code_page_for_string_process(cp)] { set_code_page_for_string_process(previous); });
}

inline Restore angle_brackets(bool on) {
  return Restore([previous = set_parenth_use_angle_brackets(on)] { set_parenth_use_angle_brackets(previous); });
}

inline Restore no_break_space(bool on) {
  const unsigned char previous = KILNUTIL_test_char_NBSP(0, 0);
  KILNUTIL_test_char_NBSP(1, on);
  return Restore([previous] { KILNUTIL_test_char_NBSP(1, previous); });
}

// The control mask has no getter; tests leave it at its default, 0.
inline Restore control_mask(unsigned char mask) {
  KILNUTIL_test_char_cntrl(mask);
  return Restore([] { KILNUTIL_test_char_cntrl(0); });
}

// Backslash escapes off (the -1/-2 control calls of the exposed search).
inline Restore escapes_off() {
  int saved = 0;
  KILNUTIL_exposed_char_pos_ex_loc_ex(nullptr, -1, 0, &saved, 0, nullptr);
  return Restore([saved]() mutable { KILNUTIL_exposed_char_pos_ex_loc_ex(nullptr, -2, 0, &saved, 0, nullptr); });
}

// A writable, NUL-terminated copy of a text.
class Text {
public:
  explicit Text(const std::string& s) : bytes_(s.begin(), s.end()) { bytes_.push_back('\0'); }
  char* get() { return bytes_.data(); }
  char* at(std::size_t i) { return bytes_.data() + i; }

private:
  std::vector<char> bytes_;
};

// Offset of a returned position in text, or -1 for null.
inline std::ptrdiff_t offset(const char* text, const char* p) { return p == nullptr ? -1 : p - text; }

}  // namespace text_test
