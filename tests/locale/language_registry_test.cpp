// The Windows backend of the stored language: the choice is the string value
// "Language" under HKEY_CURRENT_USER\Software\kilnutil, and with none stored
// the user's default interface language decides (Windows only; the POSIX
// backend is checked in language_settings_file_test.cpp).
#include "language_fixture.h"
#include "locale/language_state.h"
#include "support/language_store.h"

#include <kilnutil/frame.h>
#include <kilnutil/locale.h>

#include <gtest/gtest.h>

#include <windows.h>

#include <string>

namespace {

constexpr wchar_t kKey[] = L"Software\\kilnutil";

using LanguageRegistry = kiln_test::LanguageFixture;

TEST_F(LanguageRegistry, ChoiceIsAStringValueOfTheApplicationKey) {
  ASSERT_EQ(KILNUTIL_SetResourceLang("Japanese", nullptr, nullptr), 1);
  wchar_t text[8] = {};
  DWORD type = 0, size = sizeof text;
  ASSERT_EQ(RegGetValueW(HKEY_CURRENT_USER, kKey, L"Language", RRF_RT_ANY, &type, text, &size), ERROR_SUCCESS);
  EXPECT_EQ(type, static_cast<DWORD>(REG_SZ));
  EXPECT_EQ(std::wstring(text), L"J");

  // A value of another type is no choice.
  const DWORD number = 'G';
  ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, kKey, L"Language", REG_DWORD, &number, sizeof number), ERROR_SUCCESS);
  kiln::locale::forget_languages();
  const unsigned with_number = KILNUTIL_UserLanguageIndex();
  store_.clear();
  kiln::locale::forget_languages();
  EXPECT_EQ(with_number, KILNUTIL_UserLanguageIndex());
}

// Nothing stored: the primary language of the user's default interface
// language names the language (none when it is none of the four).
TEST_F(LanguageRegistry, UserInterfaceLanguageDecidesWithoutAChoice) {
  unsigned expected = KILNUTIL_LANGUAGE_UNDETERMINED;
  switch (PRIMARYLANGID(GetUserDefaultUILanguage())) {
    case LANG_ENGLISH: expected = KILNUTIL_LANGUAGE_ENGLISH; break;
    case LANG_GERMAN: expected = KILNUTIL_LANGUAGE_GERMAN; break;
    case LANG_JAPANESE: expected = KILNUTIL_LANGUAGE_JAPANESE; break;
    case LANG_CHINESE: expected = KILNUTIL_LANGUAGE_CHINESE; break;
    default: break;
  }
  EXPECT_EQ(KILNUTIL_UserLanguageIndex(), expected);
}

}  // namespace
