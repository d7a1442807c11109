#include "platform/case_mapping.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::u16string upper(std::u16string text) {
  kiln::platform::upper_case_units(text.data(), static_cast<unsigned>(text.size()));
  return text;
}

std::u16string lower(std::u16string text) {
  kiln::platform::lower_case_units(text.data(), static_cast<unsigned>(text.size()));
  return text;
}

TEST(CaseMapping, SimpleMappingKeepsTheLength) {
  EXPECT_EQ(upper(u"abc \u00E9\u03B1"), u"ABC \u00C9\u0391");
  EXPECT_EQ(lower(u"ABC \u00C9\u0391"), u"abc \u00E9\u03B1");
  EXPECT_EQ(upper(u"stra\u00DFe"), u"STRA\u00DFE");                              // no growth to "SS"
  EXPECT_EQ(upper(u"\U00010428"), u"\U00010400");                                // a supplementary pair
  EXPECT_EQ(upper(std::u16string(1, u'\xD801')), std::u16string(1, u'\xD801'));  // lone surrogate kept
}

TEST(CaseMapping, CaseInsensitiveComparisonIgnoresCaseButNotAccents) {
  using kiln::platform::compare_ignoring_case;
  EXPECT_EQ(compare_ignoring_case(u"Hello", u"hELLO"), 0);
  EXPECT_LT(compare_ignoring_case(u"apple", u"Banana"), 0);
  EXPECT_GT(compare_ignoring_case(u"Banana", u"apple"), 0);
  EXPECT_NE(compare_ignoring_case(u"cafe", u"caf\u00E9"), 0);
  EXPECT_EQ(compare_ignoring_case(u"", u""), 0);
}

}  // namespace
