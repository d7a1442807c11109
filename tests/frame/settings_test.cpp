#include "frame/settings.h"

#include <kilnutil/frame.h>

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>

namespace {

TEST(MissingValue, ExactBitPatternAndNoTolerance) {
  EXPECT_EQ(std::bit_cast<std::uint64_t>(get_missing_value()), 0x81AA74FE1C132C0Eull);
  EXPECT_EQ(is_missing_value(-1.23456789e-300), 1);
  EXPECT_EQ(is_missing_value(std::nextafter(get_missing_value(), 0.0)), 0);
  EXPECT_EQ(is_missing_value(0.0), 0);
  EXPECT_EQ(is_missing_value(NAN), 0);
}

TEST(Settings, DefaultsAtLoad) {
  // Read through each accessor's own "get" form, which changes nothing.
  EXPECT_EQ(KILNUTIL_get_codepage_for_converting_MBCS_to_UNICODE_on_loading(), 0xFFFFFFFFu);
  EXPECT_EQ(KILNUTIL_GetReal2StrInternalOptions(), 0u);
  EXPECT_EQ(KILNUTIL_real2str_abs_value_zero_threshold(0, 5.0), 1e-307);
  EXPECT_EQ(KILNUTIL_DoubleToString_num_digits(0, 3), 17);
  EXPECT_EQ(KILNUTIL_str2real_use_atof(1, 0), 1u);
  EXPECT_EQ(KILNUTIL_TreatNonFiniteNumericAsNANUM(1, 0), 1);
  EXPECT_EQ(KILNUTIL_test_char_NBSP(0, 0), 1);
  EXPECT_EQ(KILNUTIL_Strict_good_C_identifier(1, 0), 1);
  EXPECT_EQ(KILNUTIL_first_day_of_week(0, 3), 0);
  EXPECT_EQ(KILNUTIL_first_week_of_year(0, 3), 0);
  EXPECT_EQ(KILNUTIL_DetectEncodingNeedGuess_GetSet(1, 0), 7u);
  EXPECT_EQ(KILNUTIL_IsScreenDrawing(-1), 1);
  EXPECT_EQ(GetGlobalUndoDisable(), 0u);
  EXPECT_EQ(KILNUTIL_IsCheckPrinterPage(), 0u);
  EXPECT_EQ(KILNUTIL_IsVelaCStrCharOffset(), 0);
  EXPECT_EQ(KILNUTIL_ImgDefJPGqualityLevel(1, 0), 95u);
  EXPECT_EQ(KILNUTIL_ImgGrObjDefPNGcompressionLevel(1, 0), 4u);
  EXPECT_EQ(KILNUTIL_disabling_get_localized_PDS(0, 9), 0u);
  EXPECT_EQ(Kilnutil_enforce_popup_main(1, 0), 0);
  EXPECT_EQ(err_msg_block(-1), 0);
  EXPECT_EQ(KILNUTIL_is_crash_report_enabled(), 0u);
  EXPECT_EQ(KILNUTIL_sparse_decompress_negative_err(1234), 0);
  EXPECT_EQ(KILNUTIL_HMngr(0, nullptr, 1), nullptr);
  EXPECT_EQ(KILNUTIL_get_vkutil_access_obj(), nullptr);
  EXPECT_EQ(kiln::frame::string_process_code_page(), 0xFFFFFFFFu);
  EXPECT_EQ(kiln::frame::parenth_use_angle_brackets(), 0u);
  EXPECT_FALSE(kiln::frame::test_char_cntrl());
  EXPECT_EQ(kiln::frame::default_char_used_flag(), nullptr);
  const int* levels = KILNUTIL_error_print_level();
  EXPECT_EQ(levels[0], 1);
  EXPECT_EQ(levels[1], 1);
  EXPECT_EQ(levels[2], 1);
  EXPECT_EQ(levels[3], -1);
}

TEST(Settings, ExchangeAccessorsReturnThePreviousValue) {
  EXPECT_EQ(set_code_page_for_string_process(932), 0xFFFFFFFFu);
  EXPECT_EQ(set_code_page_for_string_process(0xFFFFFFFFu), 932u);
  EXPECT_EQ(KILNUTIL_set_codepage_for_converting_MBCS_to_UNICODE_on_loading(936), 0xFFFFFFFFu);
  EXPECT_EQ(KILNUTIL_get_codepage_for_converting_MBCS_to_UNICODE_on_loading(), 936u);
  KILNUTIL_set_codepage_for_converting_MBCS_to_UNICODE_on_loading(0xFFFFFFFFu);
  EXPECT_EQ(KILNUTIL_SetReal2StrInternalOptions(2), 0u);
  EXPECT_EQ(KILNUTIL_SetReal2StrInternalOptions(0), 2u);
  EXPECT_EQ(set_parenth_use_angle_brackets(1), 0u);
  EXPECT_EQ(set_parenth_use_angle_brackets(0), 1u);
  int flag = 0;
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_to_mbcs_handle_conversion_default_char_used_check(&flag), nullptr);
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_to_mbcs_handle_conversion_default_char_used_check(nullptr), &flag);
  HWND window = reinterpret_cast<HWND>(0x1234);
  EXPECT_EQ(KILNUTIL_SetEditWindow(window), nullptr);
  EXPECT_EQ(KILNUTIL_SetEditWindow(nullptr), window);
}

// The selector's sense differs from accessor to accessor on purpose.
TEST(Settings, SelectorSensesDifferPerAccessor) {
  // "set" selector: 0 reads.
  EXPECT_EQ(KILNUTIL_test_char_NBSP(0, 0), 1);
  EXPECT_EQ(KILNUTIL_test_char_NBSP(1, 0), 0);  // stores (v != 0) and returns it
  EXPECT_EQ(KILNUTIL_test_char_NBSP(1, 7), 1);
  EXPECT_EQ(KILNUTIL_real2str_abs_value_zero_threshold(1, 1e-100), 1e-307);
  EXPECT_EQ(KILNUTIL_real2str_abs_value_zero_threshold(1, 1e-307), 1e-100);
  EXPECT_EQ(KILNUTIL_DoubleToString_num_digits(1, 15), 17);
  EXPECT_EQ(KILNUTIL_DoubleToString_num_digits(1, 17), 15);
  EXPECT_EQ(KILNUTIL_disabling_get_localized_PDS(1, 5), 0u);
  EXPECT_EQ(KILNUTIL_disabling_get_localized_PDS(1, 0), 5u);
  // "get" selector: 0 writes and returns 0.
  EXPECT_EQ(KILNUTIL_Strict_good_C_identifier(0, 0), 0);
  EXPECT_EQ(KILNUTIL_Strict_good_C_identifier(1, 1), 0);
  EXPECT_EQ(KILNUTIL_Strict_good_C_identifier(0, 1), 0);
  EXPECT_EQ(KILNUTIL_TreatNonFiniteNumericAsNANUM(0, 0), 0);
  EXPECT_EQ(KILNUTIL_TreatNonFiniteNumericAsNANUM(1, 1), 0);
  KILNUTIL_TreatNonFiniteNumericAsNANUM(0, 1);
  EXPECT_EQ(KILNUTIL_DetectEncodingNeedGuess_GetSet(0, 3), 0u);
  EXPECT_EQ(KILNUTIL_DetectEncodingNeedGuess_GetSet(1, 0), 3u);
  KILNUTIL_DetectEncodingNeedGuess_GetSet(0, 7);
  // "get" selector: 0 writes and returns the previous value.
  EXPECT_EQ(KILNUTIL_str2real_use_atof(0, 0), 1u);
  EXPECT_EQ(KILNUTIL_str2real_use_atof(0, 1), 0u);
  EXPECT_EQ(KILNUTIL_ImgDefJPGqualityLevel(0, 80), 95u);
  EXPECT_EQ(KILNUTIL_ImgDefJPGqualityLevel(0, 95), 80u);
  EXPECT_EQ(KILNUTIL_ImgGrObjDefPNGcompressionLevel(0, 9), 4u);
  EXPECT_EQ(KILNUTIL_ImgGrObjDefPNGcompressionLevel(0, 4), 9u);
  // Argument order (v, set) and "the value now held".
  EXPECT_EQ(Kilnutil_enforce_popup_main(5, 0), 0);
  EXPECT_EQ(Kilnutil_enforce_popup_main(5, 1), 5);
  EXPECT_EQ(Kilnutil_enforce_popup_main(0, 1), 0);
  // Calendar settings: set non-zero stores; both forms return the previous value.
  EXPECT_EQ(KILNUTIL_first_day_of_week(1, 2), 0);
  EXPECT_EQ(KILNUTIL_first_day_of_week(0, 5), 2);
  EXPECT_EQ(KILNUTIL_first_day_of_week(1, 0), 2);
  EXPECT_EQ(KILNUTIL_first_week_of_year(1, 1), 0);
  EXPECT_EQ(KILNUTIL_first_week_of_year(1, 0), 1);
}

TEST(Settings, SignedSwitchesAndStoreOnlyForms) {
  EXPECT_EQ(KILNUTIL_IsScreenDrawing(0), 1);   // returns previous
  EXPECT_EQ(KILNUTIL_IsScreenDrawing(-5), 0);  // reads
  EXPECT_EQ(KILNUTIL_IsScreenDrawing(9), 0);
  EXPECT_EQ(KILNUTIL_IsScreenDrawing(-1), 1);
  EXPECT_EQ(err_msg_block(3), 0);
  EXPECT_EQ(err_msg_block(-1), 1);
  EXPECT_EQ(err_msg_block(0), 0);
  EXPECT_EQ(SetGlobalUndoDisable(7), 0u);
  EXPECT_EQ(GetGlobalUndoDisable(), 1u);  // stored as (v != 0)
  EXPECT_EQ(SetGlobalUndoDisable(0), 1u);
  KILNUTIL_SetVelaCStrCharOffset(-3);
  EXPECT_EQ(KILNUTIL_IsVelaCStrCharOffset(), 0);
  KILNUTIL_SetVelaCStrCharOffset(2);
  EXPECT_EQ(KILNUTIL_IsVelaCStrCharOffset(), 1);
  KILNUTIL_SetVelaCStrCharOffset(0);
  KILNUTIL_SetCheckPrinterPage(3);
  EXPECT_EQ(KILNUTIL_IsCheckPrinterPage(), 3u);
  KILNUTIL_SetCheckPrinterPage(0);
  KILNUTIL_log_crash_report_as_enabled(1);
  EXPECT_EQ(KILNUTIL_is_crash_report_enabled(), 1u);
  KILNUTIL_log_crash_report_as_enabled(0);
  KILNUTIL_test_char_cntrl(1);
  EXPECT_TRUE(kiln::frame::test_char_cntrl());
  KILNUTIL_test_char_cntrl(0);
  // 1234 is the read request; it is never stored.
  EXPECT_EQ(KILNUTIL_sparse_decompress_negative_err(-7), 0);
  EXPECT_EQ(KILNUTIL_sparse_decompress_negative_err(1234), -7);
  EXPECT_EQ(KILNUTIL_sparse_decompress_negative_err(1234), -7);
  KILNUTIL_sparse_decompress_negative_err(0);
  int level = 4;
  EXPECT_EQ(KILNUTIL_access_quill_script_level(&level, 0), 1);
  level = 0;
  EXPECT_EQ(KILNUTIL_access_quill_script_level(&level, 1), 1);
  EXPECT_EQ(level, 4);
}

TEST(Settings, HandleSlots) {
  int object = 0;
  EXPECT_EQ(KILNUTIL_HMngr(11, &object, 0), &object);
  EXPECT_EQ(KILNUTIL_HMngr(11, nullptr, 1), &object);
  EXPECT_EQ(KILNUTIL_HMngr(12, &object, 0), nullptr);
  EXPECT_EQ(KILNUTIL_HMngr(12, nullptr, 1), nullptr);
  EXPECT_EQ(KILNUTIL_HMngr(-1, &object, 0), nullptr);
  KILNUTIL_HMngr(11, nullptr, 0);
}

TEST(Settings, CodePageOfLanguageIndex) {
  const unsigned expected[] = {0xFFFFFFFFu, 1252, 1252, 932, 936};
  for (int i = 0; i < 5; ++i) EXPECT_EQ(get_code_page_of_lang_index(i), expected[i]);
  EXPECT_EQ(get_code_page_of_lang_index(5), 0xFFFFFFFFu);
  EXPECT_EQ(get_code_page_of_lang_index(-1), 0xFFFFFFFFu);
  kiln::frame::set_string_process_code_page_for_language(3);
  EXPECT_EQ(kiln::frame::string_process_code_page(), 932u);
  kiln::frame::set_string_process_code_page_for_language(200);  // 5 or more: index 0
  EXPECT_EQ(kiln::frame::string_process_code_page(), 0xFFFFFFFFu);
}

TEST(Settings, WesternSystemAndEffectiveCodePage) {
  set_code_page_for_string_process(1254);
  EXPECT_EQ(KILNUTIL_is_Western_system(0), 1);
  EXPECT_EQ(kiln::frame::effective_code_page(-1), 1254u);
  EXPECT_EQ(kiln::frame::effective_code_page(932), 932u);
  set_code_page_for_string_process(1255);
  EXPECT_EQ(KILNUTIL_is_Western_system(0), 0);  // upper bound is exclusive
  set_code_page_for_string_process(1200);
  EXPECT_EQ(KILNUTIL_is_Western_system(0), 1);
  set_code_page_for_string_process(932);
  EXPECT_EQ(KILNUTIL_is_Western_system(0), 0);
  // use_system, or nothing set: the ANSI code page decides (C locale: 1252).
  EXPECT_EQ(KILNUTIL_is_Western_system(1), 1);
  set_code_page_for_string_process(0xFFFFFFFFu);
  EXPECT_EQ(KILNUTIL_is_Western_system(0), 1);
  EXPECT_EQ(kiln::frame::effective_code_page(-1), 1252u);
}

TEST(OutputIndent, StepsInAndOut) {
  EXPECT_STREQ(KILNUTIL_access_quill_output_indent(2), "");  // shallower on empty stays empty
  EXPECT_STREQ(KILNUTIL_access_quill_output_indent(3), "");
  EXPECT_STREQ(KILNUTIL_access_quill_output_indent(1), "");  // outermost level shows no indent
  EXPECT_STREQ(KILNUTIL_access_quill_output_indent(1), "--");
  EXPECT_STREQ(KILNUTIL_access_quill_output_indent(1), "----");
  EXPECT_STREQ(KILNUTIL_access_quill_output_indent(3), "    ");
  EXPECT_STREQ(KILNUTIL_access_quill_output_indent(9), "------");
  EXPECT_STREQ(KILNUTIL_access_quill_output_indent(2), "----");
  KILNUTIL_access_quill_output_indent(2);
  EXPECT_STREQ(KILNUTIL_access_quill_output_indent(2), "");
  for (int i = 0; i < 200; ++i) KILNUTIL_access_quill_output_indent(1);  // deeper than the buffer
  EXPECT_EQ(std::string(KILNUTIL_access_quill_output_indent(0)).size(), 238u);
  for (int i = 0; i < 200; ++i) KILNUTIL_access_quill_output_indent(2);
  EXPECT_STREQ(KILNUTIL_access_quill_output_indent(0), "");
}

class FakeHost final : public KilnHostAccess {
public:
  int host_operation1() override { return -1; }
  int host_operation2() override { return -1; }
  int host_operation3() override { return -1; }
  int host_operation4() override { return -1; }
  int host_operation5() override { return -1; }
  int enable_gui(int flag) override {
    last_flag = flag;
    return 40 + flag;
  }
  int is_gui_enabled() override { return 0; }
  int last_flag = -1;
};

TEST(HostAccess, GuiSwitchesGoToTheRegisteredObject) {
  EXPECT_EQ(KILNUTIL_enable_vela_gui(1), 0);     // no object: nothing happens
  EXPECT_EQ(KILNUTIL_is_vela_gui_enabled(), 1);  // no object: enabled
  FakeHost host;
  KILNUTIL_set_vkutil_access_obj(&host);
  EXPECT_EQ(KILNUTIL_get_vkutil_access_obj(), &host);
  EXPECT_EQ(KILNUTIL_enable_vela_gui(2), 42);
  EXPECT_EQ(host.last_flag, 2);
  EXPECT_EQ(KILNUTIL_is_vela_gui_enabled(), 0);
  KILNUTIL_set_vkutil_access_obj(nullptr);
}

}  // namespace
