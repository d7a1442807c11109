// The POSIX backend of the stored language: the choice in settings.ini of the
// configuration folder, and the locale variables deciding when none is
// stored (Windows keeps the choice in the registry and takes the user's
// interface language instead: language_registry_test.cpp).
#include "language_fixture.h"
#include "locale/language_state.h"
#include "support/environment.h"
#include "support/language_store.h"
#include "unicode/test_files.h"

#include <kilnutil/frame.h>
#include <kilnutil/locale.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace {

class LanguageSettingsFile : public kiln_test::LanguageFixture {
protected:
  static std::string folder() { return kiln_test::environment_variable("KILNUTIL_CONFIG_DIR").value_or(""); }
  static std::string settings_path() { return folder() + "/settings.ini"; }
  static void write_settings(const std::string& text) {
    std::filesystem::create_directories(kiln_test::utf8_path(folder()));
    kiln_test::write_file(settings_path(), text);
  }
};

struct DeterminationCase {
  const char* settings;  // null: no file
  const char* lang;      // LANG, null: unset
  unsigned index;
  unsigned code_page;
};

TEST_F(LanguageSettingsFile, DeterminationTable) {
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
    store_.clear();
    if (c.settings != nullptr) write_settings(c.settings);
    const kiln_test::ScopedVariable lang("LANG", c.lang ? std::optional<std::string>(c.lang) : std::nullopt);
    kiln::locale::forget_languages();
    EXPECT_EQ(KILNUTIL_ResourceLanguageIndex(0, 1), c.index);
    EXPECT_EQ(set_code_page_for_string_process(0xFFFFFFFFu), c.code_page);
    EXPECT_EQ(KILNUTIL_UserLanguageIndex(), c.index);
  }
}

TEST_F(LanguageSettingsFile, MessagesLocaleComesBeforeLang) {
  const kiln_test::ScopedVariable messages("LC_MESSAGES", "ja_JP.UTF-8");
  const kiln_test::ScopedVariable lang("LANG", "de_DE");
  EXPECT_EQ(KILNUTIL_ResourceLanguageIndex(0, 1), KILNUTIL_LANGUAGE_JAPANESE);
}

// The file is written with the key replaced in place or added to [General],
// every other line kept.
TEST_F(LanguageSettingsFile, StoringKeepsTheRestOfTheFile) {
  EXPECT_EQ(KILNUTIL_SetResourceLang("Japanese", nullptr, nullptr), 1);
  EXPECT_EQ(kiln_test::read_file(settings_path()), "[General]\nLanguage=J\n");
  write_settings("# mine\n[Window]\nx=1\n[General]\nTheme=dark\nLanguage=E\n");
  EXPECT_EQ(KILNUTIL_SetResourceLang("C", nullptr, nullptr), 1);
  EXPECT_EQ(kiln_test::read_file(settings_path()), "# mine\n[Window]\nx=1\n[General]\nTheme=dark\nLanguage=C\n");
  write_settings("[General]\nTheme=dark\n[Window]\n");
  EXPECT_EQ(KILNUTIL_SetResourceLang("G", nullptr, nullptr), 1);
  EXPECT_EQ(kiln_test::read_file(settings_path()), "[General]\nLanguage=G\nTheme=dark\n[Window]\n");
}

}  // namespace
