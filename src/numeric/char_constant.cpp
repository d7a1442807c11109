// Quoted character constants ('a', '\n', '\x41') and the special integer
// forms that script code accepts where a number is expected.
#include "numeric/char_constant.h"

#include "numeric/escapes.h"
#include "numeric/radix.h"

#include <cstring>

namespace kiln::numeric {

namespace {

constexpr int kUnterminated = -1;
constexpr int kMultiCharacter = -2;

// The value of the constant between the quotes of [begin, end).
int quoted_character_value(const char* begin, const char* end) {
  char first[2] = {0, 0};
  int produced = 0;
  expand_escapes(begin, end, [&](char c) {
    if (produced < 2) first[produced] = c;
    ++produced;
  });
  if (produced <= 1) return static_cast<signed char>(first[0]);
  // A "\0" left in place by the expander is the NUL character.
  if (produced == 2 && first[0] == '\\' && first[1] == '0') return 0;
  return kMultiCharacter;
}

bool is_hex_prefixed(const char* text) {
  return text[0] == '0' && (text[1] == 'x' || text[1] == 'X') && text[2] != '\0' && is_hex_text(text + 2);
}

}  // namespace

int expand_escapes_in_place(char* text) {
  if (text == nullptr) return 0;
  char* out = text;
  const int expanded = expand_escapes(text, text + std::strlen(text), [&](char c) { *out++ = c; });
  *out = '\0';
  return expanded;
}

bool read_character_constant(const char* text, int* value) {
  if (text == nullptr || text[0] != '\'') return false;
  const std::size_t length = std::strlen(text);
  const int result =
      length >= 3 && text[length - 1] == '\'' ? quoted_character_value(text + 1, text + length - 1) : kUnterminated;
  if (value) *value = result;
  return true;
}

bool read_special_integer(const char* text, int* value, int* error) {
  if (text == nullptr) return false;
  if (is_hex_prefixed(text)) {
    if (value) *value = static_cast<int>(hex_text_value(text + 2));
    return true;
  }
  int character = 0;
  if (!read_character_constant(text, &character)) return false;
  if (value) *value = character;
  if ((character < -128 || character > 127 || character == kUnterminated) && error) *error = -1;
  return true;
}

}  // namespace kiln::numeric
