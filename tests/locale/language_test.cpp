// The library's own language logic, the same on every platform: what a
// stored choice means, the languages it sets, storing a new choice. Where the
// choice is kept and the platform's language when none is stored are checked
// per platform (language_settings_file_test.cpp on POSIX,
// language_registry_test.cpp on Windows).
#include "language_fixture.h"
#include "locale/language_state.h"
#include "support/language_store.h"

#include <kilnutil/frame.h>
#include <kilnutil/locale.h>

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace {

class Language : public kiln_test::LanguageFixture {
protected:
  // The resource language determined afresh and the code page it set.
  std::pair<unsigned, unsigned> determined() {
    kiln::locale::forget_languages();
    const unsigned index = KILNUTIL_ResourceLanguageIndex(0, 1);
    const unsigned code_page = set_code_page_for_string_process(0xFFFFFFFFu);
    EXPECT_EQ(KILNUTIL_UserLanguageIndex(), index);
    return {index, code_page};
  }
};

// A stored choice is read by its first letter, in either case; a value that
// names no language leaves the decision to the platform, as no value does.
TEST_F(Language, StoredChoice) {
  const auto platform_choice = determined();
  struct Case {
    const char* value;
    unsigned index, code_page;
  };
  const Case cases[] = {
      {"G", 2, 1252},
      {"japanese", 3, 932},
      {"c", 4, 936},
      {"English", 1, 0xFFFFFFFF},
      {"X", platform_choice.first, platform_choice.second},
      {"", platform_choice.first, platform_choice.second},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.value);
    store_.store(c.value);
    EXPECT_EQ(determined(), std::make_pair(c.index, c.code_page));
  }
}

TEST_F(Language, JapaneseStored) {
  store_.store("J");
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
  const unsigned platform_index = KILNUTIL_ResourceLanguageIndex(0, 1);
  char current[2] = {'?', '?'}, stored[2] = {'?', '?'};
  EXPECT_EQ(KILNUTIL_SetResourceLang("Japanese", nullptr, stored), 1);
  EXPECT_EQ(stored[0], '?');  // nothing was stored yet
  EXPECT_EQ(store_.stored(), "J");
  EXPECT_EQ(KILNUTIL_ResourceLanguageIndex(0, 1), platform_index);  // the process keeps its language

  KILNUTIL_ResourceLanguageIndex(KILNUTIL_LANGUAGE_GERMAN, 0);
  EXPECT_EQ(KILNUTIL_SetResourceLang("x", current, stored), 1);
  EXPECT_STREQ(current, "G");
  EXPECT_STREQ(stored, "J");
  EXPECT_EQ(KILNUTIL_SetResourceLang("german", nullptr, nullptr), 1);  // letters compare exactly
  EXPECT_EQ(KILNUTIL_SetResourceLang("", nullptr, nullptr), 0);
  EXPECT_EQ(KILNUTIL_SetResourceLang(nullptr, nullptr, nullptr), 0);
  EXPECT_EQ(store_.stored(), "J");

  EXPECT_EQ(KILNUTIL_SetResourceLang("G", nullptr, nullptr), 1);
  EXPECT_EQ(store_.stored(), "G");
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
