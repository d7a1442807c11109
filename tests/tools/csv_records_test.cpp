// Records and fields of delimited text as the preview cuts them.
#include "csv_records.h"
#include "tool_input.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using kilnutil_cli::RecordReader;

struct Records {
  std::vector<std::string> records;
  std::string error;
};

Records read_records(const std::string& text, char separator = 0) {
  auto input = kilnutil_cli_test::piped(text);
  kilnutil_cli::TextDecoder decoder(*input, {});
  Records result;
  if (!decoder.start()) return {{}, decoder.error()};
  RecordReader reader(decoder);
  reader.set_separator(separator);
  std::string_view record;
  while (reader.next(record)) result.records.emplace_back(record);
  result.error = reader.error();
  return result;
}

TEST(ToolCsvRecords, LineEndsAndQuotes) {
  struct Case {
    const char* name;
    std::string text;
    char separator;
    std::vector<std::string> records;
    const char* error;
  };
  const Case cases[] = {
      {"LF", "a\nb\n", 0, {"a", "b"}, ""},
      {"CR LF", "a\r\nb\r\n", 0, {"a", "b"}, ""},
      {"CR only", "a\rb\rc", 0, {"a", "b", "c"}, ""},
      {"no final line end", "a\nb", 0, {"a", "b"}, ""},
      {"blank lines are records", "a\n\nb\n", 0, {"a", "", "b"}, ""},
      {"quoted line end", "1,\"x\ny\",2\n3\n", 0, {"1,\"x\ny\",2", "3"}, ""},
      {"quoted CR LF", "\"x\r\ny\"\r\n", 0, {"\"x\r\ny\""}, ""},
      {"doubled quotes", "\"a\"\"\nb\"\nc\n", 0, {"\"a\"\"\nb\"", "c"}, ""},
      {"quote inside a field", "5\" disk\t1\n2\n", '\t', {"5\" disk\t1", "2"}, ""},
      {"quote after blank with tabs", "a \"b\tc\nd\n", '\t', {"a \"b\tc", "d"}, ""},
      {"unclosed quote", "a\n\"b\nc\n", 0, {"a"}, "never closed"},
  };
  for (const Case& c : cases) {
    const Records got = read_records(c.text, c.separator);
    EXPECT_EQ(got.records, c.records) << c.name;
    EXPECT_NE(got.error.find(c.error), std::string::npos) << c.name << ": " << got.error;
  }
}

TEST(ToolCsvRecords, FieldsAndTheirText) {
  struct Case {
    const char* record;
    char separator;
    std::vector<std::string> texts;
  };
  const Case cases[] = {
      {"a,b,,c", ',', {"a", "b", "", "c"}},
      {"\"a,b\",c", ',', {"a,b", "c"}},
      {"\"say \"\"hi\"\"\";2", ';', {"say \"hi\"", "2"}},
      {" 1 ; 2 ", ';', {"1", "2"}},
      {"x\ty\t", '\t', {"x", "y", ""}},
      {"  1   2\t3  ", ' ', {"1", "2", "3"}},
      {"\"a b\" c", ' ', {"a b", "c"}},
      {"5\" disk|1", '|', {"5\" disk", "1"}},
      {"one, field", 0, {"one, field"}},
  };
  std::vector<std::string_view> fields;
  for (const Case& c : cases) {
    kilnutil_cli::split_fields(c.record, c.separator, fields);
    std::vector<std::string> texts;
    for (const std::string_view field : fields) texts.push_back(kilnutil_cli::field_text(field));
    EXPECT_EQ(texts, c.texts) << c.record;
  }
}

}  // namespace
