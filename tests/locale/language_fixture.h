// The fixture of the language tests: the user's stored choice emptied and put
// back afterwards (kiln_test::LanguageStore), the string-process code page
// unset, and the library's languages forgotten before and after each test.
#pragma once

#include "locale/language_state.h"
#include "support/language_store.h"

#include <kilnutil/frame.h>

#include <gtest/gtest.h>

namespace kiln_test {

class LanguageFixture : public ::testing::Test {
protected:
  void SetUp() override {
    saved_code_page_ = set_code_page_for_string_process(0xFFFFFFFFu);
    kiln::locale::forget_languages();
  }
  void TearDown() override {
    kiln::locale::forget_languages();
    set_code_page_for_string_process(saved_code_page_);
  }

  LanguageStore store_;
  unsigned saved_code_page_ = 0;
};

}  // namespace kiln_test
