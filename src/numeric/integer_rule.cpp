#include "numeric/integer_rule.h"

#include "numeric/runtime_integer.h"

#include <cstring>

namespace kiln::numeric {
namespace {

bool all_ascii_digits(const char* p) {
  for (; *p != '\0'; ++p) {
    if (!is_ascii_digit(*p)) return false;
  }
  return true;
}

bool all_zeros(const char* p) {
  for (; *p != '\0'; ++p) {
    if (*p != '0') return false;
  }
  return true;
}

}  // namespace

bool follows_integer_rule(const char* text, std::uint32_t* value) {
  if (text == nullptr || *text == '\0') return false;
  if (*text == '+') ++text;
  if (all_zeros(text)) {
    *value = 0;
    return true;
  }
  if (!all_ascii_digits(*text == '-' ? text + 1 : text)) return false;
  const std::uint32_t converted = runtime_strtoul(text, 10);
  if (converted == 0) return false;
  *value = converted;
  return true;
}

bool convert_trimmed_integer(TextRange range, bool cut_at_blank, std::uint32_t* value, std::size_t* digits) {
  if (range.size() > kShortIntegerLimit) return false;
  char copy[kShortIntegerLimit + 1];
  std::memcpy(copy, range.begin, range.size());
  copy[range.size()] = '\0';
  TextRange trimmed = trim({copy, copy + range.size()});
  if (cut_at_blank) trimmed.end = find_blank(trimmed);
  if (digits) *digits = trimmed.size();
  if (trimmed.empty()) {
    *value = 0;
    return true;
  }
  *const_cast<char*>(trimmed.end) = '\0';
  return follows_integer_rule(trimmed.begin, value);
}

bool convert_integer_text(const char* text, int* value) {
  if (text == nullptr) return false;
  const std::size_t length = strnlen(text, kShortIntegerLimit + 1);
  std::uint32_t converted = 0;
  if (!convert_trimmed_integer({text, text + length}, false, &converted)) return false;
  if (value) *value = static_cast<int>(converted);
  return true;
}

}  // namespace kiln::numeric
