// Arguments and lists: KILNUTIL_extract_arg_pointers, the token lists,
// multidimensional subscripts and token counts.
#include "text/brackets.h"
#include "text/exposed_search.h"
#include "text/strchr.h"
#include "text/token_list.h"
#include "text/trim.h"

#include <kilnutil/text.h>

#include <cstring>

using namespace kiln::text;

namespace {

constexpr int kBadSyntax = -1;
constexpr int kMissingBracket = -2;

char* last_char_of(char* text) {
  const std::size_t length = std::strlen(text);
  return length == 0 ? nullptr : mutable_pos(char_before(text, text + length));
}

}  // namespace

int KILNUTIL_extract_arg_pointers(char* text, char** name, char** args, char* closer) {
  if (text == nullptr || *text == '\0') return 0;
  if (closer == nullptr) closer = last_char_of(text);
  char* opener = find_matching_opener(text, closer, kNoAngleBrackets, nullptr);
  if (opener == nullptr) return 0;
  *opener = '\0';
  char* inside = opener + 1;
  if (char* last = last_char_of(inside)) *last = '\0';
  if (args != nullptr) *args = trim_both(inside);
  if (name != nullptr) *name = trim_both(text);
  return 1;
}

int KILNUTIL_separate_str_to_token_list(char* text, char** list, int sep, int max) {
  return separate_str_to_token_list(text, list, sep, max);
}

int KILNUTIL_get_argument_list(char* text, char** list, int sep, int options) {
  const int count = separate_str_to_token_list(text, list, sep, options);
  if (list != nullptr) {
    for (int i = 0; i < count; ++i)
      if (*list[i] == '\0') return -i;
  }
  return count;
}

int KILNUTIL_separate_multidimensional_dereference(char* text, char** name, char** subscripts, int max) {
  if (text == nullptr) return kBadSyntax;
  char* p = trim_left(text);
  if (*p == '\0' || *p == '[') return kBadSyntax;
  char* open = mutable_pos(exposed_char(p, '[', kKeepNumbers));
  if (open == nullptr) {
    if (name != nullptr) *name = trim_both(p);
    return 0;
  }
  *open = '\0';
  if (name != nullptr) *name = trim_both(p);
  int count = 0;
  for (char* q = open + 1;;) {
    char* close = mutable_pos(exposed_char(q, ']', kKeepNumbers));
    if (close == nullptr) return kMissingBracket;
    *close = '\0';
    char* subscript = trim_both(q);
    if (*subscript == '\0' || count >= max) return kBadSyntax;
    if (subscripts != nullptr) subscripts[count] = subscript;
    ++count;
    char* next = trim_left(close + 1);
    if (*next == '\0') return count;
    if (*next != '[' || count >= max) return kBadSyntax;
    q = next + 1;
  }
}

int KILNUTIL_get_token_count_ex(const char* text, int sep, int max, char** rest) {
  if (max > 0 && rest != nullptr) *rest = nullptr;
  if (text == nullptr) return 0;
  if (sep == 0) sep = ',';
  int count = 1;
  for (const char* p = text;;) {
    const char* separator = exposed_char(p, sep, 0);
    if (separator == nullptr) return count;
    ++count;
    p = after_char(separator);
    if (max > 0) {
      if (rest != nullptr) *rest = mutable_pos(p);
      if (count > max) return count;
    }
  }
}

int KILNUTIL_token_count_no_chk_inside(const char* text, int sep) {
  if (text == nullptr) return 0;
  int count = 1;
  for (const char* p = text; (p = kiln::text::search_char(p, sep, 1)) != nullptr; p = after_char(p)) ++count;
  return count;
}
