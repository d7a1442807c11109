#include "text/text_test_support.h"

#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <string>
#include <tuple>
#include <vector>

using namespace text_test;

namespace {

// One call on text: the statement, offsets from text, the status, the last
// scan position and the bytes of the text afterwards.
struct Call {
  std::string first;
  std::ptrdiff_t first_at, next;
  int status;
  std::ptrdiff_t scan;
  std::string bytes;
  bool operator==(const Call&) const = default;
};

Call separate_at(char* text) {
  const std::size_t length = std::strlen(text);
  char* first = nullptr;
  int status = 77;
  char* next = KILNUTIL_separate_one_statement(&first, text, &status);
  const char* scan = KILNUTIL_exposed_char_pos_ex_loc_ex(nullptr, 0, 0, nullptr, 0, nullptr);
  return {first, offset(text, first), offset(text, next), status, offset(text, scan), std::string(text, length)};
}

}  // namespace

TEST(Statement, Cases) {
  struct Case {
    const char* text;
    const char* first;
    long next;
    int status;
  } cases[] = {
      {"x=1;y=2", "x=1", 4, 'y'},  // the next character is handed back, its place cut
      {"  x=1; y=2", "x=1", 7, 0},
      {"x=1;", "x=1", -1, 0},
      {"x=1;  ", "x=1", -1, 0},
      {"  x = 1 ", "x = 1 ", -1, 0},
      {"s=\"a;b\"; t", "s=\"a;b\"", 9, 0},
      {"x = f(1;2)", "x = f(1;2)", -1, 0},
      // Labels keep their colon; after a "?" the colon is a conditional's.
      {"start: x=1", "start:", 7, 0},
      {"loop:x", "loop:", 5, 'x'},
      {"a?b:c;d", "a?b:c", 6, 'd'},
      // White space around "::" is closed up.
      {"a = b  ::  c; d", "a = b::c", 10, 0},
      {"x::y", "x::y", -1, 0},
      // Brace blocks, joined by commas; an unclosed one anywhere fails the call.
      {"if (a) {b=1;c=2} d=3;", "if (a) {b=1;c=2}", 17, 0},
      {"x = {1,2}, {3,4}; y", "x = {1,2}, {3,4}", 16, ';'},
      {"{a}x", "{a}", 3, 'x'},
      {"{\"}\"}", "{\"}\"}", -1, 0},
      {"x=1; {", "x=1; {", -1, -1},
  };
  for (const Case& c : cases) {
    Text t(c.text);
    const Call call = separate_at(t.get());
    EXPECT_EQ(std::tie(call.first, call.next, call.status), std::tuple(std::string(c.first), c.next, c.status))
        << c.text;
  }
}

namespace {

struct Term {
  std::string term;
  int op;
  std::ptrdiff_t end, next;
  bool operator==(const Term&) const = default;
};

Term separate_term(const char* s, bool with_op) {
  Text t(s);
  char* term = nullptr;
  int op = 77;
  char* end = nullptr;
  char* next = KILNUTIL_separate_one_term(&term, t.get(), with_op ? &op : nullptr, &end);
  return {term != nullptr ? term : "(null)", with_op ? op : 0, offset(t.get(), end), offset(t.get(), next)};
}

}  // namespace

TEST(Term, Cases) {
  struct Case {
    const char* text;
    bool with_op;
    Term expected;
  } cases[] = {
      // An operator or white space ends it; the operator only when nothing but white space precedes it.
      {"a + b", true, {"a", '+', 2, 4}},
      {"a b+c", true, {"a", 0, 1, 2}},
      {"x*y", true, {"x", '*', 1, 2}},
      {"i++ + 1", true, {"i++", '+', 4, 6}},
      {"1e-5 x", true, {"1e-5", 0, 4, 5}},
      {"f(a b) c", false, {"f(a b)", 0, 6, 7}},
      // Nothing ends it: the whole text, trimmed and unquoted.
      {"  \"abc\"", true, {"abc", 0, -1, -1}},
      {"\"a b\"  ", true, {"a b", 0, 5, -1}},  // the exposed space behind the quotes ends it
      // A bracketed term, and a missing closer.
      {"(a + b) * c", true, {"a + b", ')', 6, 8}},
      {"(a + b", true, {"(a + b", -1, -1, -1}},
  };
  for (const Case& c : cases) EXPECT_EQ(separate_term(c.text, c.with_op), c.expected) << c.text;
}

TEST(PrecedingAndRemainingTerm, BetweenOpenerAndCloser) {
  char* term = nullptr;
  Text t("f(a, g( x ) )");
  EXPECT_EQ(offset(t.get(), KILNUTIL_get_preceeding_term(&term, t.at(10), t.get())), 6);
  EXPECT_STREQ(term, "x");
  Text none("a b)");
  EXPECT_EQ(KILNUTIL_get_preceeding_term(&term, none.at(3), none.get()), nullptr);
  EXPECT_EQ(KILNUTIL_get_preceeding_term(&term, t.at(1), t.get()), nullptr);  // not a closer
  Text rest(" a,(b) ) + c");
  unsigned short brackets[2] = {'(', 0};
  EXPECT_EQ(offset(rest.get(), KILNUTIL_get_remaining_term(&term, rest.get(), brackets)), 9);
  EXPECT_STREQ(term, "a,(b)");
  Text missing("a \"b\" c");
  EXPECT_EQ(KILNUTIL_get_remaining_term(&term, missing.get(), brackets), nullptr);
  EXPECT_EQ(std::tuple(brackets[0], brackets[1]), std::tuple(65535, 65535));
  EXPECT_EQ(term, missing.at(2));  // the last scan position: the quoted section
  brackets[0] = 'x';
  EXPECT_EQ(KILNUTIL_get_remaining_term(&term, missing.get(), brackets), nullptr);
  EXPECT_EQ(std::tuple(brackets[0], brackets[1]), std::tuple(65534, 65535));
}

// A chain of calls over one buffer (where the splitter may remember what it
// learnt about the rest) gives what each call gives on a fresh copy of its text.
TEST(Statement, ChainMatchesFreshCalls) {
  static const char* const kPieces[] = {"x", "=",  "12", "1e 5", " ", " ", ";", ";", ":",  "::", "?",        "{",   "}",
                                        ",", "\"", "'",  "(",    ")", "[", "]", "<", "\\", ".",  "\xC2\xA0", "\xE2"};
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
  const Call call = separate_at(t.get());
  *t.at(4) = static_cast<char>(call.status);
  Restore off = escapes_off();  // the quote now closes before the ";" and the "{" is exposed
  EXPECT_EQ(separate_at(t.at(4)).status, -1);
}
