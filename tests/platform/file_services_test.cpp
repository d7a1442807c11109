// The platform's file services with UTF-8 paths outside ASCII, on either
// backend: whole-file replacement, temporary files, existence and removal,
// and the settings store where the platform has one.
#include "platform/file_bytes.h"
#include "platform/file_replacement.h"
#include "platform/file_system.h"
#include "platform/user_settings.h"
#include "support/language_store.h"
#include "unicode/test_files.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

namespace {

using kiln::platform::ReplaceStatus;

std::string read_back(const std::string& path) {
  kiln::platform::FileBytes bytes;
  if (kiln::platform::read_whole_file(path.c_str(), bytes) != kiln::platform::ReadStatus::kOk) return "";
  return std::string(reinterpret_cast<const char*>(bytes.data.get()), bytes.size);
}

TEST(PlatformFiles, ReplacementWithANonAsciiPathKeepsOnlyTheNewContents) {
  kiln_test::TempFolder folder;
  const std::string path = folder.file("caf\xC3\xA9 \xE6\x97\xA5.ini");  // "café 日.ini"
  EXPECT_FALSE(kiln::platform::file_exists(path.c_str()));
  EXPECT_EQ(kiln::platform::replace_file(path.c_str(), {{"first", 5}}), ReplaceStatus::kDone);
  EXPECT_EQ(kiln::platform::replace_file(path.c_str(), {{"second ", 7}, {"part", 4}}), ReplaceStatus::kDone);
  EXPECT_EQ(read_back(path), "second part");
  EXPECT_EQ(folder.entry_count(), 1u);  // no temporary file left beside it
  EXPECT_TRUE(kiln::platform::remove_file(path.c_str()));
  EXPECT_FALSE(kiln::platform::file_exists(path.c_str()));
}

TEST(PlatformFiles, ReplacementRefusesWhenTheOriginalVanished) {
  kiln_test::TempFolder folder;
  const std::string path = folder.file("vanishing.txt");
  kiln_test::write_file(path, "old");
  kiln::platform::FileReplacement replacement(path.c_str());
  ASSERT_TRUE(replacement.create());
  ASSERT_TRUE(replacement.write("new", 3));
  ASSERT_TRUE(kiln::platform::remove_file(path.c_str()));
  EXPECT_EQ(replacement.commit(), ReplaceStatus::kVanished);
  EXPECT_EQ(folder.entry_count(), 0u);
}

TEST(PlatformFiles, FileHandlesFollowTheCreationRules) {
  using kiln::platform::invalid_file_handle;
  using kiln::platform::OpenRule;
  kiln_test::TempFolder folder;
  const std::string path = folder.file("\xC3\xBC.bin");  // "ü.bin"
  const auto open = [&](OpenRule rule) { return kiln::platform::open_file_handle(path.c_str(), true, true, rule, false); };
  EXPECT_EQ(open(OpenRule::kOpenExisting), invalid_file_handle());
  void* created = open(OpenRule::kCreateNew);
  ASSERT_NE(created, invalid_file_handle());
  EXPECT_TRUE(kiln::platform::close_file_handle(created));
  EXPECT_TRUE(kiln::platform::file_exists(path.c_str()));
  EXPECT_EQ(open(OpenRule::kCreateNew), invalid_file_handle());  // exists already
  void* reopened = open(OpenRule::kTruncateExisting);
  ASSERT_NE(reopened, invalid_file_handle());
  EXPECT_TRUE(kiln::platform::close_file_handle(reopened));
}

TEST(PlatformFiles, TemporaryFileIsMadeInTheFolderWithThePrefix) {
  kiln_test::TempFolder folder;
  std::string path;
  std::FILE* stream = kiln::platform::create_temporary_file(folder.path().string(), "VU8", path);
  ASSERT_NE(stream, nullptr);
  EXPECT_EQ(std::fwrite("x", 1, 1, stream), 1u);
  std::fclose(stream);
  EXPECT_NE(path.find("VU8"), std::string::npos) << path;
  EXPECT_EQ(read_back(path), "x");
  EXPECT_FALSE(kiln::platform::temporary_folder().empty());
}

TEST(PlatformSettings, StoredValuesComeBackWhereThePlatformKeepsThem) {
  if (!kiln::platform::has_settings_store()) GTEST_SKIP() << "no settings store: the library keeps its own file";
  const kiln_test::LanguageStore store;  // the user's value (or none) put back afterwards
  ASSERT_TRUE(kiln::platform::write_setting("Language", "J"));
  std::string value;
  ASSERT_TRUE(kiln::platform::read_setting("Language", value));
  EXPECT_EQ(value, "J");
  EXPECT_FALSE(kiln::platform::read_setting("No such value", value));
}

}  // namespace
