// Terms: KILNUTIL_separate_one_term, KILNUTIL_get_preceeding_term and
// KILNUTIL_get_remaining_term.
#include "text/terms.h"

#include "text/char_set.h"
#include "text/enclosing_pairs.h"
#include "text/strchr.h"
#include "text/exposed_search.h"
#include "text/trim.h"

#include <kilnutil/text.h>

namespace kiln::text {

namespace {

constexpr unsigned short kMissingCloser = 65535;
constexpr unsigned short kNotAnOpener = 65534;

// The first exposed operator, passing over doubled "+" and "-".
const char* find_operator(const char* p) {
  static const CharSet kOperators("({=+-*/&%<|^");
  for (;;) {
    const char* op = exposed_match(p, kOperators, 0, false);
    if (op == nullptr || !((*op == '+' || *op == '-') && op[1] == *op)) return op;
    p = op + 2;
  }
}

bool only_spaces_between(const char* from, const char* to) {
  while (from < to) {
    if (!is_space(char_at(from))) return false;
    from = after_char(from);
  }
  return true;
}

char* trimmed_inside(char* text) { return remove_enclosing_pairs(trim_both(text), nullptr, 0); }

char* first_non_space_or_null(const char* p) {
  p = skip_spaces(p);
  return *p != '\0' ? mutable_pos(p) : nullptr;
}

}  // namespace

char* separate_term(char** term, char* text, int* op, char** end) {
  if (op != nullptr) *op = 0;
  if (text == nullptr) {
    if (term != nullptr) *term = nullptr;
    return nullptr;
  }
  char* start = trim_left(text);
  const char* stop = nullptr;
  if (const int pair = standalone_opener(char_at(start))) {
    stop = exposed_char(start + 1, kPairClosers[pair - 1], 0);
    if (stop == nullptr) {
      if (op != nullptr) *op = -1;
      if (term != nullptr) *term = start;
      return nullptr;
    }
    ++start;
  } else if (op != nullptr) {
    const char* space = exposed_char(start, 0, 0);
    const char* oper = find_operator(start);
    if (oper != nullptr && (space == nullptr || oper < space || only_spaces_between(space, oper))) stop = oper;
    else stop = space;
  } else {
    stop = exposed_char(start, 0, 0);
  }
  if (stop == nullptr) {
    char* inside = trimmed_inside(start);
    if (term != nullptr) *term = inside;
    return nullptr;
  }
  if (end != nullptr) *end = mutable_pos(stop);
  const unsigned c = char_at(stop);
  if (op != nullptr && !is_space(c)) *op = static_cast<int>(c);
  const char* rest = after_char(stop);
  *mutable_pos(stop) = '\0';
  char* inside = trimmed_inside(start);
  if (term != nullptr) *term = inside;
  return first_non_space_or_null(rest);
}

char* preceding_term(char** term, char* closer, char* text) {
  if (closer == nullptr || text == nullptr) return nullptr;
  const int pair = standalone_closer(static_cast<unsigned char>(*closer));
  if (pair == 0) return nullptr;
  const char opener = kPairOpeners[pair - 1];
  if (opener == *closer) {  // a pair whose two sides are one character
    if (term != nullptr) *term = closer;
    return closer;
  }
  *closer = '\0';
  char* found = kiln::text::search_char_reverse(text, opener, nullptr);
  if (found == nullptr) return nullptr;
  if (term != nullptr) *term = trim_both(found + 1);
  return found;
}

char* remaining_term(char** term, char* text, unsigned short* brackets) {
  if (text == nullptr || brackets == nullptr) return nullptr;
  const int pair = standalone_opener(brackets[0]);
  if (pair == 0) {
    brackets[0] = kNotAnOpener;
    brackets[1] = kMissingCloser;
    return nullptr;
  }
  char* closer = mutable_pos(exposed_char(text, kPairClosers[pair - 1], 0));
  if (closer == nullptr) {
    brackets[0] = brackets[1] = kMissingCloser;
    if (term != nullptr) *term = mutable_pos(last_scan_position());
    return nullptr;
  }
  *closer = '\0';
  if (term != nullptr) *term = trim_both(text);
  return first_non_space_or_null(closer + 1);
}

}  // namespace kiln::text
