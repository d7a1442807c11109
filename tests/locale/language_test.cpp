#include "locale/language_state.h"
#include "unicode/test_files.h"

#include <kilnutil/frame.h>
#include <kilnutil/locale.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace {

using kiln_test::TempFolder;

// Points the configuration folder at a private temporary folder and sets the
// locale variables; everything is put back afterwards, so the user's own
// settings are never read or written.
class Language : public ::testing::Test {
protected:
  void SetUp() override {
    for (const char* name : kVariables) {
      const char* value = std::getenv(name);
      saved_.emplace_back(name, value != nullptr ? std::optional<std::string>(value) : std::nullopt);
      unsetenv(name);
    }
    setenv("KILNUTIL_CONFIG_DIR", (folder_.path() / "config").c_str(), 1);
    saved_code_page_ = set_code_page_for_string_process(0xFFFFFFFFu);
    kiln::locale::forget_languages();
  }
  void TearDown() override {
    for (const auto& [name, value] : saved_) {
      if (value) setenv(name, value->c_str(), 1);
      else unsetenv(name);
    }
    kiln::locale::forget_languages();
    set_code_page_for_string_process(saved_code_page_);
  }
  std::string settings_path() const { return (folder_.path() / "config" / "settings.ini").string(); }
  void store(const std::string& text) {
    std::filesystem::create_directories(folder_.path() / "config");
    kiln_test::write_file(settings_path(), text);
  }

  static constexpr const char* kVariables[] = {"KILNUTIL_CONFIG_DIR", "XDG_CONFIG_HOME", "LC_ALL", "LC_MESSAGES",
                                               "LANG"};
  TempFolder folder_;
  std::vector<std::pair<const char*, std::optional<std::string>>> saved_;
  unsigned saved_code_page_ = 0;
};

struct DeterminationCase {
  const char* settings;  // null: no file
  const char* lang;      // LANG, null: unset
  unsigned index;
  unsigned code_page;
};

TEST_F(Language, DeterminationTable) {
  const DeterminationCase cases[] = {
      {nullptr, "ja_JP.UTF-8", 3, 932},
      {nullptr, "de_DE", 2, 1252},
      {nullptr, "zh_CN.GB18030", 4, 936},
      {nullptr, "en_US.UTF-8", 1, 0xFFFFFFFF},
      {nullptr, "C", 0, 0xFFFFFFFF},
      {nullptr, "fr_FR", 0, 0xFFFFFFFF},
      {nullptr, nullptr, 0, 0xFFFFFFFF},
      {"[General]\nLanguage=G\n", "ja_JP", 2, 1252},  // the stored choice comes first
      {"[General]\r\nlanguage = japanese\r\n", nullptr, 3, 932},
      {"[Other]\nLanguage=G\n", "zh_CN", 4, 936},  // only the [General] section counts
      {"[General]\nLanguage=X\n", "de", 2, 1252},  // an unknown letter falls back
  };
  for (const DeterminationCase& c : cases) {
    SCOPED_TRACE(std::string(c.settings ? c.settings : "-") + " / " + (c.lang ? c.lang : "-"));
    std::filesystem::remove(settings_path());
    if (c.settings != nullptr) store(c.settings);
    if (c.lang != nullptr) setenv("LANG", c.lang, 1);
    else unsetenv("LANG");
    kiln::locale::forget_languages();
    EXPECT_EQ(KILNUTIL_ResourceLanguageIndex(0, 1), c.index);
    EXPECT_EQ(set_code_page_for_string_process(0xFFFFFFFFu), c.code_page);
    EXPECT_EQ(KILNUTIL_UserLanguageIndex(), c.index);
  }
}

TEST_F(Language, JapaneseFromTheLocale) {
  setenv("LC_MESSAGES", "ja_JP.UTF-8", 1);
  setenv("LANG", "de_DE", 1);  // LC_MESSAGES comes before LANG
  EXPECT_EQ(KILNUTIL_language_charset(), KILNUTIL_CHARSET_SHIFTJIS);
  EXPECT_STREQ(KILNUTIL_language_str(), "Japanese");
  EXPECT_STREQ(KILNUTIL_language_character(KILNUTIL_LANGUAGE_CURRENT, 0), "J");
  EXPECT_EQ(KILNUTIL_GetResourceLanguageIDEx(-1), 0x0411);
  EXPECT_EQ(KILNUTIL_setup_resource_language(), 0x0411u);
  EXPECT_EQ(kiln::locale::thread_language(), 0x0411);
  EXPECT_EQ(KILNUTIL_setup_resource_language(), 0x0411u);  // nothing to change

  // Setting the resource language leaves the user language as determined.
  EXPECT_EQ(KILNUTIL_ResourceLanguageIndex(KILNUTIL_LANGUAGE_GERMAN, 0), KILNUTIL_LANGUAGE_JAPANESE);
  EXPECT_EQ(set_code_page_for_string_process(0xFFFFFFFFu), 1252u);
  EXPECT_STREQ(KILNUTIL_language_character(KILNUTIL_LANGUAGE_CURRENT, 1), "J");
  EXPECT_STREQ(KILNUTIL_language_character(KILNUTIL_LANGUAGE_CURRENT, 0), "G");
  EXPECT_EQ(KILNUTIL_ResourceLanguageIndex(7, 0), KILNUTIL_LANGUAGE_GERMAN);
  EXPECT_EQ(set_code_page_for_string_process(0xFFFFFFFFu), 0xFFFFFFFFu);
  EXPECT_STREQ(KILNUTIL_language_str(), "English");
  EXPECT_EQ(KILNUTIL_GetResourceLanguageIDEx(-1), 0);
}

TEST_F(Language, StoringTheChoice) {
  setenv("LANG", "de_DE", 1);
  char current[2] = {'?', '?'}, stored[2] = {'?', '?'};
  EXPECT_EQ(KILNUTIL_SetResourceLang("Japanese", current, stored), 1);
  EXPECT_STREQ(current, "G");
  EXPECT_EQ(stored[0], '?');  // nothing was stored yet
  EXPECT_EQ(kiln_test::read_file(settings_path()), "[General]\nLanguage=J\n");
  EXPECT_EQ(KILNUTIL_ResourceLanguageIndex(0, 1), KILNUTIL_LANGUAGE_GERMAN);  // the process keeps its language

  EXPECT_EQ(KILNUTIL_SetResourceLang("x", nullptr, stored), 1);
  EXPECT_STREQ(stored, "J");
  EXPECT_EQ(KILNUTIL_SetResourceLang("german", nullptr, nullptr), 1);  // letters compare exactly
  EXPECT_EQ(KILNUTIL_SetResourceLang("", nullptr, nullptr), 0);
  EXPECT_EQ(KILNUTIL_SetResourceLang(nullptr, nullptr, nullptr), 0);
  EXPECT_EQ(kiln_test::read_file(settings_path()), "[General]\nLanguage=J\n");

  // Other settings are kept; the key is replaced in place or added.
  store("# mine\n[Window]\nx=1\n[General]\nTheme=dark\nLanguage=E\n");
  EXPECT_EQ(KILNUTIL_SetResourceLang("C", nullptr, nullptr), 1);
  EXPECT_EQ(kiln_test::read_file(settings_path()), "# mine\n[Window]\nx=1\n[General]\nTheme=dark\nLanguage=C\n");
  store("[General]\nTheme=dark\n[Window]\n");
  EXPECT_EQ(KILNUTIL_SetResourceLang("G", nullptr, nullptr), 1);
  EXPECT_EQ(kiln_test::read_file(settings_path()), "[General]\nLanguage=G\nTheme=dark\n[Window]\n");
  kiln::locale::forget_languages();
  EXPECT_EQ(KILNUTIL_UserLanguageIndex(), KILNUTIL_LANGUAGE_GERMAN);
}

TEST_F(Language, LookupTables) {
  struct IndexCase {
    const char* text;
    int by_name;
    unsigned index;
  };
  const IndexCase indices[] = {
      {"german", 1, 2}, {"german", 0, 255}, {"German", 0, 2},          {"JAPANESE", 1, 3},  {"Chinese", 1, 4},
      {"E", 0, 1},      {"e", 0, 255},      {"French", 1, 0xFFFFFFFF}, {"", 0, 0xFFFFFFFF}, {nullptr, 1, 0xFFFFFFFF},
  };
  for (const IndexCase& c : indices) {
    SCOPED_TRACE(c.text ? c.text : "null");
    EXPECT_EQ(KILNUTIL_get_res_language_index(c.text, c.by_name), c.index);
  }
  struct PathCase {
    unsigned index;
    const char* path;
  };
  const PathCase paths[] = {{0, "Localization\\E\\"},      {1, "Localization\\E\\"}, {2, "Localization\\G\\"},
                            {3, "Localization\\J\\"},      {4, "Localization\\C\\"}, {9, "Localization\\E\\"},
                            {0xFFFFFFFF, "Localization\\"}};
  for (const PathCase& c : paths) {
    char buffer[32] = "";
    EXPECT_EQ(KILNUTIL_GetDefLocalPath(buffer, sizeof buffer, c.index), c.index);
    EXPECT_STREQ(buffer, c.path);
  }
  char small[6];
  KILNUTIL_GetDefLocalPath(small, sizeof small, 2);
  EXPECT_STREQ(small, "Local");
  const unsigned short identifiers[] = {0, 0x0409, 0x0407, 0x0411, 0x0804, 0};
  for (int i = 0; i < 6; ++i) EXPECT_EQ(KILNUTIL_GetResourceLanguageIDEx(i), identifiers[i]);
  EXPECT_STREQ(KILNUTIL_language_character(4, 0), "C");
  EXPECT_STREQ(KILNUTIL_language_character(0, 0), "E");
  EXPECT_STREQ(KILNUTIL_language_character(200, 1), "E");
}

}  // namespace
