// Encoding names a user gives to -c/--codepage.
#include "encoding_names.h"

#include <gtest/gtest.h>

namespace {

using kilnutil_cli::TextForm;

TEST(ToolEncodingNames, NamesAndNumbers) {
  struct Case {
    const char* name;
    TextForm form;
    unsigned code_page;
    const char* label;
  };
  const Case cases[] = {
      {"1252", TextForm::kCodePage, 1252, "Windows-1252 (code page 1252)"},
      {"CP1252", TextForm::kCodePage, 1252, "Windows-1252 (code page 1252)"},
      {"windows-1250", TextForm::kCodePage, 1250, "Windows-1250 (code page 1250)"},
      {"Shift_JIS", TextForm::kCodePage, 932, "Shift_JIS (code page 932)"},
      {"sjis", TextForm::kCodePage, 932, "Shift_JIS (code page 932)"},
      {"gbk", TextForm::kCodePage, 936, "GBK (code page 936)"},
      {"big5", TextForm::kCodePage, 950, "Big5 (code page 950)"},
      {"EUC-KR", TextForm::kCodePage, 949, "EUC-KR (code page 949)"},
      {"iso-8859-2", TextForm::kCodePage, 28592, "ISO-8859-2 (code page 28592)"},
      {"utf-8", TextForm::kUtf8, 65001, "UTF-8"},
      {"65001", TextForm::kUtf8, 65001, "UTF-8"},
      {"UTF-16LE", TextForm::kUtf16Le, 1200, "UTF-16LE"},
      {"utf_16_be", TextForm::kUtf16Be, 1201, "UTF-16BE"},
      {"utf-32le", TextForm::kUtf32Le, 12000, "UTF-32LE"},
      {"12001", TextForm::kUtf32Be, 12001, "UTF-32BE"},
  };
  for (const Case& c : cases) {
    const auto encoding = kilnutil_cli::encoding_from_name(c.name);
    ASSERT_TRUE(encoding.has_value()) << c.name;
    EXPECT_EQ(encoding->form, c.form) << c.name;
    EXPECT_EQ(encoding->code_page, c.code_page) << c.name;
    EXPECT_EQ(kilnutil_cli::encoding_label(*encoding), c.label) << c.name;
  }
}

TEST(ToolEncodingNames, UnknownNamesAreRefused) {
  for (const char* name : {"", "klingon", "cp", "99999", "0", "3", "1252x", "windows-", "utf-7"}) {
    EXPECT_FALSE(kilnutil_cli::encoding_from_name(name).has_value()) << name;
  }
}

}  // namespace
