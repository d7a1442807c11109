// Any bytes through the exposed search (random target, flags, loc, end and
// escape switch), KILNUTIL_strchr, the bracket searches and the mismatch
// counters: no read past the text's NUL, and every position returned is
// null or inside the text.
#include "fuzz_support.h"
#include "text/reference_exposed_search.h"

#include <kilnutil/frame.h>
#include <kilnutil/text.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace {

using fuzz_support::check;

struct Inside {
  const char* begin;
  std::size_t length;
  // A position in the text, its NUL excluded.
  void operator()(const char* p) const { check(p == nullptr || (p >= begin && p < begin + length)); }
};

// The first input bytes choose the parameters; the rest is the text.
struct Parameters {
  int target;
  unsigned flags;
  int loc;
  unsigned end_offset;
  unsigned settings;
};

Parameters take_parameters(const std::uint8_t*& data, std::size_t& size) {
  std::uint8_t b[8] = {};
  const std::size_t n = size < sizeof b ? size : sizeof b;
  std::memcpy(b, data, n);
  data += n;
  size -= n;
  const unsigned flags = static_cast<unsigned>(b[1]) << 24 | (b[2] & 0x01u) << 8 | (b[2] & 0xC0u);
  return {b[0] == 0xFF ? -1 : b[0], flags, b[3] & 1, static_cast<unsigned>(b[4]) | b[5] << 8u, b[6]};
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Parameters prm = take_parameters(data, size);
  // An exactly sized copy with its NUL, so any read past it is caught.
  std::unique_ptr<char[]> buffer(new char[size + 1]);
  std::memcpy(buffer.get(), data, size);
  buffer[size] = '\0';
  const char* text = buffer.get();
  const std::size_t length = std::strlen(text);
  const Inside inside{text, length};

  KILNUTIL_test_char_NBSP(1, prm.settings & 1);
  set_parenth_use_angle_brackets(prm.settings & 2);
  set_code_page_for_string_process(prm.settings & 4 ? 1252 : 65001);
  int saved_escapes = 0;
  if (prm.settings & 8)
    KILNUTIL_exposed_char_pos_ex_loc_ex(nullptr, KILNUTIL_EXPOSED_SAVE_AND_DISABLE_ESCAPES, 0, &saved_escapes, 0,
                                        nullptr);

  int status = 0;
  const char* end = text + (length == 0 ? 0 : prm.end_offset % (length + 1));
  inside(KILNUTIL_exposed_char_pos_ex_loc_ex(text, prm.target, prm.flags, &status, prm.loc, nullptr));
  check(status == 0 || status == -1);
  const char* limited = KILNUTIL_exposed_char_pos_ex_loc_ex(text, prm.target, prm.flags, &status, prm.loc, end);
  check(limited == nullptr || (limited >= text && limited < end));
  const char* last = KILNUTIL_exposed_char_pos_ex_loc_ex(nullptr, 0, 0, nullptr, 0, nullptr);
  check(last >= text && last <= text + length);
  inside(KILNUTIL_exposed_char_pos_from_end(text, prm.target, &status));
  inside(KILNUTIL_exposed_2_char_pos(text, prm.target, static_cast<int>(prm.flags >> 24)));
  const char word[] = {static_cast<char>(prm.target > 0 ? prm.target : 'a'), 'n', '\0'};
  inside(KILNUTIL_exposed_word_pos(text, word, prm.flags & 0x7000));
  inside(KILNUTIL_strchr(text, prm.target, prm.flags >> 24));
  inside(KILNUTIL_strchr_reverse(text, prm.target, length > 0 ? text + prm.end_offset % length : nullptr));
  inside(KILNUTIL_find_any_of_characters_in_str(text, word, prm.flags & 0x10000 ? 0x10000 : 0));

  int error = 0;
  inside(KILNUTIL_find_end_parenthesis(text, &error));
  check(error >= 0 && error <= 3);
  inside(KILNUTIL_find_end_curly_brace(text, &error));
  if (length > 0) {
    int colon = 0;
    const char* closer = text + prm.end_offset % length;
    inside(KILNUTIL_find_matching_opening_paranthesis_ex(text, closer, prm.flags, &colon));
  }

  char* position = nullptr;
  const int bracket_code = KILNUTIL_count_parenthesis_mismatch_ex(text, &position, prm.flags);
  check(bracket_code == 0 || bracket_code == 1 || bracket_code == 2 || bracket_code == 8);
  check(bracket_code == 0 ? position == nullptr : position != nullptr);
  inside(position);
  const int quote_code = KILNUTIL_count_quote_mismatch(text, &position);
  check(quote_code >= 0 && quote_code <= 8);
  inside(position);

  // The plain reference decides ASCII texts with numbers kept, loc 0,
  // escapes honoured and "<" ">" not brackets.
  if ((prm.settings & 10) == 0 && std::all_of(text, text + length, [](char c) { return c > 0; })) {
    int expected_status = 0;
    const char* expected = reference::exposed_search(text, prm.target, &expected_status);
    check(KILNUTIL_exposed_char_pos_ex_loc_ex(text, prm.target, KILNUTIL_EXPOSED_KEEP_NUMBERS, &status, 0, nullptr) ==
          expected);
    check(status == expected_status);
  }

  if (prm.settings & 8)
    KILNUTIL_exposed_char_pos_ex_loc_ex(nullptr, KILNUTIL_EXPOSED_RESTORE_ESCAPES, 0, &saved_escapes, 0, nullptr);
  return 0;
}
