// Argument parsing of the preview and the text options: accepted forms and
// usage errors (exit code 2), never a silently ignored option.
#include "preview.h"

#include <gtest/gtest.h>

#include <sstream>
#include <vector>

namespace {

int parse(std::vector<std::string> words, kilnutil_cli::PreviewOptions& options) {
  std::vector<char*> argv;
  for (std::string& word : words) argv.push_back(word.data());
  std::ostringstream silenced;
  std::streambuf* saved = std::cerr.rdbuf(silenced.rdbuf());
  const int rc = kilnutil_cli::parse_preview_options(kilnutil_cli::Args(argv.data(), argv.size()), options);
  std::cerr.rdbuf(saved);
  return rc;
}

TEST(ToolPreviewOptions, AcceptedForms) {
  kilnutil_cli::PreviewOptions o;
  ASSERT_EQ(parse({"f.csv", "--sep", "tab", "--decimal", ",", "--skip", "3", "--comment", "%", "--no-header", "--limit",
                   "0", "--width", "10", "--ndjson", "-c", "cp1250", "--replace", "--force"},
                  o),
            0);
  EXPECT_EQ(o.path, "f.csv");
  EXPECT_EQ(o.separator, '\t');
  EXPECT_EQ(o.decimal, ',');
  EXPECT_EQ(o.skip, 3u);
  EXPECT_EQ(o.comment, '%');
  EXPECT_EQ(o.header, false);
  EXPECT_EQ(o.limit, 0);
  EXPECT_EQ(o.width, 10u);
  EXPECT_EQ(o.format, kilnutil_cli::PreviewFormat::kNdjson);
  ASSERT_TRUE(o.decode.forced.has_value());
  EXPECT_EQ(o.decode.forced->code_page, 1250u);
  EXPECT_TRUE(o.decode.replace && o.decode.force);
  kilnutil_cli::PreviewOptions blank;
  ASSERT_EQ(parse({"-", "--sep", "blank", "--comment", ""}, blank), 0);
  EXPECT_EQ(blank.separator, ' ');
  EXPECT_EQ(blank.comment, '\0');
}

TEST(ToolPreviewOptions, UsageErrors) {
  const std::vector<std::vector<std::string>> cases = {
      {},
      {"a.csv", "b.csv"},
      {"a.csv", "--rows"},
      {"a.csv", "--rows", "nothing"},
      {"a.csv", "--cols", std::string(300, '1')},
      {"a.csv", "--limit", "-1"},
      {"a.csv", "--limit", "ten"},
      {"a.csv", "--width", "1"},
      {"a.csv", "--sep", "ab"},
      {"a.csv", "--sep", "\xC3\xA9"},
      {"a.csv", "--decimal", ";"},
      {"a.csv", "--comment", "##"},
      {"a.csv", "-c", "klingon"},
      {"a.csv", "--codepage"},
      {"a.csv", "--frobnicate"},
  };
  for (const auto& words : cases) {
    kilnutil_cli::PreviewOptions o;
    std::string joined;
    for (const std::string& w : words) joined += w + " ";
    EXPECT_EQ(parse(words, o), 2) << joined;
  }
}

}  // namespace
