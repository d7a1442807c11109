// Parts of a partial-import request: matching and selection clauses.
#include "import/partial_part.h"

#include "numeric/integer_rule.h"

#include <kilnutil/numeric.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>

namespace kiln::import {

namespace {

bool is_ascii_letter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

// A skip text: "3" is 3 without unit, "12d" is 12 days, "y" alone is 1 year.
struct NumberWithUnit {
  int number;
  char unit;
};

NumberWithUnit read_number_with_unit(std::string_view text) {
  if (text.size() >= 2 && is_ascii_letter(text.back())) {
    return {request_int(text.substr(0, text.size() - 1)), text.back()};
  }
  if (text.size() == 1 && is_ascii_letter(text[0])) return {1, text[0]};
  return {request_int(text), 0};
}

void copy_truncated(char* dest, std::size_t capacity, std::string_view text) {
  const std::size_t n = std::min(text.size(), capacity - 1);
  std::memcpy(dest, text.data(), n);
  dest[n] = '\0';
}

}  // namespace

ImportFilesPartialPart new_part() {
  ImportFilesPartialPart part{};
  part.count = 1;
  return part;
}

bool part_contains(const ImportFilesPartialPart& part, int i) {
  if (part.count < 1 || i < part.begin) return false;
  if (part.begin <= part.end && i > part.end) return false;
  if (part.skip < 1) return true;
  const std::int64_t period = std::int64_t{part.skip} + part.count;
  return (std::int64_t{i} - part.begin) % period < part.count;
}

int request_int(std::string_view text) {
  const std::string copy(text);
  int value = 0;
  return numeric::convert_integer_text(copy.c_str(), &value) ? value : 0;
}

bool request_is_int(std::string_view text) {
  const std::string copy(text);
  return numeric::convert_integer_text(copy.c_str(), nullptr);
}

bool apply_selection_clause(std::string_view skip, ImportFilesPartialPart& part, std::string_view selection) {
  if (skip.empty() && selection.empty()) return false;
  if (!selection.empty() && is_ascii_letter(selection[0])) {
    copy_truncated(part.name, sizeof part.name, selection);
    if (part.count == 0) part.count = 1;
    const NumberWithUnit special = read_number_with_unit(skip);
    part.special_count = special.number;
    part.special_unit = special.unit;
    return true;
  }
  part.count = selection.empty() ? 1 : request_int(selection);
  const NumberWithUnit skipped = read_number_with_unit(skip);
  part.skip = skipped.number;
  part.skip_unit = skipped.unit;
  return true;
}

char special_skip_of(const ImportFilesPartialPart& part, int total, const SpecialSkipOut& out) {
  if (out.begin != nullptr) *out.begin = part.begin;
  if (out.end != nullptr) *out.end = part.end < 0 ? static_cast<int>(static_cast<std::uint32_t>(total) - 1u) : part.end;
  if (out.count != nullptr) *out.count = part.count;
  if (out.skip_at_least_one != nullptr) *out.skip_at_least_one = part.skip < 1 ? 1 : part.skip;
  if (out.skip != nullptr) *out.skip = part.skip;
  if (out.name != nullptr)
    copy_truncated(out.name, sizeof part.name, std::string_view(part.name, strnlen(part.name, sizeof part.name)));
  if (out.special_count != nullptr) *out.special_count = part.special_count;
  if (out.special_unit != nullptr) *out.special_unit = part.special_unit;
  return part.skip_unit;
}

void clear_special_skip_name(const SpecialSkipOut& out) {
  if (out.name != nullptr) out.name[0] = '\0';
}

}  // namespace kiln::import
