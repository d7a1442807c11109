/* kilnutil frame: the missing value, the process-wide settings with their
 * accessors, the host-access object, the output indent, and the two-byte
 * character primitives (stream reader, push-back, store, KILNUTILT helpers).
 *
 * Accessors keep three conventions on purpose, and callers depend on each one
 * exactly: exchange (setter returns the previous value), get-or-set with a
 * selector argument (which selector value means "get" differs per accessor;
 * each declaration says), and numbered operations. */
#ifndef KILNUTIL_FRAME_H
#define KILNUTIL_FRAME_H

#include "kilnutil/export.h"
#include "kilnutil/platform.h"
#include <stdio.h>

#ifdef __cplusplus
/* The host's own object, registered with KILNUTIL_set_vkutil_access_obj. The
 * library calls its sixth and seventh operations and never frees it; the first
 * five belong to the host's other services and are never called here. */
class KilnHostAccess {
public:
  virtual int host_operation1() = 0;
  virtual int host_operation2() = 0;
  virtual int host_operation3() = 0;
  virtual int host_operation4() = 0;
  virtual int host_operation5() = 0;
  virtual int enable_gui(int flag) = 0; /* sixth */
  virtual int is_gui_enabled() = 0;     /* seventh */

protected:
  ~KilnHostAccess() = default;
};
#else
typedef struct KilnHostAccess KilnHostAccess;
#endif

KILNUTIL_BEGIN_C

/* ---- The missing value: the double -1.23456789e-300 (bits 0x81AA74FE1C132C0E). */
#define KILNUTIL_NANUM (-1.23456789e-300)
KILNUTIL_API double get_missing_value(void);
/* 1 when v == the missing value (no tolerance), else 0. */
KILNUTIL_API int is_missing_value(double v);

/* ---- Code pages. 0xFFFFFFFF means "not set": the system ANSI code page applies. */
KILNUTIL_API unsigned int set_code_page_for_string_process(unsigned int cp); /* exchange */
/* 0..4 give 0xFFFFFFFF, 1252, 1252, 932, 936; any other index 0xFFFFFFFF. */
KILNUTIL_API unsigned int get_code_page_of_lang_index(int index);
KILNUTIL_API unsigned int KILNUTIL_set_codepage_for_converting_MBCS_to_UNICODE_on_loading(
    unsigned int cp); /* exchange */
KILNUTIL_API unsigned int KILNUTIL_get_codepage_for_converting_MBCS_to_UNICODE_on_loading(void);
/* use_system 0 and a string-process code page set: 1 when 1200 <= cp < 1255.
 * Otherwise 1 when (ANSI code page - 1200) is below 55, unsigned. */
KILNUTIL_API int KILNUTIL_is_Western_system(int use_system);

/* ---- Number formatting and parsing switches. */
KILNUTIL_API unsigned int KILNUTIL_SetReal2StrInternalOptions(unsigned int opts); /* exchange */
KILNUTIL_API unsigned int KILNUTIL_GetReal2StrInternalOptions(void);
/* set 0: return current; otherwise store v and return the previous value. Default 1e-307. */
KILNUTIL_API double KILNUTIL_real2str_abs_value_zero_threshold(int set, double v);
/* set 0: return current; otherwise store n and return the previous value. Default 17. */
KILNUTIL_API int KILNUTIL_DoubleToString_num_digits(int set, int n);
/* get non-zero: return current; otherwise store v and return the previous value. Default 1. */
KILNUTIL_API unsigned int KILNUTIL_str2real_use_atof(int get, unsigned int v);
/* get 0: store v and return 0; otherwise return current. Default 1. */
KILNUTIL_API unsigned char KILNUTIL_TreatNonFiniteNumericAsNANUM(int get, unsigned char v);

/* ---- Character classes and scanning switches. */
/* set 0: return current; otherwise store (v != 0) and return it. Default 1. */
KILNUTIL_API unsigned char KILNUTIL_test_char_NBSP(int set, unsigned char v);
/* Store only. Default 0. */
KILNUTIL_API void KILNUTIL_test_char_cntrl(unsigned char v);
/* get 0: store v and return 0; otherwise return current. Default 1. */
KILNUTIL_API unsigned char KILNUTIL_Strict_good_C_identifier(int get, unsigned char v);
/* Whether "<" ">" count as a bracket pair. Exchange. Default 0. */
KILNUTIL_API unsigned int set_parenth_use_angle_brackets(unsigned int v);

/* ---- Calendar. set non-zero: store; always returns the previous value. Default 0. */
KILNUTIL_API unsigned short KILNUTIL_first_day_of_week(int set, unsigned short d);
KILNUTIL_API unsigned short KILNUTIL_first_week_of_year(int set, unsigned short w);

/* ---- Encodings. */
/* get 0: store v and return 0; otherwise return current. Default 7. */
KILNUTIL_API unsigned int KILNUTIL_DetectEncodingNeedGuess_GetSet(int get, unsigned int v);
/* Registers the address of a 32-bit flag that UTF-8 to code-page conversions
 * set when they used the default character; returns the previous address. */
KILNUTIL_API int* KILNUTIL_UNICODE_UTF8_to_mbcs_handle_conversion_default_char_used_check(int* flag);

/* ---- Script interpreter bookkeeping. */
/* get non-zero: *value = current; otherwise store *value. Returns 1. */
KILNUTIL_API int KILNUTIL_access_quill_script_level(int* value, int get);
/* op 1: one level deeper (returns the indent shown at that level); op 2: one
 * level shallower; op 3: the indent with spaces; other ops: the buffer. The
 * returned buffers belong to the library and change with the next call. */
KILNUTIL_API char* KILNUTIL_access_quill_output_indent(int op);

/* ---- Host switches. */
/* v < 0: return current; otherwise store (v != 0) and return the previous value. Default 1. */
KILNUTIL_API unsigned char KILNUTIL_IsScreenDrawing(int v);
KILNUTIL_API unsigned int SetGlobalUndoDisable(unsigned int v); /* stores (v != 0), returns previous */
KILNUTIL_API unsigned int GetGlobalUndoDisable(void);
KILNUTIL_API void KILNUTIL_SetCheckPrinterPage(unsigned int v);
KILNUTIL_API unsigned int KILNUTIL_IsCheckPrinterPage(void);
KILNUTIL_API void KILNUTIL_SetVelaCStrCharOffset(int v); /* stores (v > 0) */
KILNUTIL_API unsigned char KILNUTIL_IsVelaCStrCharOffset(void);
/* get non-zero: return current; otherwise store v and return the previous value. */
KILNUTIL_API unsigned int KILNUTIL_ImgDefJPGqualityLevel(int get, unsigned int v);          /* default 95 */
KILNUTIL_API unsigned int KILNUTIL_ImgGrObjDefPNGcompressionLevel(int get, unsigned int v); /* default 4 */
/* set 0: return current; otherwise store v and return the previous value. */
KILNUTIL_API unsigned int KILNUTIL_disabling_get_localized_PDS(int set, unsigned int v);
/* set non-zero: store v. Always returns the value now held. */
KILNUTIL_API unsigned char Kilnutil_enforce_popup_main(unsigned char v, int set);
/* v >= 0: store (v != 0) and return 0; v < 0: return current. */
KILNUTIL_API unsigned char err_msg_block(int v);
KILNUTIL_API void KILNUTIL_log_crash_report_as_enabled(unsigned int v);
KILNUTIL_API unsigned int KILNUTIL_is_crash_report_enabled(void);
/* v != 1234: store v and return 0; v == 1234: return the stored value. */
KILNUTIL_API int KILNUTIL_sparse_decompress_negative_err(int v);
/* Twelve handle slots. index above 11 (or negative): 0. get non-zero: the
 * slot; otherwise store handle and return it. */
KILNUTIL_API void* KILNUTIL_HMngr(int index, void* handle, int get);
/* Address of the four error print levels (default 1, 1, 1, -1), read and
 * written in place by callers. */
KILNUTIL_API int* KILNUTIL_error_print_level(void);
KILNUTIL_API HWND KILNUTIL_SetEditWindow(HWND hwnd); /* exchange */

/* ---- The host-access object. */
KILNUTIL_API void KILNUTIL_set_vkutil_access_obj(KilnHostAccess* obj);
KILNUTIL_API KilnHostAccess* KILNUTIL_get_vkutil_access_obj(void);
/* No object: 0. Otherwise the object's enable_gui(flag). */
KILNUTIL_API int KILNUTIL_enable_vela_gui(int flag);
/* No object: 1. Otherwise the object's is_gui_enabled(). */
KILNUTIL_API int KILNUTIL_is_vela_gui_enabled(void);

/* ---- Two-byte characters: the first byte in the low byte, the trail byte in
 * the high byte. */
/* Reads one character from a stream in the effective loading code page; flag
 * 0x1000 reads one little-endian UTF-16 unit instead. End of file gives 0x00FF
 * (test the stream's end-of-file indicator). */
KILNUTIL_API unsigned int KILNUTIL_fgetc_two_new(FILE* stream, unsigned int flags);
KILNUTIL_API unsigned int KILNUTIL_fgetc_two(FILE* stream);
/* Pushes c back so that the next reads return its bytes in their first order;
 * returns the push-back result of the low byte (EOF on failure). */
KILNUTIL_API int KILNUTIL_ungetc_two(unsigned int c, FILE* stream);
/* Stores c (one byte, or low then high byte) and returns the position behind it. */
KILNUTIL_API char* setc_two_DBCS(char* dest, unsigned int c);

/* Retired: kept so that old callers link; they do no work. */
KILNUTIL_API unsigned short getc_two(const char* text);
KILNUTIL_API unsigned short getc_two_adv(char** text);
KILNUTIL_API unsigned short getc_two_alt(const char* text);
KILNUTIL_API unsigned short getc_two_adv_alt(char** text);
KILNUTIL_API unsigned short get_two_at_offset_reverse(const char* text, int offset);
KILNUTIL_API int is_lead_char_for_2byte(unsigned char c);
KILNUTIL_API int KILNUTIL_CopyStrWithMBCSCheck(char* dest, const char* src, int size);
KILNUTIL_API char* setc_two_alt(char* dest, unsigned int c);

KILNUTIL_END_C

#ifdef __cplusplus
/* Character helpers through which the narrow/wide text templates step: narrow
 * text is UTF-8, wide text is UTF-16 units (surrogates are not combined). */
struct KILNUTIL_API KILNUTILT {
  static unsigned short GetTwo(const char* p);
  static unsigned short GetTwo(const KILN_WCHAR* p);
  static unsigned short GetTwoAdv(const char*& p);
  static unsigned short GetTwoAdv(char*& p);
  static unsigned short GetTwoAdv(const KILN_WCHAR*& p);
  static unsigned short GetTwoAdv(KILN_WCHAR*& p);
  static const char* GoBack(const char* p);
  static char* GoBack(char* p);
  static const KILN_WCHAR* GoBack(const KILN_WCHAR* p);
  static KILN_WCHAR* GoBack(KILN_WCHAR* p);
  /* The start of the last character; null for null or empty text. */
  static const char* GetLastChar(const char* p);
  static char* GetLastChar(char* p);
  static const KILN_WCHAR* GetLastChar(const KILN_WCHAR* p);
  static KILN_WCHAR* GetLastChar(KILN_WCHAR* p);
  /* Upper-cases the text in place (its length never changes); returns it. */
  static char* CharUpper_(char* p);
  static KILN_WCHAR* CharUpper_(KILN_WCHAR* p);
  /* Copies at most n - 1 units of src and terminates dest (nothing for n < 1). */
  static char* StrCpyN(char* dest, const char* src, int n);
  static KILN_WCHAR* StrCpyN(KILN_WCHAR* dest, const KILN_WCHAR* src, int n);
  /* Length in units (bytes for narrow text); 0 for null. */
  static int StrLen(const char* p);
  static int StrLen(const KILN_WCHAR* p);
};
#endif

/* ---- Character sources: where the comment-skipping reader takes its
 * characters from (an open stream or a UTF-8 string in memory). */
#ifdef __cplusplus
class KILNUTIL_API VTextAccess {
public:
  VTextAccess();
  VTextAccess(const VTextAccess& other);
  VTextAccess(VTextAccess&& other) noexcept;
  VTextAccess& operator=(const VTextAccess& other);
  VTextAccess& operator=(VTextAccess&& other) noexcept;
  virtual ~VTextAccess();
  /* The next character, advancing. */
  virtual unsigned int GetChar(unsigned int flags) = 0;
  /* Gives a character back. */
  virtual void UnGetChar(unsigned int c, unsigned int flags) = 0;
  /* Whether c, as returned by GetChar, means the end of the text. */
  virtual bool IsEOF(unsigned int c) = 0;
};

/* A stdio stream read as UTF-8 (KILNUTIL_UTF8_fgetc/_ungetc); the stream is
 * not owned and never closed here. End: 0xFFFFFFFF or the stream's end-of-file
 * indicator. */
class KILNUTIL_API VTextAccessFromFile : public VTextAccess {
public:
  explicit VTextAccessFromFile(FILE* stream);
  VTextAccessFromFile(const VTextAccessFromFile& other);
  VTextAccessFromFile(VTextAccessFromFile&& other) noexcept;
  VTextAccessFromFile& operator=(const VTextAccessFromFile& other);
  VTextAccessFromFile& operator=(VTextAccessFromFile&& other) noexcept;
  ~VTextAccessFromFile() override;
  unsigned int GetChar(unsigned int flags) override;
  void UnGetChar(unsigned int c, unsigned int flags) override;
  bool IsEOF(unsigned int c) override;

private:
  FILE* stream_;
};

/* A NUL-terminated UTF-8 string (not owned, not copied). GetChar gives
 * 0xFFFFFFFF at the NUL without moving; UnGetChar does not move back (a
 * character given back is skipped); IsEOF accepts 0 and 0xFFFFFFFF. */
class KILNUTIL_API VTextAccessFromString : public VTextAccess {
public:
  explicit VTextAccessFromString(const char* text);
  VTextAccessFromString(const VTextAccessFromString& other);
  VTextAccessFromString(VTextAccessFromString&& other) noexcept;
  VTextAccessFromString& operator=(const VTextAccessFromString& other);
  VTextAccessFromString& operator=(VTextAccessFromString&& other) noexcept;
  ~VTextAccessFromString() override;
  unsigned int GetChar(unsigned int flags) override;
  void UnGetChar(unsigned int c, unsigned int flags) override;
  bool IsEOF(unsigned int c) override;

private:
  const char* start_;
  const char* position_;
};
#else
typedef struct VTextAccess VTextAccess;
#endif

KILNUTIL_BEGIN_C

/* ---- The comment-skipping reader. Block comments ("/" "*" to "*" "/") yield
 * nothing, line comments ("//") yield their line feed; a backslash before
 * white space joins lines. *line (optional) grows by every line end consumed.
 * A null source (stream) resets the reader's quote marks and returns 0. */
#define KILNUTIL_COMMENT_END 0xFFFFFFFFu /* an unclosed block comment's result */
KILNUTIL_API unsigned int KILNUTIL_getc_skip_C_comments_ex(VTextAccess* source, int* line, unsigned int flags);
KILNUTIL_API unsigned int KILNUTIL_getc_skip_C_comments(FILE* stream, int* line, unsigned int flags);
/* Skips the block comments that open text (none when one is never closed);
 * flag KILNUTIL_COMMENTS_SKIP_SPACES also skips the white space behind each. */
#define KILNUTIL_COMMENTS_SKIP_SPACES 0x1000
KILNUTIL_API char* KILNUTIL_parse_C_comments(const char* text, unsigned int flags);
/* Skips white space, leading block comments and one line comment ("//" or
 * "#", up to its line feed). */
KILNUTIL_API char* KILNUTIL_skip_CPP_comments_and_spaces(const char* text);

KILNUTIL_END_C

#endif /* KILNUTIL_FRAME_H */
