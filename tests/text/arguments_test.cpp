#include "text/text_test_support.h"
#include "text/token_list.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace text_test;

TEST(ExtractArgPointers, NameAndArguments) {
  Text t(" sum ( a, (b) ) ");
  char* name = nullptr;
  char* args = nullptr;
  // The default closer is the last character: here a space, no closer.
  EXPECT_EQ(KILNUTIL_extract_arg_pointers(t.get(), &name, &args, nullptr), 0);
  Text u(" sum ( a, (b) )");
  EXPECT_EQ(KILNUTIL_extract_arg_pointers(u.get(), &name, &args, nullptr), 1);
  EXPECT_STREQ(name, "sum");
  EXPECT_STREQ(args, "a, (b)");
  Text angle("f<1>(x<2>)");
  EXPECT_EQ(KILNUTIL_extract_arg_pointers(angle.get(), &name, &args, nullptr), 1);
  EXPECT_STREQ(name, "f<1>");
  EXPECT_STREQ(args, "x<2>");
  Text bare("abc");
  EXPECT_EQ(KILNUTIL_extract_arg_pointers(bare.get(), &name, &args, nullptr), 0);
}

namespace {

struct Split {
  int count;
  std::vector<std::string> tokens;
};

Split split(const std::string& s, int sep, int max) {
  Text t(s);
  char* list[16] = {};
  const int n = KILNUTIL_separate_str_to_token_list(t.get(), list, sep, max);
  Split result{n, {}};
  for (int i = 0; i < 16 && list[i] != nullptr; ++i) result.tokens.emplace_back(list[i]);
  return result;
}

using Tokens = std::vector<std::string>;

}  // namespace

TEST(TokenList, SeparatorsAndQuotes) {
  EXPECT_EQ(split("it's, a, b", ',', -1).tokens, (Tokens{"it's", "a", "b"}));
  EXPECT_EQ(split("f(a,b), <c,d>, 1.5,2", 0, -1).tokens, (Tokens{"f(a,b)", "<c", "d>", "1.5", "2"}));
  EXPECT_EQ(split("'a,b',c", ',', 0).tokens, (Tokens{"'a,b'", "c"}));
  EXPECT_EQ(split("'a,b',c", ',', 60000).count, 3);
  EXPECT_EQ(split("a   b\tc", -1, -1).tokens, (Tokens{"a", "b", "c"}));
  EXPECT_EQ(split(" a ", -1, -1).tokens, (Tokens{"", "a", ""}));  // white space at either end
  EXPECT_EQ(split("", ',', -1).count, 0);
  EXPECT_EQ(split("a,,b", ',', -1).tokens, (Tokens{"a", "", "b"}));
}

TEST(TokenList, LimitLeavesTheRestUnstored) {
  Split s = split("a,b,c,d", ',', 2);
  EXPECT_EQ(s.count, 2);
  EXPECT_EQ(s.tokens, (Tokens{"a", "b"}));
  s = split("a,b", ',', 5);
  EXPECT_EQ(s.count, 2);
  EXPECT_EQ(s.tokens, (Tokens{"a", "b"}));
  Text t("a,b,c");
  EXPECT_EQ(KILNUTIL_separate_str_to_token_list(t.get(), nullptr, ',', -1), 3);
  EXPECT_STREQ(t.get(), "a,b,c");  // counted without cutting
}

TEST(TokenList, WideTextThroughTheSameTemplate) {
  std::u16string text = u"x, (y,z), \"p,q\"";
  KILN_WCHAR* list[4] = {};
  EXPECT_EQ(kiln::text::separate_str_to_token_list(text.data(), list, ',', -1), 3);
  EXPECT_EQ(std::u16string(list[1]), u"(y,z)");
  EXPECT_EQ(std::u16string(list[2]), u"\"p,q\"");
}

TEST(ArgumentList, EmptyPieceIsReported) {
  Text t("a, b ,c");
  char* list[8] = {};
  EXPECT_EQ(KILNUTIL_get_argument_list(t.get(), list, ',', 0), 3);
  EXPECT_STREQ(list[1], "b");
  Text gap("a,b,,c");
  EXPECT_EQ(KILNUTIL_get_argument_list(gap.get(), list, ',', 0), -2);
  Text first(",a");
  EXPECT_EQ(KILNUTIL_get_argument_list(first.get(), list, ',', 0), 0);
}

namespace {

struct Dereference {
  int count;
  std::string name;
  std::vector<std::string> subscripts;
};

Dereference dereference(const std::string& s, int max = 4) {
  Text t(s);
  char* name = nullptr;
  char* subscripts[4] = {};
  const int n = KILNUTIL_separate_multidimensional_dereference(t.get(), &name, subscripts, max);
  Dereference d{n, name != nullptr ? name : "(null)", {}};
  for (int i = 0; i < n && i < 4; ++i) d.subscripts.emplace_back(subscripts[i]);
  return d;
}

}  // namespace

TEST(MultidimensionalDereference, Subscripts) {
  Dereference d = dereference(" m [1] [ i+1 ]");
  EXPECT_EQ(d.count, 2);
  EXPECT_EQ(d.name, "m");
  EXPECT_EQ(d.subscripts, (std::vector<std::string>{"1", "i+1"}));
  EXPECT_EQ(dereference("m[1] x").count, -1);
  EXPECT_EQ(dereference("m[1").count, -2);
  EXPECT_EQ(dereference("[1]").count, -1);
  EXPECT_EQ(dereference("   ").count, -1);
  EXPECT_EQ(dereference("m[]").count, -1);
  EXPECT_EQ(dereference("m[a[1]][2]").subscripts, (std::vector<std::string>{"a[1]", "2"}));
  EXPECT_EQ(dereference("m[1][2][3]", 2).count, -1);
  EXPECT_EQ(dereference("m[1][2]", 2).count, 2);
  d = dereference(" abc ");
  EXPECT_EQ(d.count, 0);
  EXPECT_EQ(d.name, "abc");
}

TEST(TokenCount, ExposedAndPlain) {
  EXPECT_EQ(KILNUTIL_get_token_count_ex("f(a,b),c", 0, 0, nullptr), 2);
  EXPECT_EQ(KILNUTIL_get_token_count_ex("abc", ',', 0, nullptr), 1);
  EXPECT_EQ(KILNUTIL_get_token_count_ex(nullptr, ',', 0, nullptr), 0);
  EXPECT_EQ(KILNUTIL_get_token_count_ex("a;\"b;c\";d", ';', 0, nullptr), 3);
  const char text[] = "a,b,c,d,e";
  char* rest = nullptr;
  EXPECT_EQ(KILNUTIL_get_token_count_ex(text, ',', 2, &rest), 3);
  EXPECT_EQ(offset(text, rest), 4);
  EXPECT_EQ(KILNUTIL_token_count_no_chk_inside("f(a,b),c", ','), 3);
  EXPECT_EQ(KILNUTIL_token_count_no_chk_inside("", ','), 1);
  EXPECT_EQ(KILNUTIL_token_count_no_chk_inside(nullptr, ','), 0);
}
