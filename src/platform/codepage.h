// Code pages: the platform's national-language services. On Windows these are
// the system calls of the same purpose; on POSIX they are built on ICU
// converters with the Windows-compatible tables (one converter per code page
// and thread, opened once and reused). Bytes 0x00-0x7F map to the same code
// point in every code page, handled here directly (the ASCII fast path),
// because some ICU tables (the one named "windows-932") swap control codes.
#pragma once

#include <kilnutil/export.h>

#include <cstddef>

namespace kiln::platform {

inline constexpr unsigned kCodePageUtf8 = 65001;

// The system ANSI code page (GetACP): from the process locale's codeset.
// UTF-8 gives 65001, Shift_JIS/EUC-JP 932, GBK/GB2312/GB18030 936, EUC-KR 949,
// Big5 950, anything else (the C locale included) 1252.
unsigned ansi_code_page();

// Whether the ANSI code page follows the process locale (setlocale) as above.
// On Windows it is the system's setting, fixed for the process.
bool ansi_code_page_follows_process_locale();

// Every function here also takes the Windows aliases 0 (CP_ACP), 1 (CP_OEMCP),
// 2 (CP_MACCP) and 3 (CP_THREAD_ACP).

// Whether the code page has a converter here.
bool is_code_page_supported(unsigned code_page);

// IsDBCSLeadByteEx: whether `byte` starts a two-byte character in a
// double-byte code page (932, 936, 949, 950, ...). Never for other pages.
bool is_lead_byte(unsigned code_page, unsigned char byte);

// MultiByteToWideChar with flags 0: invalid input is replaced, never rejected.
// `length` < 0 converts through the NUL and counts it. With `capacity` 0 the
// result is the number of units needed and nothing is written. Returns the
// number of units written, or 0 when the code page is unknown, the arguments
// are bad, or the output does not fit (then the written part is unspecified).
int multibyte_to_wide(unsigned code_page, const char* text, int length, KILN_WCHAR* out, int capacity);

// WideCharToMultiByte with flags 0. Unmappable characters become the default
// character (`default_char` when given, else the code page's own); when
// `used_default` is given it is set to whether that happened. As on Windows,
// for UTF-8 `default_char` and `used_default` must be null (else 0 is
// returned). Counting and failure rules as for multibyte_to_wide.
int wide_to_multibyte(unsigned code_page, const KILN_WCHAR* text, int length, char* out, int capacity,
                      const char* default_char = nullptr, bool* used_default = nullptr);

}  // namespace kiln::platform
