#include "unicode/test_files.h"
#include "support/temporary_stream.h"

#include <kilnutil/frame.h>
#include <kilnutil/text.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <string>

namespace {

struct Stripped {
  std::string text;
  int lines = 0;
  bool unclosed = false;  // ended with KILNUTIL_COMMENT_END inside a block comment
};

// Everything the reader yields from one source, from freshly reset marks.
Stripped strip(VTextAccess& source) {
  KILNUTIL_getc_skip_C_comments_ex(nullptr, nullptr, 0);
  Stripped out;
  for (int guard = 0; guard < 100000; ++guard) {
    const unsigned c = KILNUTIL_getc_skip_C_comments_ex(&source, &out.lines, 0);
    if (c == KILNUTIL_COMMENT_END || source.IsEOF(c)) {
      out.unclosed = c == KILNUTIL_COMMENT_END;
      break;
    }
    char bytes[8];
    const int n = std::snprintf(bytes, sizeof bytes, "%lc", static_cast<wint_t>(c));
    out.text.append(bytes, c < 0x80 ? 1 : static_cast<size_t>(std::max(n, 0)));
  }
  return out;
}

Stripped strip_string(const std::string& text) {
  VTextAccessFromString source(text.c_str());
  return strip(source);
}

Stripped strip_file(const std::string& text) {
  FILE* stream = kiln_test::temporary_stream();
  std::fwrite(text.data(), 1, text.size(), stream);
  std::rewind(stream);
  VTextAccessFromFile source(stream);
  Stripped out = strip(source);
  std::fclose(stream);
  return out;
}

struct ReaderCase {
  const char* text;
  const char* from_file;
  const char* from_string;  // differs where a character given back is skipped
  int lines;
};

TEST(CommentReader, BothSourcesTable) {
  const ReaderCase cases[] = {
      {"a /* b */ c", "a  c", "a  c", 0},
      {"x // note\ny", "x \ny", "x \ny", 1},
      {"a \\  \nb\n", "a b\n", "a b\n", 2},  // the joined line is reported with the next line feed
      {"a\\\r\nb\n", "ab\n", "ab\n", 3},     // a carriage return and line feed pair joins two
      {"a/b", "a/b", "a/", 0},               // the string source cannot give "b" back
      {"'\"' /* c */ x", "'\"'  x", "'\"'  x", 0},
      {"s = \"/* kept */ // kept\";", "s = \"/* kept */ // kept\";", "s = \"/* kept */ // kept\";", 0},
      {"/* one\ntwo */x\n", "x\n", "x\n", 2},
      {"// c \\\nstill\nz", "\nz", "\nz", 2},  // a continued line comment consumes the byte after the line end
      {"/**/ /* a */\"q\"", " \"q\"", " \"q\"", 0},
      {"k = 'a'; // end\n", "k = 'a'; \n", "k = 'a'; \n", 1},
      // From a string the escaped quote is lost, so the escape hides the closing one.
      {"p(\"\\\"/*\\\"\") q", "p(\"\\\"/*\\\"\") q", "p(\"\\/*\\\") q", 0},
  };
  for (const ReaderCase& c : cases) {
    SCOPED_TRACE(c.text);
    const Stripped file = strip_file(c.text);
    EXPECT_EQ(file.text, c.from_file);
    EXPECT_EQ(file.lines, c.lines);
    const Stripped string = strip_string(c.text);
    EXPECT_EQ(string.text, c.from_string);
  }
}

TEST(CommentReader, UnclosedBlockCommentEndsBothSources) {
  EXPECT_EQ(strip_file("a /* b\n").text, "a ");
  EXPECT_TRUE(strip_file("a /* b\n").unclosed);
  const Stripped string = strip_string("a /* b\nc");
  EXPECT_EQ(string.text, "a ");
  EXPECT_TRUE(string.unclosed);
  EXPECT_EQ(string.lines, 1);
}

// A corpus of script text without line continuations: every line feed is
// counted exactly once, so the count equals the line feeds of the text, and
// no comment opener survives outside strings.
TEST(CommentReader, CorpusLineCountsMatchLineFeeds) {
  const std::string corpus =
      "// header comment\n"
      "int n = 3; /* inline */ double x = 2.5;\n"
      "/* block\n   over\n   three lines */\n"
      "string s$ = \"http://example\"; // url in a string\n"
      "loop(i, 1, n) { x = x * 2; } // body\n"
      "/* a */ /* b */ type \"done\";\n"
      "if (n > 2) { type \"/* not a comment */\"; }\n"
      "\n"
      "char c = '\"'; // a quote literal\n"
      "last line without comment\n";
  const auto line_feeds = static_cast<int>(std::count(corpus.begin(), corpus.end(), '\n'));
  for (const Stripped& out : {strip_file(corpus), strip_string(corpus)}) {
    EXPECT_EQ(out.lines, line_feeds);
    EXPECT_EQ(out.text.find("inline"), std::string::npos);
    EXPECT_EQ(out.text.find("three lines"), std::string::npos);
    EXPECT_NE(out.text.find("\"http://example\""), std::string::npos);
    EXPECT_NE(out.text.find("\"/* not a comment */\""), std::string::npos);
    EXPECT_NE(out.text.find("char c = '\"'; \n"), std::string::npos);
  }
}

TEST(CommentReader, MarksResetButPendingLinesKept) {
  int lines = 0;
  VTextAccessFromString joined("a\\ \n");
  KILNUTIL_getc_skip_C_comments_ex(nullptr, nullptr, 0);
  while (!joined.IsEOF(KILNUTIL_getc_skip_C_comments_ex(&joined, &lines, 0))) {
  }
  EXPECT_EQ(lines, 0);  // the joined line is still pending
  EXPECT_EQ(KILNUTIL_getc_skip_C_comments(nullptr, &lines, 0), 0u);
  VTextAccessFromString next("\n");
  EXPECT_EQ(KILNUTIL_getc_skip_C_comments_ex(&next, &lines, 0), static_cast<unsigned>('\n'));
  EXPECT_EQ(lines, 2);

  // An open string is forgotten by the reset: the comment after it counts.
  VTextAccessFromString open("\"abc");
  while (!open.IsEOF(KILNUTIL_getc_skip_C_comments_ex(&open, nullptr, 0))) {
  }
  KILNUTIL_getc_skip_C_comments_ex(nullptr, nullptr, 0);
  VTextAccessFromString comment("/*x*/y");
  EXPECT_EQ(KILNUTIL_getc_skip_C_comments_ex(&comment, nullptr, 0), static_cast<unsigned>('y'));
}

TEST(CommentReader, SourcesCopyByValueAndStreamEndCounts) {
  VTextAccessFromString original("xy");
  EXPECT_EQ(original.GetChar(0), static_cast<unsigned>('x'));
  VTextAccessFromString copy = original;
  EXPECT_EQ(copy.GetChar(0), static_cast<unsigned>('y'));
  EXPECT_EQ(original.GetChar(0), static_cast<unsigned>('y'));
  EXPECT_EQ(copy.GetChar(0), KILNUTIL_COMMENT_END);
  EXPECT_EQ(copy.GetChar(0), KILNUTIL_COMMENT_END);  // stays at the NUL

  VTextAccessFromString text("\xC3\xA9!");
  EXPECT_EQ(text.GetChar(0), 0xE9u);

  FILE* stream = kiln_test::temporary_stream();
  std::fputs("\xE2\x82\xAC", stream);
  std::rewind(stream);
  VTextAccessFromFile file(stream);
  EXPECT_EQ(file.GetChar(0), 0x20ACu);
  file.UnGetChar(0x20AC, 0);
  VTextAccessFromFile moved = std::move(file);
  EXPECT_EQ(moved.GetChar(0), 0x20ACu);
  EXPECT_FALSE(moved.IsEOF(0x20AC));
  EXPECT_TRUE(moved.IsEOF(moved.GetChar(0)));
  std::fclose(stream);
}

struct TextSkipCase {
  const char* text;
  unsigned flags;
  int skipped;      // KILNUTIL_parse_C_comments
  int skipped_cpp;  // KILNUTIL_skip_CPP_comments_and_spaces
};

TEST(CommentText, LeadingCommentsTable) {
  const TextSkipCase cases[] = {
      {"/* a */x", 0, 7, 7},
      {"/* a */ /* b */x", 0, 7, 15},
      {"/* a */ /* b */x", KILNUTIL_COMMENTS_SKIP_SPACES, 15, 15},
      {"/* open", 0, 0, 0},          // an open comment skips nothing
      {"/*/ x */y", 0, 8, 8},        // the closer is searched behind the opener
      {"  // line\nnext", 0, 0, 9},  // the line feed is not consumed
      {"\t# directive", 0, 0, 12},
      {"/**/ // c", 0, 4, 9},
      {"x /* c */", 0, 0, 0},
  };
  for (const TextSkipCase& c : cases) {
    SCOPED_TRACE(c.text);
    EXPECT_EQ(KILNUTIL_parse_C_comments(c.text, c.flags) - c.text, c.skipped);
    EXPECT_EQ(KILNUTIL_skip_CPP_comments_and_spaces(c.text) - c.text, c.skipped_cpp);
  }
}

TEST(CommentText, WordSearchSkipsLeadingComments) {
  const char* text = "/* x */ x = 1";
  EXPECT_EQ(KILNUTIL_exposed_word_pos(text, "x", 0) - text, 3);
  EXPECT_EQ(KILNUTIL_exposed_word_pos(text, "x", KILNUTIL_WORD_SKIP_COMMENTS) - text, 8);
  const char* line = "// y\ny = 2";
  EXPECT_EQ(KILNUTIL_exposed_word_pos(line, "y", KILNUTIL_WORD_SKIP_COMMENTS) - line, 5);
}

}  // namespace
