#include "platform/case_mapping.h"

#include <kilnutil/export.h>

#include <gtest/gtest.h>

#include <string>

namespace {

std::basic_string<KILN_WCHAR> upper(std::basic_string<KILN_WCHAR> text) {
  kiln::platform::upper_case_units(text.data(), static_cast<unsigned>(text.size()));
  return text;
}

std::basic_string<KILN_WCHAR> lower(std::basic_string<KILN_WCHAR> text) {
  kiln::platform::lower_case_units(text.data(), static_cast<unsigned>(text.size()));
  return text;
}

TEST(CaseMapping, SimpleMappingKeepsTheLength) {
  EXPECT_EQ(upper(KILN_TEXT("abc \u00E9\u03B1")), KILN_TEXT("ABC \u00C9\u0391"));
  EXPECT_EQ(lower(KILN_TEXT("ABC \u00C9\u0391")), KILN_TEXT("abc \u00E9\u03B1"));
  EXPECT_EQ(upper(KILN_TEXT("stra\u00DFe")), KILN_TEXT("STRA\u00DFE"));                              // no growth to "SS"
  EXPECT_EQ(upper(KILN_TEXT("\U00010428")), KILN_TEXT("\U00010400"));                                // a supplementary pair
  EXPECT_EQ(upper(std::basic_string<KILN_WCHAR>(1, KILN_TEXT('\xD801'))), std::basic_string<KILN_WCHAR>(1, KILN_TEXT('\xD801')));  // lone surrogate kept
}

TEST(CaseMapping, CaseInsensitiveComparisonIgnoresCaseButNotAccents) {
  using kiln::platform::compare_ignoring_case;
  EXPECT_EQ(compare_ignoring_case(KILN_TEXT("Hello"), KILN_TEXT("hELLO")), 0);
  EXPECT_LT(compare_ignoring_case(KILN_TEXT("apple"), KILN_TEXT("Banana")), 0);
  EXPECT_GT(compare_ignoring_case(KILN_TEXT("Banana"), KILN_TEXT("apple")), 0);
  EXPECT_NE(compare_ignoring_case(KILN_TEXT("cafe"), KILN_TEXT("caf\u00E9")), 0);
  EXPECT_EQ(compare_ignoring_case(KILN_TEXT(""), KILN_TEXT("")), 0);
}

}  // namespace
