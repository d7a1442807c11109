// Tokens and words: KILNUTIL_next_token (with its enclosed-token flag),
// KILNUTIL_next_word, KILNUTIL_get_next_word, KILNUTIL_next_token_sep and
// KILNUTIL_find_any_of_characters_in_str.
#include "frame/relaxed.h"
#include "text/char_set.h"
#include "text/exposed_search.h"
#include "text/strchr.h"
#include "text/trim.h"

#include <kilnutil/text.h>

#include <cstring>

using namespace kiln::text;

namespace {

kiln::frame::Relaxed<bool> g_enclosed_token{false};  // the last token was the inside of a pair

constexpr unsigned kAnywhere = 0x10000;

bool is_token_operator(unsigned c) { return c == '+' || c == '-' || c == '/' || c == '=' || c == '^'; }

// Copies characters into a destination the caller sized as its text.
class TokenWriter {
public:
  explicit TokenWriter(char* dest) : begin_(dest), out_(dest) {}
  void put(const char* from, const char* to) {
    while (from < to) *out_++ = *from++;
  }
  bool empty() const { return out_ == begin_; }
  // The token so far ends in a digit followed by "E" or "e".
  bool ends_in_exponent() const {
    return out_ - begin_ >= 2 && (out_[-1] == 'e' || out_[-1] == 'E') && out_[-2] >= '0' && out_[-2] <= '9';
  }
  void finish() { *out_ = '\0'; }

private:
  char* begin_;
  char* out_;
};

// One token's pair nesting and enclosed-token flag, worked on here and stored
// in the process-wide state once the token is read.
struct TokenState {
  PairNesting nesting;
  bool enclosed = false;  // the token is the inside of a pair
};

const char* read_token_with(const char* p, TokenWriter& out, TokenState& state) {
  PairNesting& nesting = state.nesting;
  for (;;) {
    const char* at = p;
    const unsigned c = read_char(p);
    if (c == 0) return at;
    if (nesting.is_open()) {
      const bool closed = nesting.follow(c);
      if (closed && state.enclosed) return p;  // the enclosing closer is dropped
      out.put(at, p);
      if (closed) return p;
      continue;
    }
    if (const int pair = begin_quote_class(c)) {
      if (out.empty()) {  // the token is the inside of this pair
        nesting.open(pair);
        state.enclosed = true;
        continue;
      }
      if (c != '(' && c != '[') return at;
      out.put(at, p);
      nesting.open(pair);
      continue;
    }
    if (c == ';' || is_space(c)) return at;
    if (is_token_operator(c)) {
      if (out.empty()) {
        out.put(at, p);
        return p;
      }
      if (!((c == '+' || c == '-') && out.ends_in_exponent())) return at;
    }
    out.put(at, p);
  }
}

// Reads the token at p into out; returns the position where it ended.
const char* read_token(const char* p, TokenWriter& out) {
  TokenState state;
  const char* end = read_token_with(p, out, state);
  remember_strchr_nesting(state.nesting);
  g_enclosed_token.store(state.enclosed);
  return end;
}

void copy_range(char* dest, const char* from, const char* to) {
  std::memmove(dest, from, static_cast<std::size_t>(to - from));
  dest[to - from] = '\0';
}

}  // namespace

char* KILNUTIL_next_token(char* dest, const char* text) {
  if (dest == nullptr || text == nullptr) return nullptr;
  TokenWriter out(dest);
  const char* p = skip_spaces(text);
  if (*p != '\0') p = skip_spaces(read_token(p, out));
  out.finish();
  return mutable_pos(p);
}

int KILNUTIL_next_token_enclosed(void) { return g_enclosed_token.load() ? 1 : 0; }

char* KILNUTIL_next_word(char* dest, const char* text) {
  if (dest == nullptr || text == nullptr) return nullptr;
  const char* begin = skip_spaces(text);
  const char* end = begin;
  while (*end != '\0' && !is_space(char_at(end))) end = after_char(end);
  copy_range(dest, begin, end);
  return mutable_pos(skip_spaces(end));
}

char* KILNUTIL_get_next_word(char* dest, const char* text, const char* separators) {
  if (dest == nullptr || text == nullptr) return nullptr;
  const CharSet members(separators != nullptr ? separators : "");
  const char* p = text;
  while (*p != '\0' && !members(char_at(p))) p = after_char(p);
  copy_range(dest, text, p);
  if (*p == '\0') return nullptr;
  return mutable_pos(skip_spaces(after_char(p)));
}

char* KILNUTIL_next_token_sep(char* dest, const char* text, const char* separators) {
  if (dest == nullptr || text == nullptr) return nullptr;
  for (const char* s = separators != nullptr ? separators : ""; *s != '\0';) {
    const auto separator = static_cast<int>(read_char(s));
    if (const char* hit = kiln::text::search_char(text, separator, 1)) {
      copy_range(dest, text, hit);
      return mutable_pos(after_char(hit));
    }
  }
  const char* end = text + std::strlen(text);
  copy_range(dest, text, end);
  return mutable_pos(end);
}

char* KILNUTIL_find_any_of_characters_in_str(const char* text, const char* set, unsigned int flags) {
  if (text == nullptr || set == nullptr || *set == '\0') return nullptr;
  const CharSet members(set);
  if (flags & kAnywhere) {
    for (const char* p = text; *p != '\0'; p = after_char(p))
      if (members(char_at(p))) return mutable_pos(p);
    return nullptr;
  }
  return mutable_pos(exposed_match(text, members, 0, false));
}
