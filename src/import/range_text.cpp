// Range reference text: an optional "[book]", an optional "sheet!", then two
// cell references "$col$row" joined by ":". The row and column parts come out
// as texts (digits, letters); turning them into numbers is the caller's job.
#include "text/strchr.h"

#include <kilnutil/import.h>
#include <kilnutil/text.h>

#include <cstring>

namespace {

// Plain search (no brackets or quotes honoured) that steps whole characters.
constexpr unsigned int kPlainSearch = 1;

char* find_plain(char* text, char c) {
  return kiln::text::search_char(text, static_cast<unsigned char>(c), kPlainSearch);
}

bool is_digit(char c) { return c >= '0' && c <= '9'; }

void copy_out(char* out, const char* text) {
  if (out != nullptr) std::strcpy(out, text);
}

// Copies the text from begin up to the separator at end into out, cutting the
// text there for the copy and putting the separator back.
void copy_part(char* out, char* begin, char* end) {
  const char separator = *end;
  *end = '\0';
  copy_out(out, begin);
  *end = separator;
}

// One reference: "$" then a row (digits) or a column (letters), optionally a
// second "$" and a row. "$1$X" copies the row digits into the column as well.
// On a failure the second "$" is left cut.
bool parse_reference(char* text, char* row, char* col) {
  if (*text != '$') return false;
  char* first = text + 1;
  char* second = find_plain(first, '$');
  if (second != nullptr) *second = '\0';
  const bool first_is_row = is_digit(*first);
  copy_out(first_is_row ? row : col, first);
  if (second == nullptr) return true;
  if (is_digit(second[1])) {
    if (first_is_row) return false;
    copy_out(row, second + 1);
  } else {
    if (!first_is_row) return false;
    copy_out(col, first);
  }
  *second = '$';
  return true;
}

int parse_range_text(char* text, char* book, char* sheet, char* row1, char* col1, char* row2, char* col2) {
  for (char* out : {book, sheet, row1, col1, row2, col2}) copy_out(out, "");
  if (text == nullptr) return 0;
  char* rest = text;
  if (*rest == '[') {
    char* close = find_plain(rest + 1, ']');
    if (close == nullptr) return 0;
    copy_part(book, rest + 1, close);
    rest = close + 1;
  }
  if (char* bang = find_plain(rest, '!'); bang != nullptr) {
    copy_part(sheet, rest, bang);
    rest = bang + 1;
  }
  char* colon = find_plain(rest, ':');
  if (colon == nullptr) return 0;
  *colon = '\0';
  if (!parse_reference(rest, row1, col1) || !parse_reference(colon + 1, row2, col2)) return 0;
  *colon = ':';
  return 1;
}

}  // namespace

extern "C" {

int KILNUTIL_parse_one_range_string(char* text, char* book, char* sheet, char* row1, char* col1, char* row2,
                                    char* col2) {
  return parse_range_text(text, book, sheet, row1, col1, row2, col2);
}

int parse_data_range_str(char* text, char* book, char* sheet, char* row1, char* col1, char* row2, char* col2) {
  return parse_range_text(text, book, sheet, row1, col1, row2, col2);
}

}  // extern "C"
