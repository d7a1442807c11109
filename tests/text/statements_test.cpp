#include "text/text_test_support.h"

#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <string>
#include <vector>

using namespace text_test;

namespace {

struct Statement {
  std::string first;
  long next;  // offset of the result, -1 for null
  int status;
  std::string text_after;  // the text after the call, from the start
};

Statement separate(const std::string& s) {
  Text t(s);
  char* first = nullptr;
  int status = 77;
  char* next = KILNUTIL_separate_one_statement(&first, t.get(), &status);
  return {first, offset(t.get(), next), status, t.get()};
}

}  // namespace

TEST(Statement, SemicolonEndsAndTheNextCharacterIsHandedBack) {
  Statement s = separate("x=1;y=2");
  EXPECT_EQ(s.first, "x=1");
  EXPECT_EQ(s.status, 'y');
  EXPECT_EQ(s.next, 4);
  s = separate("  x=1; y=2");
  EXPECT_EQ(s.first, "x=1");
  EXPECT_EQ(s.status, 0);
  EXPECT_EQ(s.next, 7);
  s = separate("x=1;");
  EXPECT_EQ(s.first, "x=1");
  EXPECT_EQ(s.next, -1);
  s = separate("x=1;  ");
  EXPECT_EQ(s.next, -1);
  s = separate("s=\"a;b\"; t");
  EXPECT_EQ(s.first, "s=\"a;b\"");
  s = separate("x = f(1;2)");
  EXPECT_EQ(s.first, "x = f(1;2)");
  EXPECT_EQ(s.next, -1);
}

TEST(Statement, LabelsAndConditionals) {
  Statement s = separate("start: x=1");
  EXPECT_EQ(s.first, "start:");
  EXPECT_EQ(s.next, 7);
  s = separate("a?b:c;d");
  EXPECT_EQ(s.first, "a?b:c");
  EXPECT_EQ(s.status, 'd');
  s = separate("loop:x");
  EXPECT_EQ(s.first, "loop:");
  EXPECT_EQ(s.status, 'x');
  EXPECT_EQ(s.next, 5);
}

TEST(Statement, DoubleColonIsJoined) {
  Statement s = separate("a = b  ::  c; d");
  EXPECT_EQ(s.first, "a = b::c");
  EXPECT_EQ(s.next, 10);
  s = separate("x::y");
  EXPECT_EQ(s.first, "x::y");
  EXPECT_EQ(s.next, -1);
}

TEST(Statement, BraceBlocks) {
  Statement s = separate("if (a) {b=1;c=2} d=3;");
  EXPECT_EQ(s.first, "if (a) {b=1;c=2}");
  EXPECT_EQ(s.next, 17);
  s = separate("x = {1,2}, {3,4}; y");
  EXPECT_EQ(s.first, "x = {1,2}, {3,4}");
  s = separate("{a}x");
  EXPECT_EQ(s.first, "{a}");
  EXPECT_EQ(s.status, 'x');
  s = separate("x=1; {");
  EXPECT_EQ(s.status, -1);
  EXPECT_EQ(s.next, -1);
  s = separate("{\"}\"}");
  EXPECT_EQ(s.first, "{\"}\"}");
}

TEST(Statement, NoSeparator) {
  Statement s = separate("  x = 1 ");
  EXPECT_EQ(s.first, "x = 1 ");
  EXPECT_EQ(s.next, -1);
  EXPECT_EQ(s.status, 0);
}

namespace {

struct Term {
  std::string term;
  int op;
  long end;
  long next;
};

Term separate_term(const std::string& s, bool with_op = true) {
  Text t(s);
  char* term = nullptr;
  int op = 77;
  char* end = nullptr;
  char* next = KILNUTIL_separate_one_term(&term, t.get(), with_op ? &op : nullptr, &end);
  return {term != nullptr ? term : "(null)", with_op ? op : 0, offset(t.get(), end), offset(t.get(), next)};
}

}  // namespace

TEST(Term, OperatorOrWhiteSpaceEndsIt) {
  Term t = separate_term("a + b");
  EXPECT_EQ(t.term, "a");
  EXPECT_EQ(t.op, '+');
  EXPECT_EQ(t.end, 2);
  EXPECT_EQ(t.next, 4);
  t = separate_term("a b+c");
  EXPECT_EQ(t.term, "a");
  EXPECT_EQ(t.op, 0);
  EXPECT_EQ(t.next, 2);
  t = separate_term("x*y");
  EXPECT_EQ(t.term, "x");
  EXPECT_EQ(t.op, '*');
  t = separate_term("i++ + 1");
  EXPECT_EQ(t.term, "i++");
  EXPECT_EQ(t.op, '+');
  t = separate_term("f(a b) c", false);
  EXPECT_EQ(t.term, "f(a b)");
  EXPECT_EQ(t.next, 7);
  t = separate_term("1e-5 x");
  EXPECT_EQ(t.term, "1e-5");
}

TEST(Term, WholeTextWhenNothingEndsIt) {
  Term t = separate_term("  \"abc\"");
  EXPECT_EQ(t.term, "abc");
  EXPECT_EQ(t.next, -1);
  EXPECT_EQ(t.end, -1);
  t = separate_term("\"a b\"  ");  // the exposed space behind the quotes ends it
  EXPECT_EQ(t.term, "a b");
  EXPECT_EQ(t.end, 5);
  EXPECT_EQ(t.next, -1);
}

TEST(Term, BracketedTerm) {
  Term t = separate_term("(a + b) * c");
  EXPECT_EQ(t.term, "a + b");
  EXPECT_EQ(t.op, ')');
  EXPECT_EQ(t.end, 6);
  EXPECT_EQ(t.next, 8);
  t = separate_term("(a + b");
  EXPECT_EQ(t.op, -1);
  EXPECT_EQ(t.next, -1);
}

TEST(PrecedingTerm, BetweenTheLastOpenerAndTheCloser) {
  Text t("f(a, g( x ) )");
  char* term = nullptr;
  EXPECT_EQ(offset(t.get(), KILNUTIL_get_preceeding_term(&term, t.at(10), t.get())), 6);
  EXPECT_STREQ(term, "x");
  Text none("a b)");
  EXPECT_EQ(KILNUTIL_get_preceeding_term(&term, none.at(3), none.get()), nullptr);
  Text not_closer("a(b");
  EXPECT_EQ(KILNUTIL_get_preceeding_term(&term, not_closer.at(1), not_closer.get()), nullptr);
}

TEST(RemainingTerm, UpToTheExposedCloser) {
  Text t(" a,(b) ) + c");
  char* term = nullptr;
  unsigned short brackets[2] = {'(', 0};
  EXPECT_EQ(offset(t.get(), KILNUTIL_get_remaining_term(&term, t.get(), brackets)), 9);
  EXPECT_STREQ(term, "a,(b)");
  Text missing("a \"b\" c");
  brackets[0] = '(';
  EXPECT_EQ(KILNUTIL_get_remaining_term(&term, missing.get(), brackets), nullptr);
  EXPECT_EQ(brackets[0], 65535);
  EXPECT_EQ(brackets[1], 65535);
  EXPECT_EQ(term, missing.at(2));  // the last scan position: the quoted section
  brackets[0] = 'x';
  EXPECT_EQ(KILNUTIL_get_remaining_term(&term, missing.get(), brackets), nullptr);
  EXPECT_EQ(brackets[0], 65534);
  EXPECT_EQ(brackets[1], 65535);
}

namespace {

// One call on text: offsets from text, the status, the last scan position and
// the bytes of the text afterwards.
struct Call {
  long first, next;
  int status;
  long scan;
  std::string bytes;
  bool operator==(const Call&) const = default;
};

Call separate_at(char* text) {
  const std::size_t length = std::strlen(text);
  char* first = nullptr;
  int status = 0;
  char* next = KILNUTIL_separate_one_statement(&first, text, &status);
  const char* scan = KILNUTIL_exposed_char_pos_ex_loc_ex(nullptr, 0, 0, nullptr, 0, nullptr);
  return {offset(text, first), offset(text, next), status, offset(text, scan), std::string(text, length)};
}

}  // namespace

// A chain of calls over one buffer (where the splitter may remember what it
// learnt about the rest) gives what each call gives on a fresh copy of its text.
TEST(Statement, ChainMatchesFreshCalls) {
  static const char* const kPieces[] = {"x", "=", "12", "1e 5", " ", " ", ";", ";", ":", "::", "?", "{", "}", ",",
                                        "\"", "'", "(", ")", "[", "]", "<", "\\", ".", "\xC2\xA0", "\xE2"};
  std::mt19937 random(7);
  for (int round = 0; round < 3000; ++round) {
    std::string script;
    for (int n = static_cast<int>(random() % 40); n > 0; --n) script += kPieces[random() % std::size(kPieces)];
    if (round % 2 == 0) std::erase(script, '{');
    Text chain(script);
    std::vector<std::string> inputs;
    std::vector<Call> calls;
    for (char* p = chain.get(); p != nullptr && calls.size() < 100;) {
      inputs.emplace_back(p);
      const char* before = p;
      calls.push_back(separate_at(p));
      p = calls.back().next < 0 ? nullptr : p + calls.back().next;
      if (p != nullptr && calls.back().status > 0) *p = static_cast<char>(calls.back().status);
      ASSERT_TRUE(p == nullptr || p > before);
    }
    std::vector<Text> copies(inputs.begin(), inputs.end());  // all alive: no address is met twice
    for (std::size_t i = 0; i < calls.size(); ++i) EXPECT_EQ(separate_at(copies[i].get()), calls[i]) << script;
  }
}

TEST(Statement, ChangedScanRulesMidChain) {
  Text t("a=1;b=\"\\\";{\";c");
  char* first = nullptr;
  int status = 0;
  char* next = KILNUTIL_separate_one_statement(&first, t.get(), &status);
  *next = static_cast<char>(status);
  EscapesOff off;  // the quote now closes before the ";" and the "{" is exposed
  EXPECT_EQ(KILNUTIL_separate_one_statement(&first, next, &status), nullptr);
  EXPECT_EQ(status, -1);
}
