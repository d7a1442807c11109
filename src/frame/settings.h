// Internal read access to the process-wide settings of the frame. Each
// setting is one plain variable owned by settings.cpp; the host changes it
// through its exported accessor (kilnutil/frame.h), and the other subsystems
// read it through these functions at the moment they need it.
#pragma once

namespace kiln::frame {

inline constexpr unsigned kCodePageNotSet = 0xFFFFFFFFu;

unsigned string_process_code_page();  // kCodePageNotSet: the ANSI code page applies
unsigned mbcs_loading_code_page();    // kCodePageNotSet when not set
unsigned real2str_internal_options();
double real2str_zero_threshold();
int double_to_string_digits();
unsigned str2real_use_atof();
bool treat_non_finite_as_missing();
bool test_char_nbsp();
bool test_char_cntrl();
unsigned char test_char_cntrl_mask();  // the stored mask itself
bool strict_good_c_identifier();
unsigned parenth_use_angle_brackets();
unsigned short first_day_of_week();
unsigned short first_week_of_year();
unsigned detect_encoding_need_guess();
int* default_char_used_flag();  // null when none is registered

// Stores the string-process code page of a language index (5 or more: index 0).
void set_string_process_code_page_for_language(unsigned index);

// The code page a narrow-text operation uses for an argument `code_page`:
// a non-negative value as given; a negative one means the string-process
// code page, or the system ANSI code page when that is not set.
unsigned effective_code_page(int code_page);

}  // namespace kiln::frame
