// Decimal integers in text: the whole-text test and its form with trailing
// arguments, and two small digit tests.
#include "numeric/integer_text.h"

#include "numeric/integer_rule.h"
#include "text/strchr.h"

#include <cstring>

namespace kiln::numeric {

namespace {

// Plain search for a character, no quotes or brackets considered.
constexpr int kPlainSearch = 1;

char* trim_in_place(char* text) {
  const TextRange trimmed = trim({text, text + std::strlen(text)});
  *const_cast<char*>(trimmed.end) = '\0';
  return const_cast<char*>(trimmed.begin);
}

}  // namespace

bool read_whole_integer(const char* text, unsigned* value) {
  std::uint32_t converted = 0;
  if (!follows_integer_rule(text, &converted)) return false;
  if (value) *value = converted;
  return true;
}

char* read_integer_before_arguments(char* text, unsigned* value, char separator) {
  if (text == nullptr) return nullptr;
  char* found = kiln::text::search_char(text, static_cast<unsigned char>(separator), kPlainSearch);
  if (found == nullptr) return read_whole_integer(text, value) ? text + std::strlen(text) : nullptr;
  *found = '\0';
  if (!read_whole_integer(trim_in_place(text), value)) return nullptr;
  return trim_in_place(found + 1);
}

bool is_digits_only(const char* text) {
  if (text == nullptr || *text == '\0') return false;
  for (; *text != '\0'; ++text) {
    if (!is_ascii_digit(*text)) return false;
  }
  return true;
}

bool has_leading_zero(const char* text) { return text != nullptr && text[0] == '0' && is_ascii_digit(text[1]); }

}  // namespace kiln::numeric
