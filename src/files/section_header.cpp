// Recognising header lines and taking their names.
#include "files/section_header.h"

#include "text/char_class.h"
#include "text/chars.h"
#include "text/strchr.h"

#include <cstring>

namespace kiln::files {

namespace {

const char* skip_leading_white_space(const char* p) {
  while (*p != '\0') {
    const char* next = p;
    if (!text::is_space(text::read_char(next))) break;
    p = next;
  }
  return p;
}

// The closing "]" (outside brackets and quotes); failing that, a "}" when a
// ")" occurs after the "[" as well.
const char* find_name_closer(const char* open) {
  if (const char* bracket = text::search_char(open + 1, ']', 0)) return bracket;
  if (std::strchr(open + 1, ')') == nullptr) return nullptr;
  return std::strchr(open + 1, '}');
}

// The rest of a header line may hold none of "!", "(", ")", "=" before the
// end or a "//" comment.
bool is_acceptable_rest(const char* p) {
  for (; *p != '\0'; ++p) {
    if (*p == '/' && p[1] == '/') return true;
    if (std::strchr("!()=", *p) != nullptr) return false;
  }
  return true;
}

bool is_blank(char c) { return c == ' ' || c == '\t'; }

// Cuts trailing spaces and tabs with a NUL and moves the text left over the
// leading ones.
void trim_blanks_in_place(char* text) {
  size_t length = std::strlen(text);
  while (length > 0 && is_blank(text[length - 1])) text[--length] = '\0';
  size_t lead = 0;
  while (lead < length && is_blank(text[lead])) ++lead;
  if (lead > 0) std::memmove(text, text + lead, length - lead + 1);
}

char ascii_lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }

}  // namespace

const char* find_section_header(const char* line, const char** close) {
  const char* open = skip_leading_white_space(line);
  if (*open != '[') return nullptr;
  const char* closer = find_name_closer(open);
  if (closer == nullptr || !is_acceptable_rest(closer + 1)) return nullptr;
  if (close != nullptr) *close = closer;
  return open;
}

char* section_name_in_line(char* line) {
  const char* close = nullptr;
  const char* open = find_section_header(line, &close);
  if (open == nullptr) return nullptr;
  char* name = line + (open - line) + 1;
  line[close - line] = '\0';
  trim_blanks_in_place(name);
  return name;
}

bool same_section_name(const char* a, const char* b) {
  for (; *a != '\0' && *b != '\0'; ++a, ++b)
    if (ascii_lower(*a) != ascii_lower(*b)) return false;
  return *a == *b;
}

}  // namespace kiln::files
