// Matching brackets: the closer of an already open "(" or "{", the opener of
// a given closer, and the mismatch counters.
#include "text/brackets.h"

#include "text/exposed_search.h"

#include <kilnutil/text.h>

namespace kiln::text {

namespace {

constexpr int kNoCloser = 1;

int unclosed_quote_code(unsigned quote) { return quote == '\'' ? 2 : 3; }

const char* closer_of_open_pair(const char* text, unsigned open, unsigned close, int* error) {
  int code = 0;
  const char* result = nullptr;
  const bool escapes = escape_switch() == 0;
  int depth = 0;
  for (const char* p = text; result == nullptr && code == 0;) {
    const char* at = p;
    const unsigned c = read_char(p);
    if (c == 0) {
      code = kNoCloser;
    } else if (quote_class(c) != 0) {
      const char* closing = closing_quote(p, c, escapes);
      if (closing == nullptr) code = unclosed_quote_code(c);
      else p = closing + 1;
    } else if (c == close) {
      if (--depth == -1) result = at;
    } else if (c == open) {
      ++depth;
    }
  }
  if (error != nullptr) *error = code;
  return result;
}

// How a walk over the text ended, with the openers it left unmatched.
struct MismatchWalk {
  int code = 0;  // 0 the end; 1 a stray closer; 2 or 3 an unclosed quote
  const char* where = nullptr;
  int unmatched = 0;
  const char* first_unmatched = nullptr;
  const char* last_unmatched = nullptr;

  void add_unmatched(const char* opener) {
    if (unmatched++ == 0) first_unmatched = opener;
    last_unmatched = opener;
  }
};

// An opener whose closer is not found leaves the rest of the text to be
// counted again; these fold the nested results back to the outermost opener.
int fold_bracket_mismatch(const MismatchWalk& walk, const char** position) {
  if (walk.unmatched == 0) {
    *position = walk.where;
    return walk.code;
  }
  if (walk.code == 1) {  // every level reports the stray closer at its own opener
    *position = walk.first_unmatched;
    return 1;
  }
  if (walk.unmatched == 1) {
    *position = walk.first_unmatched;
    return 2;
  }
  *position = walk.last_unmatched;
  return 8;
}

int fold_quote_mismatch(const MismatchWalk& walk, const char** position) {
  if (walk.unmatched == 0) {
    *position = walk.where;
    return walk.code;
  }
  switch (walk.code) {
    case 1:  // 4 at the innermost opener, passed through as 4
      *position = walk.last_unmatched;
      return 4;
    case 0:
      if (walk.unmatched == 1) {
        *position = walk.first_unmatched;
        return 2;
      }
      *position = walk.last_unmatched;
      return 8;
    default:  // an unclosed quote behind an open bracket
      *position = walk.where;
      return 8;
  }
}

void store(char** position, const char* p) {
  if (position != nullptr) *position = mutable_pos(p);
}

}  // namespace

const char* find_closer(const char* text, unsigned open, unsigned close, int* error) {
  if (text == nullptr) {
    if (error != nullptr) *error = kNoCloser;
    return nullptr;
  }
  return closer_of_open_pair(text, open, close, error);
}

char* find_matching_opener(const char* start, const char* closer, unsigned flags, int* colon_flag) {
  if (start == nullptr || closer == nullptr) return nullptr;
  const int pair = standalone_closer(static_cast<unsigned char>(*closer));
  if (pair == 0) return nullptr;
  const int opener_char = kPairOpeners[pair - 1];
  const int closer_char = kPairClosers[pair - 1];
  const char* limit = closer + 1;
  bool colon_decided = false;
  for (const char* p = start;;) {
    const char* opener = exposed_char(p, opener_char, flags, nullptr, true, limit);
    if (opener == nullptr) return nullptr;
    const char* found = exposed_char(opener + 1, closer_char, flags, nullptr, true, limit);
    if (found == nullptr) return nullptr;
    if (colon_flag != nullptr && !colon_decided && *colon_flag == 0)
      *colon_flag = found[1] == ':' && found[2] != '[' ? 1 : 0;
    colon_decided = true;
    if (found == closer) return mutable_pos(opener);
    p = found + 1;
  }
}

int count_bracket_mismatch(const char* text, char** position, int open, int close, unsigned flags) {
  store(position, nullptr);
  if (text == nullptr) return 0;
  MismatchWalk walk;
  bool in_string = false;
  for (const char* p = text;;) {
    const char* at = p;
    const auto c = static_cast<int>(read_char(p));
    if (c == 0) break;
    if (c == '"') {
      in_string = !in_string;
    } else if (in_string) {
      continue;
    } else if (c == open) {
      const char* closing = exposed_char(p, close, flags, nullptr, true);
      if (closing != nullptr) p = after_char(closing);
      else walk.add_unmatched(at);
    } else if (c == close) {
      walk.code = 1;
      walk.where = at;
      break;
    }
  }
  const char* where = nullptr;
  const int code = fold_bracket_mismatch(walk, &where);
  if (code != 0) store(position, where);
  return code;
}

int count_quote_mismatch(const char* text, char** position) {
  store(position, nullptr);
  if (text == nullptr) return 0;
  const bool escapes = escape_switch() == 0;
  MismatchWalk walk;
  for (const char* p = text;;) {
    const char* at = p;
    const unsigned c = read_char(p);
    if (c == 0) break;
    if (quote_class(c) != 0) {
      const char* closing = closing_quote(p, c, escapes);
      if (closing == nullptr) {
        walk.code = unclosed_quote_code(c);
        walk.where = at;
        break;
      }
      p = closing + 1;
    } else if (const int pair = standalone_opener(c)) {
      const char* closing = exposed_char(p, kPairClosers[pair - 1], 0);
      if (closing != nullptr) p = after_char(closing);
      else walk.add_unmatched(at);
    } else if (standalone_closer(c) != 0) {
      walk.code = 1;
      walk.where = at;
      break;
    }
  }
  const char* where = nullptr;
  const int code = fold_quote_mismatch(walk, &where);
  if (code != 0) store(position, where);
  return code;
}

}  // namespace kiln::text

extern "C" {

char* KILNUTIL_find_end_parenthesis(const char* text, int* error) {
  return kiln::text::mutable_pos(kiln::text::find_closer(text, '(', ')', error));
}

char* KILNUTIL_find_end_curly_brace(const char* text, int* error) {
  return kiln::text::mutable_pos(kiln::text::find_closer(text, '{', '}', error));
}

char* KILNUTIL_find_matching_opening_paranthesis_ex(const char* start, const char* closer, unsigned int flags,
                                                    int* colon_flag) {
  return kiln::text::find_matching_opener(start, closer, flags, colon_flag);
}

int KILNUTIL_count_bracket_mismatch(const char* text, char** position, int open, int close, unsigned int flags) {
  return kiln::text::count_bracket_mismatch(text, position, open, close, flags);
}

int KILNUTIL_count_parenthesis_mismatch_ex(const char* text, char** position, unsigned int flags) {
  return kiln::text::count_bracket_mismatch(text, position, '(', ')', flags);
}

int KILNUTIL_count_quote_mismatch(const char* text, char** position) {
  return kiln::text::count_quote_mismatch(text, position);
}

}  // extern "C"
