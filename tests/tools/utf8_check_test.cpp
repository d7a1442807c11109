// Well-formed UTF-8, and U+FFFD for each maximal ill-formed part.
#include "json.h"
#include "utf8_check.h"

#include <gtest/gtest.h>

namespace {

TEST(ToolUtf8Check, ValidPrefixAndReplacement) {
  struct Case {
    std::string text;
    std::size_t valid;     // valid_utf8_prefix
    std::string replaced;  // append_replacing_invalid
  };
  const std::string r = "\xEF\xBF\xBD";
  const Case cases[] = {
      {"plain ASCII text", 16, "plain ASCII text"},
      {"\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80", 9, "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80"},
      {"a\xC0\xAF", 1, "a" + r + r},                  // overlong two-byte form
      {"a\xE0\x80\xAF", 1, "a" + r + r + r},          // overlong three-byte form
      {"a\xED\xA0\x80", 1, "a" + r + r + r},          // encoded surrogate
      {"a\xF4\x90\x80\x80", 1, "a" + r + r + r + r},  // past U+10FFFF
      {"a\xF5", 1, "a" + r},
      {"a\xE2\x82", 1, "a" + r},  // cut off: one replacement
      {"a\xE2\x82z", 1, "a" + r + "z"},
      {"0123456789abcdef\x80", 16, "0123456789abcdef" + r},  // past the 8-byte fast path
  };
  for (const Case& c : cases) {
    EXPECT_EQ(kilnutil_cli::valid_utf8_prefix(c.text), c.valid) << c.text;
    std::string replaced;
    kilnutil_cli::append_replacing_invalid(c.text, replaced);
    EXPECT_EQ(replaced, c.replaced) << c.text;
  }
}

TEST(ToolUtf8Check, CodePointsAndJsonStrings) {
  const struct {
    char32_t code_point;
    const char* utf8;
  } points[] = {{U'A', "A"},
                {0x7FF, "\xDF\xBF"},
                {0x800, "\xE0\xA0\x80"},
                {0xFFFF, "\xEF\xBF\xBF"},
                {0x10000, "\xF0\x90\x80\x80"},
                {0x10FFFF, "\xF4\x8F\xBF\xBF"}};
  for (const auto& p : points) {
    std::string out;
    kilnutil_cli::append_code_point(p.code_point, out);
    EXPECT_EQ(out, p.utf8);
  }
  const struct {
    std::string text;
    const char* json;
  } strings[] = {{"a\"b\\c", "\"a\\\"b\\\\c\""},
                 {"line\nend\r\ttab", "\"line\\nend\\r\\ttab\""},
                 {std::string("\x01\x7F", 2), "\"\\u0001\\u007f\""},
                 {"caf\xC3\xA9 \xFF", "\"caf\xC3\xA9 \xEF\xBF\xBD\""}};
  for (const auto& s : strings) EXPECT_EQ(kilnutil_cli::json_string(s.text), s.json);
}

}  // namespace
