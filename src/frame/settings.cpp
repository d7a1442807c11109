// The process-wide settings and their exported accessors. Each accessor keeps
// its own calling convention on purpose (see kilnutil/frame.h); callers rely
// on every one of them exactly as it is.
#include "frame/settings.h"

#include "frame/relaxed.h"
#include "platform/codepage.h"

#include <kilnutil/frame.h>

namespace {

kiln::frame::Relaxed<unsigned> g_string_process_code_page{kiln::frame::kCodePageNotSet};
kiln::frame::Relaxed<unsigned> g_mbcs_loading_code_page{kiln::frame::kCodePageNotSet};
kiln::frame::Relaxed<unsigned> g_real2str_options{0};
kiln::frame::Relaxed<double> g_real2str_zero_threshold{1e-307};
kiln::frame::Relaxed<int> g_double_to_string_digits{17};
kiln::frame::Relaxed<unsigned> g_str2real_use_atof{1};
kiln::frame::Relaxed<unsigned char> g_treat_non_finite_as_missing{1};
kiln::frame::Relaxed<unsigned char> g_test_char_nbsp{1};
kiln::frame::Relaxed<unsigned char> g_test_char_cntrl{0};
kiln::frame::Relaxed<unsigned char> g_strict_good_c_identifier{1};
kiln::frame::Relaxed<unsigned> g_parenth_use_angle_brackets{0};
kiln::frame::Relaxed<unsigned short> g_first_day_of_week{0};
kiln::frame::Relaxed<unsigned short> g_first_week_of_year{0};
kiln::frame::Relaxed<unsigned> g_detect_encoding_need_guess{7};
kiln::frame::Relaxed<int*> g_default_char_used_flag{nullptr};
kiln::frame::Relaxed<int> g_quill_script_level{0};
kiln::frame::Relaxed<unsigned char> g_screen_drawing{1};
kiln::frame::Relaxed<unsigned> g_global_undo_disable{0};
kiln::frame::Relaxed<unsigned> g_check_printer_page{0};
kiln::frame::Relaxed<unsigned char> g_vela_cstr_char_offset{0};
kiln::frame::Relaxed<unsigned> g_jpg_quality_level{95};
kiln::frame::Relaxed<unsigned> g_png_compression_level{4};
kiln::frame::Relaxed<unsigned> g_disabling_get_localized_pds{0};
kiln::frame::Relaxed<unsigned char> g_enforce_popup_main{0};
kiln::frame::Relaxed<unsigned char> g_err_msg_block{0};
kiln::frame::Relaxed<unsigned> g_crash_report_enabled{0};
kiln::frame::Relaxed<int> g_sparse_decompress_negative_err{0};
kiln::frame::Relaxed<void*> g_handle_slots[12];
int g_error_print_level[4] = {1, 1, 1, -1};
kiln::frame::Relaxed<HWND> g_edit_window{nullptr};

constexpr unsigned kLanguageCodePages[] = {kiln::frame::kCodePageNotSet, 1252, 1252, 932, 936};

}  // namespace

namespace kiln::frame {

unsigned string_process_code_page() { return g_string_process_code_page.load(); }
unsigned mbcs_loading_code_page() { return g_mbcs_loading_code_page.load(); }
unsigned real2str_internal_options() { return g_real2str_options.load(); }
double real2str_zero_threshold() { return g_real2str_zero_threshold.load(); }
int double_to_string_digits() { return g_double_to_string_digits.load(); }
unsigned str2real_use_atof() { return g_str2real_use_atof.load(); }
bool treat_non_finite_as_missing() { return g_treat_non_finite_as_missing.load() != 0; }
bool test_char_nbsp() { return g_test_char_nbsp.load() != 0; }
bool test_char_cntrl() { return g_test_char_cntrl.load() != 0; }
unsigned char test_char_cntrl_mask() { return g_test_char_cntrl.load(); }
bool strict_good_c_identifier() { return g_strict_good_c_identifier.load() != 0; }
unsigned parenth_use_angle_brackets() { return g_parenth_use_angle_brackets.load(); }
unsigned short first_day_of_week() { return g_first_day_of_week.load(); }
unsigned short first_week_of_year() { return g_first_week_of_year.load(); }
unsigned detect_encoding_need_guess() { return g_detect_encoding_need_guess.load(); }
int* default_char_used_flag() { return g_default_char_used_flag.load(); }

void set_string_process_code_page_for_language(unsigned index) {
  g_string_process_code_page.store(kLanguageCodePages[index < 5 ? index : 0]);
}

unsigned effective_code_page(int code_page) {
  if (code_page >= 0) return static_cast<unsigned>(code_page);
  if (const unsigned set = g_string_process_code_page.load(); set != kCodePageNotSet) return set;
  return kiln::platform::ansi_code_page();
}

}  // namespace kiln::frame

extern "C" {

unsigned int set_code_page_for_string_process(unsigned int cp) { return g_string_process_code_page.exchange(cp); }

unsigned int get_code_page_of_lang_index(int index) {
  if (index < 0 || index >= 5) return kiln::frame::kCodePageNotSet;
  return kLanguageCodePages[index];
}

unsigned int KILNUTIL_set_codepage_for_converting_MBCS_to_UNICODE_on_loading(unsigned int cp) {
  return g_mbcs_loading_code_page.exchange(cp);
}

unsigned int KILNUTIL_get_codepage_for_converting_MBCS_to_UNICODE_on_loading(void) {
  return g_mbcs_loading_code_page.load();
}

int KILNUTIL_is_Western_system(int use_system) {
  const unsigned set = g_string_process_code_page.load();
  if (use_system == 0 && set < kiln::frame::kCodePageNotSet) return set >= 1200 && set < 1255;
  return kiln::platform::ansi_code_page() - 1200u < 55u;
}

unsigned int KILNUTIL_SetReal2StrInternalOptions(unsigned int opts) { return g_real2str_options.exchange(opts); }

unsigned int KILNUTIL_GetReal2StrInternalOptions(void) { return g_real2str_options.load(); }

double KILNUTIL_real2str_abs_value_zero_threshold(int set, double v) {
  return set == 0 ? g_real2str_zero_threshold.load() : g_real2str_zero_threshold.exchange(v);
}

int KILNUTIL_DoubleToString_num_digits(int set, int n) {
  return set == 0 ? g_double_to_string_digits.load() : g_double_to_string_digits.exchange(n);
}

unsigned int KILNUTIL_str2real_use_atof(int get, unsigned int v) {
  return get != 0 ? g_str2real_use_atof.load() : g_str2real_use_atof.exchange(v);
}

unsigned char KILNUTIL_TreatNonFiniteNumericAsNANUM(int get, unsigned char v) {
  if (get != 0) return g_treat_non_finite_as_missing.load();
  g_treat_non_finite_as_missing.store(v);
  return 0;
}

unsigned char KILNUTIL_test_char_NBSP(int set, unsigned char v) {
  if (set == 0) return g_test_char_nbsp.load();
  const unsigned char on = v != 0 ? 1 : 0;
  g_test_char_nbsp.store(on);
  return on;
}

void KILNUTIL_test_char_cntrl(unsigned char v) { g_test_char_cntrl.store(v); }

unsigned char KILNUTIL_Strict_good_C_identifier(int get, unsigned char v) {
  if (get != 0) return g_strict_good_c_identifier.load();
  g_strict_good_c_identifier.store(v);
  return 0;
}

unsigned int set_parenth_use_angle_brackets(unsigned int v) { return g_parenth_use_angle_brackets.exchange(v); }

unsigned short KILNUTIL_first_day_of_week(int set, unsigned short d) {
  return set != 0 ? g_first_day_of_week.exchange(d) : g_first_day_of_week.load();
}

unsigned short KILNUTIL_first_week_of_year(int set, unsigned short w) {
  return set != 0 ? g_first_week_of_year.exchange(w) : g_first_week_of_year.load();
}

unsigned int KILNUTIL_DetectEncodingNeedGuess_GetSet(int get, unsigned int v) {
  if (get != 0) return g_detect_encoding_need_guess.load();
  g_detect_encoding_need_guess.store(v);
  return 0;
}

int* KILNUTIL_UNICODE_UTF8_to_mbcs_handle_conversion_default_char_used_check(int* flag) {
  return g_default_char_used_flag.exchange(flag);
}

int KILNUTIL_access_quill_script_level(int* value, int get) {
  if (get != 0) {
    *value = g_quill_script_level.load();
  } else {
    g_quill_script_level.store(*value);
  }
  return 1;
}

unsigned char KILNUTIL_IsScreenDrawing(int v) {
  if (v < 0) return g_screen_drawing.load();
  return g_screen_drawing.exchange(static_cast<unsigned char>(v != 0));
}

unsigned int SetGlobalUndoDisable(unsigned int v) {
  return g_global_undo_disable.exchange(static_cast<unsigned>(v != 0));
}

unsigned int GetGlobalUndoDisable(void) { return g_global_undo_disable.load(); }

void KILNUTIL_SetCheckPrinterPage(unsigned int v) { g_check_printer_page.store(v); }

unsigned int KILNUTIL_IsCheckPrinterPage(void) { return g_check_printer_page.load(); }

void KILNUTIL_SetVelaCStrCharOffset(int v) { g_vela_cstr_char_offset.store(v > 0); }

unsigned char KILNUTIL_IsVelaCStrCharOffset(void) { return g_vela_cstr_char_offset.load(); }

unsigned int KILNUTIL_ImgDefJPGqualityLevel(int get, unsigned int v) {
  return get != 0 ? g_jpg_quality_level.load() : g_jpg_quality_level.exchange(v);
}

unsigned int KILNUTIL_ImgGrObjDefPNGcompressionLevel(int get, unsigned int v) {
  return get != 0 ? g_png_compression_level.load() : g_png_compression_level.exchange(v);
}

unsigned int KILNUTIL_disabling_get_localized_PDS(int set, unsigned int v) {
  return set == 0 ? g_disabling_get_localized_pds.load() : g_disabling_get_localized_pds.exchange(v);
}

unsigned char Kilnutil_enforce_popup_main(unsigned char v, int set) {
  if (set == 0) return g_enforce_popup_main.load();
  g_enforce_popup_main.store(v);
  return v;
}

unsigned char err_msg_block(int v) {
  if (v < 0) return g_err_msg_block.load();
  g_err_msg_block.store(v != 0);
  return 0;
}

void KILNUTIL_log_crash_report_as_enabled(unsigned int v) { g_crash_report_enabled.store(v); }

unsigned int KILNUTIL_is_crash_report_enabled(void) { return g_crash_report_enabled.load(); }

int KILNUTIL_sparse_decompress_negative_err(int v) {
  if (v == 1234) return g_sparse_decompress_negative_err.load();
  g_sparse_decompress_negative_err.store(v);
  return 0;
}

void* KILNUTIL_HMngr(int index, void* handle, int get) {
  // The slot number is taken unsigned, so a negative index is "above 11" too.
  const unsigned slot = static_cast<unsigned>(index);
  if (slot > 11) return nullptr;
  if (get != 0) return g_handle_slots[slot].load();
  g_handle_slots[slot].store(handle);
  return handle;
}

int* KILNUTIL_error_print_level(void) { return g_error_print_level; }

HWND KILNUTIL_SetEditWindow(HWND hwnd) { return g_edit_window.exchange(hwnd); }

}  // extern "C"
