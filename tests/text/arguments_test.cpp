#include "text/text_test_support.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace text_test;

using Strings = std::vector<std::string>;

TEST(ExtractArgPointers, NameAndArguments) {
  char* name = nullptr;
  char* args = nullptr;
  Text t(" sum ( a, (b) ) ");  // the default closer is the last character: a space here
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

TEST(TokenList, SeparatorsQuotesAndEmptyPieces) {
  struct Case {
    const char* text;
    int sep, max;
    Strings tokens;
  } cases[] = {
      {"f(a,b), <c,d>, 1.5,2", 0, -1, {"f(a,b)", "<c", "d>", "1.5", "2"}},  // sep 0: the comma
      {"'a,b',c", ',', 0, {"'a,b'", "c"}},                                  // a leading single quote quotes
      {"'a,b',c", ',', 60000, {"'a", "b'", "c"}},
      {"a   b\tc", -1, -1, {"a", "b", "c"}},
      {"a,,b", ',', -1, {"a", "", "b"}},
  };
  for (const Case& c : cases) {
    Text t(c.text);
    char* list[16] = {};
    EXPECT_EQ(KILNUTIL_separate_str_to_token_list(t.get(), list, c.sep, c.max), static_cast<int>(c.tokens.size()));
    Strings tokens;
    for (int i = 0; i < 16 && list[i] != nullptr; ++i) tokens.emplace_back(list[i]);
    EXPECT_EQ(tokens, c.tokens) << c.text;
  }
  Text t("a,b,c");
  EXPECT_EQ(KILNUTIL_separate_str_to_token_list(t.get(), nullptr, ',', -1), 3);
  EXPECT_STREQ(t.get(), "a,b,c");  // counted without cutting
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

TEST(MultidimensionalDereference, Subscripts) {
  struct Case {
    const char* text;
    int max;
    int count;
    const char* name;
    Strings subscripts;
  } cases[] = {
      {" m [1] [ i+1 ]", 4, 2, "m", {"1", "i+1"}},
      {"m[a[1]][2]", 4, 2, "m", {"a[1]", "2"}},
      {"m[1][2]", 2, 2, "m", {"1", "2"}},
      {" abc ", 4, 0, "abc", {}},
      {"m[1] x", 4, -1, "", {}},
      {"m[1", 4, -2, "", {}},
      {"[1]", 4, -1, "", {}},
      {"   ", 4, -1, "", {}},
      {"m[]", 4, -1, "", {}},
      {"m[1][2][3]", 2, -1, "", {}},
  };
  for (const Case& c : cases) {
    Text t(c.text);
    char* name = nullptr;
    char* subscripts[4] = {};
    const int n = KILNUTIL_separate_multidimensional_dereference(t.get(), &name, subscripts, c.max);
    EXPECT_EQ(n, c.count) << c.text;
    if (n < 0) continue;
    EXPECT_STREQ(name, c.name);
    EXPECT_EQ(Strings(subscripts, subscripts + n), c.subscripts) << c.text;
  }
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
