// The comment-skipping reader: one character of script text at a time with
// block and line comments removed, quotes followed so that comment marks
// inside a double-quoted string stay text, and line ends counted for the
// caller's line numbers.
#include "frame/comment_reader.h"

#include "text/char_class.h"

#include <atomic>

namespace kiln::frame {

namespace {

constexpr unsigned kEnd = KILNUTIL_COMMENT_END;

// The reader's marks, kept from call to call (and across sources).
std::atomic<unsigned> g_in_string{0};               // '"' inside a double-quoted string
std::atomic<unsigned> g_previous_in_string{0};      // for backslash escapes inside it
std::atomic<bool> g_after_apostrophe{false};        // the last character was "'"
std::atomic<bool> g_quote_after_apostrophe{false};  // inside the literal '"'
std::atomic<unsigned> g_pending_lines{0};           // joined lines not yet reported

constexpr auto kRelaxed = std::memory_order_relaxed;

bool is_white(unsigned c) { return c < 0x110000 && text::char_class(c) == text::kWhiteSpace; }

void add_lines(int* line, unsigned count) {
  if (line != nullptr) *line += static_cast<int>(count);
}

// A line feed reported to the caller: it and the pending lines are counted.
void report_line_end(int* line) {
  add_lines(line, g_pending_lines.load(kRelaxed) + 1);
  g_pending_lines.store(0, kRelaxed);
}

// Step 1: backslashes before white space join lines. Returns the character
// that follows the joins (or the backslash that starts no join).
unsigned join_continued_lines(VTextAccess& source, unsigned c, unsigned flags) {
  while (c == '\\') {
    unsigned next = source.GetChar(flags);
    if (!is_white(next)) {
      source.UnGetChar(next, flags);
      break;
    }
    while (is_white(next)) {
      if (next == '\n' || next == '\r') g_pending_lines.fetch_add(1, kRelaxed);
      next = source.GetChar(flags);
    }
    c = next;
  }
  return c;
}

// Step 2: a double quote opens, closes or is escaped, or is the inside of '"'.
void follow_double_quote() {
  if (g_previous_in_string.load(kRelaxed) == '\\') {
    g_previous_in_string.store(0, kRelaxed);
  } else if (g_in_string.load(kRelaxed) != 0) {
    g_in_string.store(0, kRelaxed);
  } else if (g_after_apostrophe.load(kRelaxed)) {
    g_quote_after_apostrophe.store(true, kRelaxed);
  } else {
    g_in_string.store('"', kRelaxed);
  }
}

// Step 3: a character inside a double-quoted string.
void follow_string_character(unsigned c) {
  const unsigned previous = g_previous_in_string.load(kRelaxed);
  if (c == '\\') {
    g_previous_in_string.store(previous == '\\' ? 0 : '\\', kRelaxed);
  } else if (c == '\n') {
    if (previous != '\\') g_in_string.store(0, kRelaxed);
  } else {
    g_previous_in_string.store(c, kRelaxed);
  }
}

// "//" read: up to and including the line feed, which is returned.
unsigned skip_line_comment(VTextAccess& source, int* line, unsigned flags) {
  for (;;) {
    const unsigned c = source.GetChar(flags);
    if (source.IsEOF(c)) return c;
    if (c == '\\') {
      const unsigned next = source.GetChar(flags);
      if (next == '\n' || next == '\r') {
        add_lines(line, 1);
        source.GetChar(flags);  // the character behind the line end goes too
      } else {
        source.UnGetChar(next, flags);
      }
    } else if (c == '\n') {
      add_lines(line, g_pending_lines.load(kRelaxed) + 1);
      g_pending_lines.store(0, kRelaxed);
      return c;
    }
  }
}

// "/*" read: up to and including "*/"; false when the text ends first.
bool skip_block_comment(VTextAccess& source, int* line, unsigned flags) {
  for (;;) {
    const unsigned c = source.GetChar(flags);
    if (source.IsEOF(c)) return false;
    if (c == '\n') add_lines(line, 1);
    if (c == '*') {
      const unsigned next = source.GetChar(flags);
      if (next == '/') return true;
      source.UnGetChar(next, flags);
    }
  }
}

}  // namespace

void reset_comment_marks() {
  g_in_string.store(0, kRelaxed);
  g_previous_in_string.store(0, kRelaxed);
  g_after_apostrophe.store(false, kRelaxed);
  g_quote_after_apostrophe.store(false, kRelaxed);
}

unsigned pending_comment_lines() { return g_pending_lines.load(kRelaxed); }

unsigned read_skipping_comments(VTextAccess& source, int* line, unsigned flags) {
  unsigned c = source.GetChar(flags);
  for (;;) {
    c = join_continued_lines(source, c, flags);
    if (c == '"') {
      follow_double_quote();
      return c;
    }
    g_after_apostrophe.store(false, kRelaxed);
    if (g_in_string.load(kRelaxed) != 0) {
      follow_string_character(c);
      break;
    }
    if (c == '\'') {
      if (!g_quote_after_apostrophe.load(kRelaxed)) g_after_apostrophe.store(true, kRelaxed);
      return c;
    }
    g_quote_after_apostrophe.store(false, kRelaxed);
    g_previous_in_string.store(0, kRelaxed);
    if (c != '/') break;
    const unsigned next = source.GetChar(flags);
    if (next == '/') return skip_line_comment(source, line, flags);
    if (next != '*') {
      source.UnGetChar(next, flags);
      return c;
    }
    if (!skip_block_comment(source, line, flags)) return kEnd;
    c = source.GetChar(flags);  // the comment yields nothing: read on
  }
  if (c == '\n' && line != nullptr) report_line_end(line);
  return c;
}

}  // namespace kiln::frame
