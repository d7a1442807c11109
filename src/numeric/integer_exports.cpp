// Decimal integers in text: the trimmed integer parser, the whole-text test
// and its form with trailing arguments, and two small digit tests.
#include "numeric/integer_rule.h"
#include "text/strchr.h"

#include <kilnutil/numeric.h>
#include <kilnutil/text.h>

#include <cstring>

using namespace kiln::numeric;

namespace {

// Plain search for a character, no quotes or brackets considered.
constexpr int kPlainSearch = 1;

char* trim_in_place(char* text) {
  const TextRange trimmed = trim({text, text + std::strlen(text)});
  *const_cast<char*>(trimmed.end) = '\0';
  return const_cast<char*>(trimmed.begin);
}

}  // namespace

int KILNUTIL_cvtstr2int(const char* text, int* value) { return convert_integer_text(text, value) ? 1 : 0; }

int KILNUTIL_str2int(const char* text) {
  int value = 0;
  return convert_integer_text(text, &value) ? value : 0;
}

int is_str_numeric_integer(const char* text, unsigned int* value) {
  std::uint32_t converted = 0;
  if (!follows_integer_rule(text, &converted)) return 0;
  if (value) *value = converted;
  return 1;
}

char* is_str_numeric_integer_with_args(char* text, unsigned int* value, char separator) {
  if (text == nullptr) return nullptr;
  char* found = kiln::text::search_char(text, static_cast<unsigned char>(separator), kPlainSearch);
  if (found == nullptr) return is_str_numeric_integer(text, value) ? text + std::strlen(text) : nullptr;
  *found = '\0';
  if (!is_str_numeric_integer(trim_in_place(text), value)) return nullptr;
  return trim_in_place(found + 1);
}

bool is_str_digits_only(const char* text) {
  if (text == nullptr || *text == '\0') return false;
  for (; *text != '\0'; ++text) {
    if (!is_ascii_digit(*text)) return false;
  }
  return true;
}

int KILNUTIL_is_str_lead_zero_numbers(const char* text) {
  return text != nullptr && text[0] == '0' && is_ascii_digit(text[1]) ? 1 : 0;
}
