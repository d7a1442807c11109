// KILNUTIL_separate_one_statement: statements end at an exposed ";", at a
// label colon, or with a brace block (and the blocks joined to it by commas).
#include "text/char_set.h"
#include "text/exposed_search.h"
#include "text/trim.h"

#include <kilnutil/text.h>

#include <cstring>

using namespace kiln::text;

namespace {

// Where a statement ends, and whether the end character stays in it.
struct StatementEnd {
  char* at = nullptr;
  bool kept = false;
};

// Closes up the white space around the "::" at colons: the "::" follows the
// last non-space character before it, and the text after it follows at once.
// Returns whether the text moved.
bool join_double_colon(char* begin, char* colons) {
  char* left = colons;
  while (left > begin) {
    const char* before = char_before(begin, left);
    if (!is_space(char_at(before))) break;
    left = mutable_pos(before);
  }
  const char* rest = skip_spaces(colons + 2);
  if (left == colons && rest == colons + 2) return false;  // no white space around it
  left[0] = ':';
  left[1] = ':';
  std::memmove(left + 2, rest, std::strlen(rest) + 1);
  return true;
}

// The ";" or label colon that ends the statement at p, if any. *moved: white
// space around a "::" was closed up, moving the text behind it.
StatementEnd separator_end(char* p, bool* moved) {
  char* sep = mutable_pos(exposed_match(p, CharSet(";:"), 0, false));
  if (sep == nullptr || *sep == ';') return {sep, false};
  if (sep[1] == ':') {
    *moved = join_double_colon(p, sep);
  } else if (exposed_char(p, '?', 0, nullptr, false, sep) == nullptr) {
    return {sep, true};  // a label
  }
  return {mutable_pos(exposed_char(p, ';', 0)), false};
}

// Splitting a text statement by statement asks on every call whether an
// exposed "{" follows anywhere in the rest of the text (an unclosed one there
// fails the call). For text without one, the answer is remembered for the
// position handed back to the caller, so a chain of calls reads the text once
// instead of once per statement. It holds while the caller, as it should,
// only puts back the character the call cut off; a different character
// there, other scan rules or a "::" closed up (which moves the text) discard it.
struct BraceFreeRest {
  const char* from = nullptr;           // where the next call of the chain starts
  char first = 0;                       // the character the caller puts back there
  const char* first_skipped = nullptr;  // the scan's first quoted section or literal from there
  ScanRules rules;
};

thread_local BraceFreeRest g_brace_free_rest;

// The first exposed "{" from p, as exposed_char(p, '{', 0) finds and records it.
struct BraceScan {
  const char* open = nullptr;
  const char* first_skipped = nullptr;
};

BraceScan first_exposed_brace(const char* p, const ScanRules& rules, bool may_remember) {
  BraceScan scan;
  const BraceFreeRest& known = g_brace_free_rest;
  if (may_remember && p == known.from && *p == known.first && rules == known.rules) {
    scan.first_skipped = known.first_skipped;
  } else {
    scan.open = exposed_scan(p, static_cast<const char*>(nullptr), SameChar{'{'}, rules, nullptr, &scan.first_skipped);
  }
  record_scan(p, scan.first_skipped);
  return scan;
}

// The first quoted section or numeric literal a scan from p skips: its first
// quote, digit or "." (nothing else is skipped, and no "{" ends the scan).
const char* first_section(const char* p) {
  for (const char* at = p;; at = p) {
    const unsigned c = read_char(p);
    if (c == 0) return nullptr;
    if (c < 128 && (kScanTables.role[c] == ScanRole::kQuote || kScanTables.role[c] == ScanRole::kNumber)) return at;
  }
}

// Remembers that the text from `from` holds no exposed "{", given the scan
// that showed it for the whole rest. Call before the character at from is cut.
void remember_brace_free(const char* from, const BraceScan& scan, const ScanRules& rules) {
  const char* skipped = scan.first_skipped;
  if (skipped != nullptr && skipped < from) skipped = first_section(from);
  g_brace_free_rest = {from, *from, skipped, rules};
}

// The "}" of the first brace block (open, null for none), or of the last
// block joined to it by commas. *unclosed: a "{" has no "}".
char* block_end(const char* open, bool* unclosed) {
  *unclosed = false;
  if (open == nullptr) return nullptr;
  for (;;) {
    const char* close = KILNUTIL_find_end_curly_brace(open + 1, nullptr);
    if (close == nullptr) {
      *unclosed = true;
      return nullptr;
    }
    const char* after = skip_spaces(close + 1);
    if (*after != ',' || (open = exposed_char(after + 1, '{', 0)) == nullptr) return mutable_pos(close);
  }
}

// The statement's end cut; returns where the next statement begins (null
// when none). When rest is given, it shows the text after p holds no exposed
// "{", and that is remembered for the returned position.
char* cut_statement(StatementEnd end, int* status, const BraceScan* rest, const ScanRules& rules) {
  if (!end.kept) *end.at = '\0';
  char* next = end.at + 1;
  const unsigned c = char_at(next);
  if (c == 0) return nullptr;
  if (is_space(c)) {
    const char* after = skip_spaces(after_char(next));
    *next = '\0';
    if (*after == '\0') return nullptr;
    if (rest != nullptr) remember_brace_free(after, *rest, rules);
    return mutable_pos(after);
  }
  if (rest != nullptr) remember_brace_free(next, *rest, rules);
  *status = static_cast<unsigned char>(*next);
  *next = '\0';
  return next;
}

}  // namespace

char* KILNUTIL_separate_one_statement(char** first, char* text, int* status) {
  int own_status = 0;
  if (status == nullptr) status = &own_status;
  *status = 0;
  if (text == nullptr) {
    if (first != nullptr) *first = nullptr;
    return nullptr;
  }
  char* p = trim_left(text);
  if (first != nullptr) *first = p;
  bool moved = false;
  StatementEnd end = separator_end(p, &moved);
  const ScanRules rules = scan_rules(0, false);
  const BraceScan rest = first_exposed_brace(p, rules, !moved);
  g_brace_free_rest = {};  // replaced below when this call hands back a brace-free rest
  bool unclosed = false;
  char* block = block_end(rest.open, &unclosed);
  if (unclosed) {
    *status = -1;
    return nullptr;
  }
  if (block != nullptr && (end.at == nullptr || block < end.at)) end = {block, true};
  if (end.at == nullptr) return nullptr;
  return cut_statement(end, status, rest.open == nullptr ? &rest : nullptr, rules);
}
