// Searches built on the exposed search: the last hit, a two-character
// sequence, and a whole word.
#include "text/exposed_derived.h"

#include "frame/comment_reader.h"
#include "text/exposed_search.h"
#include "text/strchr.h"
#include "text/trim.h"

namespace kiln::text {

namespace {

constexpr unsigned kWordSkipComments = KILNUTIL_WORD_SKIP_COMMENTS;
constexpr unsigned kWordAnywhere = KILNUTIL_WORD_ANYWHERE;
constexpr unsigned kWordMatchCase = KILNUTIL_WORD_MATCH_CASE;

// The rest of word (after its first character) at p; the position behind it
// in *after.
bool rest_of_word_matches(const char* p, const char* rest, bool match_case, const char** after) {
  while (*rest != '\0') {
    const unsigned w = read_char(rest);
    const unsigned t = read_char(p);
    if (t == 0) return false;
    if (match_case ? t != w : !same_letter_either_case(t, w)) return false;
  }
  *after = p;
  return true;
}

bool stands_alone(const char* text, const char* hit, const char* after) {
  if (hit > text && is_letter_or_digit(char_at(char_before(text, hit)))) return false;
  return !is_letter_or_digit(char_at(after));
}

}  // namespace

const char* last_exposed_char(const char* text, int target, int* status) {
  if (text == nullptr) return nullptr;
  int own_status = 0;
  if (status == nullptr) status = &own_status;
  const char* last = nullptr;
  for (const char* p = text;;) {
    const char* hit = exposed_char(p, target, 0, status);
    if (*status != 0 || hit == nullptr) return last;
    last = hit;
    p = after_char(hit);
  }
}

const char* plain_char_pair(const char* text, int c1, int c2) {
  if (text == nullptr) return nullptr;
  for (const char* p = text;;) {
    const char* hit = search_char(p, c1, 0);
    if (hit == nullptr) return nullptr;
    if (hit[1] == static_cast<char>(c2)) return hit;
    p = after_char(hit);
  }
}

const char* exposed_word(const char* text, const char* word, unsigned flags) {
  if (text == nullptr || word == nullptr || *word == '\0') return nullptr;
  const char* rest = word;
  const auto first = static_cast<int>(read_char(rest));
  const bool match_case = (flags & kWordMatchCase) != 0;
  const unsigned search_flags = match_case ? 0 : kCaseBlind;
  for (const char* p = text;;) {
    if (flags & kWordSkipComments) p = frame::skip_comments_and_spaces(p);
    const char* hit = exposed_char(p, first, search_flags);
    if (hit == nullptr) return nullptr;
    const char* after = nullptr;
    if (rest_of_word_matches(after_char(hit), rest, match_case, &after) &&
        ((flags & kWordAnywhere) || stands_alone(text, hit, after)))
      return hit;
    p = after_char(hit);
  }
}

}  // namespace kiln::text
