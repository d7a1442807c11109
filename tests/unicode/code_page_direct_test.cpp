// The direct code-page-to-UTF-8 path must give exactly what the two-step
// conversion through UTF-16 gives, on any bytes.
#include "unicode/code_page_direct.h"

#include "platform/codepage.h"

#include <kilnutil/unicode.h>

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace {

using kiln::platform::kCodePageUtf8;

// The two-step conversion, straight through the platform converters.
std::string two_step(unsigned page, const std::string& text) {
  const int units = kiln::platform::multibyte_to_wide(page, text.c_str(), -1, nullptr, 0);
  std::vector<KILN_WCHAR> wide(static_cast<size_t>(units));
  kiln::platform::multibyte_to_wide(page, text.c_str(), -1, wide.data(), units);
  const int bytes = kiln::platform::wide_to_multibyte(kCodePageUtf8, wide.data(), units, nullptr, 0);
  std::string utf8(static_cast<size_t>(bytes), '\0');
  kiln::platform::wide_to_multibyte(kCodePageUtf8, wide.data(), units, utf8.data(), bytes);
  utf8.pop_back();
  return utf8;
}

std::string direct(unsigned page, const std::string& text) {
  kiln::unicode::Scratch<char> out;
  const int n = kiln::unicode::code_page_to_utf8_direct(page, text.c_str(), -1, out);
  EXPECT_GT(n, 0) << page;
  return n > 0 ? std::string(out.data(), static_cast<size_t>(n - 1)) : std::string();
}

// Every byte pair with a non-ASCII first byte, then random bytes, no NUL.
std::vector<std::string> samples() {
  std::vector<std::string> texts;
  std::string pairs;
  for (int lead = 0x80; lead < 0x100; ++lead) {
    for (int trail = 1; trail < 0x100; ++trail) {
      pairs += static_cast<char>(lead);
      pairs += static_cast<char>(trail);
      pairs += ' ';  // keeps each pair apart
    }
  }
  texts.push_back(pairs);
  std::mt19937 generator(7);
  for (int i = 0; i < 20; ++i) {
    std::string random(300 + i * 37, '\0');
    for (char& c : random) c = static_cast<char>(1 + generator() % 255);
    texts.push_back(random);
  }
  // A lead byte right before the terminating NUL.
  texts.push_back(std::string(300, 'a') + "\x81");
  return texts;
}

TEST(CodePageDirect, MatchesTheTwoStepConversion) {
  const auto texts = samples();
  for (unsigned page : {1252u, 1250u, 1251u, 874u, 28591u, 932u, 936u, 949u, 950u}) {
    for (const std::string& text : texts) {
      ASSERT_EQ(direct(page, text), two_step(page, text)) << page << " size " << text.size();
    }
  }
}

TEST(CodePageDirect, ExportsTakeTheDirectPathWithTheSameResults) {
  std::string text;
  for (int i = 0; i < 100; ++i) text += "\x93\xFA\x96\x7B\x8C\xEA abc ";
  const std::string expected = two_step(932, text);
  std::vector<char> out(text.size() * 3 + 1);
  EXPECT_EQ(KILNUTIL_UNICODE_MBCS_to_UTF8(text.c_str(), -1, out.data(), static_cast<int>(out.size()), 932),
            static_cast<int>(expected.size()));
  EXPECT_EQ(std::string(out.data()), expected);
  // Too small a destination: nothing, as on the general path.
  EXPECT_EQ(KILNUTIL_UNICODE_MBCS_to_UTF8(text.c_str(), -1, out.data(), 10, 932), 0);
  EXPECT_EQ(out[0], '\0');
}

}  // namespace
