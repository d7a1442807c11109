#include "platform/codepage.h"
#include "platform/host_system.h"

#include <kilnutil/export.h>

#include <gtest/gtest.h>

#include <clocale>
#include <string>
#include <vector>

namespace {

using kiln::platform::multibyte_to_wide;
using kiln::platform::wide_to_multibyte;

const unsigned kCodePages[] = {65001, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258, 874, 932, 936, 949, 950};

std::basic_string<KILN_WCHAR> to_wide(unsigned cp, const std::string& bytes) {
  const int n = multibyte_to_wide(cp, bytes.data(), static_cast<int>(bytes.size()), nullptr, 0);
  std::basic_string<KILN_WCHAR> out(static_cast<size_t>(n), KILN_TEXT('\0'));
  EXPECT_EQ(multibyte_to_wide(cp, bytes.data(), static_cast<int>(bytes.size()), out.data(), n), n);
  return out;
}

std::string to_bytes(unsigned cp, const std::basic_string<KILN_WCHAR>& units, bool* used_default = nullptr) {
  const int n = wide_to_multibyte(cp, units.data(), static_cast<int>(units.size()), nullptr, 0);
  std::string out(static_cast<size_t>(n), '\0');
  EXPECT_EQ(wide_to_multibyte(cp, units.data(), static_cast<int>(units.size()), out.data(), n, nullptr, used_default),
            n);
  return out;
}

TEST(CodePage, EveryAsciiByteMapsToItselfBothWaysInEverySupportedPage) {
  for (unsigned cp : kCodePages) {
    ASSERT_TRUE(kiln::platform::is_code_page_supported(cp)) << cp;
    for (int b = 0; b < 0x80; ++b) {
      const std::string byte(1, static_cast<char>(b));
      EXPECT_EQ(to_wide(cp, byte), std::basic_string<KILN_WCHAR>(1, static_cast<KILN_WCHAR>(b))) << "cp " << cp << " byte " << b;
      EXPECT_EQ(to_bytes(cp, std::basic_string<KILN_WCHAR>(1, static_cast<KILN_WCHAR>(b))), byte) << "cp " << cp << " unit " << b;
    }
  }
}

TEST(CodePage, KnownCharactersOfTheWindowsTables) {
  EXPECT_EQ(to_wide(1252, "\x80\xE9\x9F"), KILN_TEXT("\u20AC\u00E9\u0178"));
  EXPECT_EQ(to_wide(932,
                    "\x82\xA0"
                    "a\x83\x41"),
            KILN_TEXT("\u3042a\u30A2"));  // trail byte 0x41 is not an "A"
  EXPECT_EQ(to_wide(936, "\xC4\xE3"), KILN_TEXT("\u4F60"));
  EXPECT_EQ(to_wide(949, "\xB0\xA1"), KILN_TEXT("\uAC00"));
  EXPECT_EQ(to_wide(950, "\xA4\x40"), KILN_TEXT("\u4E00"));
  EXPECT_EQ(to_bytes(932, KILN_TEXT("\u3042")), "\x82\xA0");
  EXPECT_EQ(to_bytes(65001, KILN_TEXT("\U0001F600")), "\xF0\x9F\x98\x80");
}

TEST(CodePage, InvalidInputIsReplacedNeverRejected) {
  EXPECT_EQ(to_wide(65001,
                    "a\xFF"
                    "b"),
            KILN_TEXT("a\uFFFDb"));
  EXPECT_EQ(to_wide(65001, "\xE6\x97"), KILN_TEXT("\uFFFD"));  // truncated sequence at the end
  EXPECT_EQ(to_bytes(65001, std::basic_string<KILN_WCHAR>(1, KILN_TEXT('\xD800'))), "\xEF\xBF\xBD");
}

TEST(CodePage, UnmappableCharactersUseTheDefaultAndSayToo) {
  bool used = false;
  EXPECT_EQ(to_bytes(1252, KILN_TEXT("a\u4E00"), &used), "a?");
  EXPECT_TRUE(used);
  EXPECT_EQ(to_bytes(1252, KILN_TEXT("ab\u00E9"), &used), "ab\xE9");
  EXPECT_FALSE(used);
  char out[8];
  EXPECT_EQ(wide_to_multibyte(1252, KILN_TEXT("\u4E00"), 1, out, 8, "#"), 1);
  EXPECT_EQ(out[0], '#');
  // As on Windows, UTF-8 takes neither a default character nor the report.
  EXPECT_EQ(wide_to_multibyte(65001, KILN_TEXT("a"), 1, out, 8, nullptr, &used), 0);
}

TEST(CodePage, CountsWritesAndFailsLikeTheWindowsConverters) {
  EXPECT_EQ(multibyte_to_wide(1252, "abc", -1, nullptr, 0), 4);  // the NUL counts
  KILN_WCHAR small[2];
  EXPECT_EQ(multibyte_to_wide(1252, "abc", -1, small, 2), 0);     // does not fit
  EXPECT_EQ(multibyte_to_wide(1252, "abc", 0, small, 2), 0);      // nothing to convert
  EXPECT_EQ(multibyte_to_wide(12345, "abc", -1, nullptr, 0), 0);  // unknown code page
  KILN_WCHAR wide[4];
  ASSERT_EQ(multibyte_to_wide(1252, "ab", -1, wide, 4), 3);
  EXPECT_EQ(wide[2], 0);
}

// Where the ANSI code page is the system's (Windows), the C locale does not
// make it 1252: these checks need a process whose code page the test sets.
#define SKIP_UNLESS_LOCALE_SETS_ANSI_CODE_PAGE()                            \
  if (!kiln::platform::ansi_code_page_follows_process_locale()) {          \
    GTEST_SKIP() << "the ANSI code page is the system's, not the locale's"; \
  }

TEST(CodePage, WindowsAliasesNameTheAnsiPage) {
  SKIP_UNLESS_LOCALE_SETS_ANSI_CODE_PAGE();
  const std::string saved = std::setlocale(LC_ALL, nullptr);
  std::setlocale(LC_ALL, "C");  // ANSI code page 1252
  EXPECT_EQ(to_wide(0, "\x80"), KILN_TEXT("\u20AC"));
  EXPECT_EQ(to_wide(3, "\x80"), KILN_TEXT("\u20AC"));
  EXPECT_EQ(to_wide(1, "\x80"), KILN_TEXT("\u00C7"));  // OEM 437
  EXPECT_TRUE(kiln::platform::is_code_page_supported(2));
  std::setlocale(LC_ALL, saved.c_str());
}

TEST(CodePage, LeadBytesOnlyInDoubleBytePages) {
  EXPECT_TRUE(kiln::platform::is_lead_byte(932, 0x82));
  EXPECT_TRUE(kiln::platform::is_lead_byte(932, 0xE0));
  EXPECT_FALSE(kiln::platform::is_lead_byte(932, 0xA0));  // half-width katakana
  EXPECT_TRUE(kiln::platform::is_lead_byte(936, 0xFE));
  for (unsigned cp : {932u, 936u, 949u, 950u, 1252u, 65001u}) {
    EXPECT_FALSE(kiln::platform::is_lead_byte(cp, 0xFF)) << cp;
    EXPECT_FALSE(kiln::platform::is_lead_byte(cp, 'A')) << cp;
  }
  for (int b = 0; b < 256; ++b) EXPECT_FALSE(kiln::platform::is_lead_byte(1252, static_cast<unsigned char>(b)));
}

// The first and last lead byte of each double-byte page, and the bytes just
// outside; the set of pages that have a converter.
TEST(CodePage, LeadByteRangeEndsAndSupportedPages) {
  const struct {
    unsigned cp;
    unsigned char byte;
    bool lead;
  } cases[] = {
      {932, 0x80, false}, {932, 0x81, true},  {932, 0x9F, true}, {932, 0xDF, false}, {932, 0xFC, true},
      {932, 0xFD, false}, {936, 0x80, false}, {936, 0x81, true}, {949, 0xFE, true},  {950, 0x80, false},
  };
  for (const auto& c : cases)
    EXPECT_EQ(kiln::platform::is_lead_byte(c.cp, c.byte), c.lead) << c.cp << " " << int{c.byte};
  for (unsigned cp : kCodePages) EXPECT_TRUE(kiln::platform::is_code_page_supported(cp)) << cp;
  for (unsigned cp : {10000u, 20127u, 28591u, 20866u})
    EXPECT_TRUE(kiln::platform::is_code_page_supported(cp)) << cp;
  // Windows and ICU convert GB18030; Wine, the Windows build's test bed, does not.
  EXPECT_EQ(kiln::platform::is_code_page_supported(54936), !kiln::platform::runs_under_wine());
  for (unsigned cp : {12345u, 4u, 99999u}) EXPECT_FALSE(kiln::platform::is_code_page_supported(cp)) << cp;
}

TEST(CodePage, AnsiCodePageFollowsTheLocaleCodeset) {
  SKIP_UNLESS_LOCALE_SETS_ANSI_CODE_PAGE();
  const std::string saved = std::setlocale(LC_ALL, nullptr);
  std::setlocale(LC_ALL, "C");
  EXPECT_EQ(kiln::platform::ansi_code_page(), 1252u);
  if (std::setlocale(LC_ALL, "C.UTF-8") != nullptr) {
    EXPECT_EQ(kiln::platform::ansi_code_page(), 65001u);
  }
  std::setlocale(LC_ALL, saved.c_str());
}

}  // namespace
