// The preview from bytes to output through the tool's own functions: layouts
// across the 1 MiB pieces the text is read in, requests, limits and the
// scripted outputs.
#include "preview.h"
#include "tool_input.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace {

using kilnutil_cli::PreviewFormat;
using kilnutil_cli::PreviewOptions;

constexpr std::size_t kPiece = 1 << 20;

struct PreviewResult {
  int rc;
  std::string output;
};

PreviewResult preview(const std::string& bytes, PreviewOptions options) {
  const std::filesystem::path path = kilnutil_cli_test::temporary_path("kilnutil_tool_preview");
  auto input = kilnutil_cli_test::piped(bytes);
  kilnutil_cli::OutputFile output;
  EXPECT_TRUE(output.open(path.string()));
  std::ostringstream silenced;
  std::streambuf* saved = std::cerr.rdbuf(silenced.rdbuf());
  const int rc = kilnutil_cli::preview_input(*input, options, &output);
  std::cerr.rdbuf(saved);
  output.finish();  // closed before it is read back and removed
  std::stringstream text;
  text << std::ifstream(path, std::ios::binary).rdbuf();
  std::filesystem::remove(path);
  return {rc, text.str()};
}

PreviewOptions csv_options(std::string rows = "", std::string cols = "") {
  PreviewOptions options;
  options.format = PreviewFormat::kCsv;
  options.rows = std::move(rows);
  options.cols = std::move(cols);
  return options;
}

// A table whose records cross the piece boundary in the awkward places.
std::string filler_rows(std::size_t bytes) {
  std::string text = "a,b\n";
  for (int i = 0; text.size() < bytes; ++i) text += std::to_string(i % 10) + ",x\n";
  return text;
}

TEST(ToolPreview, RecordsAcrossPieces) {
  struct Case {
    const char* name;
    std::string tail;  // written so that it starts just before the piece boundary
    std::string rows;
    std::string expected;
  };
  const Case cases[] = {
      {"CR at the boundary, LF after it", "7,y\r\n8,z\r\n", "", "7,y\n8,z\n"},
      {"quoted line end across the boundary", "7,\"line one\nline two\"\n8,z\n", "", "7,\"line one\nline two\"\n8,z\n"},
      {"doubled quote across the boundary", "7,\"say \"\"hi\"\"\"\n", "", "7,\"say \"\"hi\"\"\"\n"},
      {"CR-only line ends", "7,y\r8,z\r", "", "7,y\n8,z\n"},
  };
  for (const Case& c : cases) {
    const std::string head = filler_rows(kPiece - 4);
    const std::string text = head + c.tail;
    const PreviewResult result = preview(text, csv_options());
    ASSERT_EQ(result.rc, 0) << c.name;
    ASSERT_GE(result.output.size(), c.expected.size()) << c.name;
    EXPECT_EQ(result.output.substr(result.output.size() - c.expected.size()), c.expected) << c.name;
  }
}

TEST(ToolPreview, RequestsLimitsAndFormats) {
  const std::string table = "id;value;note\n1;1,5;a\n2;2,5;b\n3;3,5;c\n4;4,5;d\n5;5,5;e\n6;6,5;f\n";
  struct Case {
    const char* name;
    PreviewOptions options;
    std::string expected;
  };
  PreviewOptions limited = csv_options();
  limited.limit = 2;
  PreviewOptions ndjson = csv_options("2:3", "2");
  ndjson.format = PreviewFormat::kNdjson;
  PreviewOptions no_header = csv_options("1:2");
  no_header.header = false;
  const Case cases[] = {
      {"everything", csv_options(), "id,value,note\n1,1.5,a\n2,2.5,b\n3,3.5,c\n4,4.5,d\n5,5.5,e\n6,6.5,f\n"},
      {"rows 2:0 except 5", csv_options("2:0 ~5", "1 2"), "id,value\n1,1.5\n2,2.5\n3,3.5\n5,5.5\n6,6.5\n"},
      {"blocks of 2 skipping 1", csv_options("2:0|2-1", "1"), "id\n1\n2\n4\n5\n"},
      {"columns from 2 on", csv_options("3", "2:0"), "value,note\n2.5,b\n"},
      {"a limit", limited, "id,value,note\n1,1.5,a\n2,2.5,b\n"},
      {"one object per row", ndjson, "{\"row\":2,\"value\":1.5}\n{\"row\":3,\"value\":2.5}\n"},
      {"no header", no_header, "1,2,3\nid,value,note\n1,1.5,a\n"},
  };
  for (const Case& c : cases) {
    const PreviewResult result = preview(table, c.options);
    EXPECT_EQ(result.rc, 0) << c.name;
    EXPECT_EQ(result.output, c.expected) << c.name;
  }
}

TEST(ToolPreview, TableAndJson) {
  PreviewOptions table;
  table.width = 6;
  const PreviewResult shown = preview("name,value\nMünchen-Riem,1.25\nKöln,\n", table);
  EXPECT_EQ(shown.rc, 0);
  EXPECT_EQ(shown.output.substr(0, shown.output.find("\n\n")),
            "row  name    value\n"
            "  2  Münch…   1.25\n"
            "  3  Köln    --");
  PreviewOptions json;
  json.format = PreviewFormat::kJson;
  json.path = "in\xFF.csv";  // a name that is not UTF-8 still gives valid JSON
  const PreviewResult document = preview("x\n\"a\tb\"\n", json);
  const std::string start =
      "{\"file\":\"in\xEF\xBF\xBD.csv\",\"columns\":[{\"column\":1,\"name\":\"x\"}],\"rows\":[{\"row\":2,\"cells\":";
  EXPECT_EQ(document.output.substr(0, start.size()), start);
  EXPECT_NE(document.output.find("\"text\":\"a\\tb\""), std::string::npos);
}

// The table fixes its column widths from the first 200 rows shown; later,
// wider cells are cut to those widths rather than breaking the alignment.
TEST(ToolPreview, TableWidthsAfterTheFirstRows) {
  std::string text = "n,word\n";
  for (int i = 0; i < 1200; ++i) text += std::to_string(i % 10) + (i < 200 ? ",ab\n" : ",abcdef\n");
  PreviewOptions options;
  options.limit = 0;
  const PreviewResult result = preview(text, options);
  EXPECT_EQ(result.rc, 0);
  EXPECT_NE(result.output.find("\n201  9  ab\n"), std::string::npos);
  EXPECT_NE(result.output.find("\n202  0  abc\xE2\x80\xA6\n"), std::string::npos);
  EXPECT_NE(result.output.find("\n1201  9  abc\xE2\x80\xA6\n"), std::string::npos);
}

TEST(ToolPreview, NamesAndRequestsThatWantNothing) {
  PreviewOptions repeated = csv_options();
  repeated.format = PreviewFormat::kNdjson;
  EXPECT_EQ(preview("x;x;y\n1;2;3\n", repeated).output, "{\"row\":2,\"x\":1,\"x (2)\":2,\"y\":3}\n");
  EXPECT_EQ(preview("a,b\n1,2\n3,4\n", csv_options("~2")).output, "a,b\n");
  PreviewOptions skipped = csv_options();
  skipped.skip = 10;
  EXPECT_EQ(preview("a,b\n1,2\n", skipped).output, "1\n");
}

TEST(ToolPreview, FailuresExitWithOne) {
  const struct {
    const char* name;
    std::string bytes;
  } cases[] = {
      {"binary", std::string("a,b\n\0\0\0", 7)},
      {"unclosed quote", "a,b\n\"1,2\n3,4\n"},
      {"invalid UTF-8 after valid", "a,b\n\xC3\xA9,\xC3\xA9\n\xC3\xA9,\xFF\n"},
  };
  for (const auto& c : cases) EXPECT_EQ(preview(c.bytes, csv_options()).rc, 1) << c.name;
}

}  // namespace
