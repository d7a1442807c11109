// KILNUTIL_separate_one_statement: statements end at an exposed ";", at a
// label colon, or with a brace block (and the blocks joined to it by commas).
#include "text/terms.h"

#include "text/char_set.h"
#include "text/brackets.h"
#include "text/exposed_search.h"
#include "text/trim.h"

#include <kilnutil/text.h>

#include <cstring>

namespace kiln::text {

namespace {

// Where a statement ends, and whether the end character stays in it.
struct StatementEnd {
  char* at = nullptr;
  bool kept = false;
};

// Closes up the white space around the "::" at colons: the "::" follows the
// last non-space character before it, and the text after it follows at once.
void join_double_colon(char* begin, char* colons) {
  char* left = colons;
  while (left > begin) {
    const char* before = char_before(begin, left);
    if (!is_space(char_at(before))) break;
    left = mutable_pos(before);
  }
  const char* rest = skip_spaces(colons + 2);
  left[0] = ':';
  left[1] = ':';
  std::memmove(left + 2, rest, std::strlen(rest) + 1);
}

// The ";" or label colon that ends the statement at p, if any.
StatementEnd separator_end(char* p) {
  char* sep = mutable_pos(exposed_match(p, CharSet(";:"), 0, false));
  if (sep == nullptr || *sep == ';') return {sep, false};
  if (sep[1] == ':') {
    join_double_colon(p, sep);
  } else if (exposed_char(p, '?', 0, nullptr, false, sep) == nullptr) {
    return {sep, true};  // a label
  }
  return {mutable_pos(exposed_char(p, ';', 0)), false};
}

// The "}" of the first brace block, or of the last block joined to it by
// commas; null when there is no block. *unclosed: a "{" has no "}".
char* block_end(char* p, bool* unclosed) {
  *unclosed = false;
  const char* open = exposed_char(p, '{', 0);
  if (open == nullptr) return nullptr;
  for (;;) {
    const char* close = find_closer(open + 1, '{', '}', nullptr);
    if (close == nullptr) {
      *unclosed = true;
      return nullptr;
    }
    const char* after = skip_spaces(close + 1);
    if (*after != ',' || (open = exposed_char(after + 1, '{', 0)) == nullptr) return mutable_pos(close);
  }
}

}  // namespace

char* separate_statement(char** first, char* text, int* status) {
  int own_status = 0;
  if (status == nullptr) status = &own_status;
  *status = 0;
  if (text == nullptr) {
    if (first != nullptr) *first = nullptr;
    return nullptr;
  }
  char* p = trim_left(text);
  if (first != nullptr) *first = p;
  StatementEnd end = separator_end(p);
  bool unclosed = false;
  char* block = block_end(p, &unclosed);
  if (unclosed) {
    *status = -1;
    return nullptr;
  }
  if (block != nullptr && (end.at == nullptr || block < end.at)) end = {block, true};
  if (end.at == nullptr) return nullptr;
  if (!end.kept) *end.at = '\0';
  char* next = end.at + 1;
  const unsigned c = char_at(next);
  if (c == 0) return nullptr;
  if (is_space(c)) {
    const char* rest = skip_spaces(after_char(next));
    *next = '\0';
    return *rest != '\0' ? mutable_pos(rest) : nullptr;
  }
  *status = static_cast<unsigned char>(*next);
  *next = '\0';
  return next;
}

}  // namespace kiln::text
