/* kilnutil unicode: UTF-8 and UTF-16 primitives.
 *
 * Narrow text is a NUL-terminated UTF-8 byte string, wide text a
 * zero-terminated string of UTF-16 units. The stepping functions never reject
 * malformed input: they walk it by one fixed, lenient rule (a lead byte's bits
 * 0x20 and 0x10 decide the length, a NUL always ends the character), so no walk
 * can pass the terminating NUL whatever the bytes are. */
#ifndef KILNUTIL_UNICODE_H
#define KILNUTIL_UNICODE_H

#include "kilnutil/export.h"

KILNUTIL_BEGIN_C

/* ---- UTF-8 primitives. */
/* Position of the next character. */
KILNUTIL_API char* KILNUTIL_UNICODE_UTF8_adv_str(const char* s);
/* Given the position just past a character, the position of its first byte.
 * Never call it at the start of a string: there is no lower bound check. */
KILNUTIL_API char* KILNUTIL_UNICODE_UTF8_go_back_in_str(const char* p);
/* Code point of the character at s (no check for overlong or surrogate forms). */
KILNUTIL_API unsigned int KILNUTIL_UNICODE_UTF8_get_char(const char* s);
/* Code point at *ps; *ps moves past the character (onto a NUL that cuts it short). */
KILNUTIL_API unsigned int KILNUTIL_UNICODE_UTF8_get_char_adv_str(const char** ps);
/* Writes the UTF-8 form of cp (no NUL) and returns the position behind it;
 * cp >= 0x110000 writes nothing. */
KILNUTIL_API char* KILNUTIL_UNICODE_UTF8_setc(char* out, unsigned int cp);
/* Bytes in cp's UTF-8 form (0 for cp >= 0x110000), written into buf when given. */
KILNUTIL_API int KILNUTIL_UNICODE_UTF8_get_char_length(unsigned int cp, char* buf);
/* Number of characters; 0 for null. */
KILNUTIL_API int KILNUTIL_UNICODE_UTF8_StrLength(const char* s);
/* Byte offset of character number n (number first, string second). */
KILNUTIL_API int KILNUTIL_UNICODE_UTF8_StrCharToIndex(int n, const char* s);
/* Index of the character at or after byte offset b (offset first, string second). */
KILNUTIL_API int KILNUTIL_UNICODE_UTF8_StrIndexToChar(int b, const char* s);
/* Copies whole characters of src into dst within `budget` bytes, then a NUL
 * (dst holds budget + 1 bytes); returns the number of characters copied. */
KILNUTIL_API int KILNUTIL_UNICODE_UTF8_copy_n_bytes(char* dst, int budget, const char* src);
/* Walks the whole string; returns the position of its terminating NUL. */
KILNUTIL_API char* KILNUTIL_UNICODE_UTF8_ASSERT_VALID(const char* s);
/* -1, 0 or 1, ordered by UTF-16 code units. */
KILNUTIL_API int KILNUTIL_UNICODE_UTF8_Compare(const char* a, const char* b);
/* Negative, 0 or positive, ignoring case by the user's locale rules. */
KILNUTIL_API int KILNUTIL_UNICODE_UTF8_CompareI(const char* a, const char* b);
/* In-place case change of a UTF-8 string (at most len bytes when
 * 1 <= len < its length), never growing it; with is_char non-zero and p below
 * 0x10000, p is one UTF-16 character and the converted character is returned. */
KILNUTIL_API char* KILNUTIL_UNICODE_UTF8_to_upper_or_to_lower(char* p, int to_lower, int is_char, int len);
/* Position of the last character (its code point into *pch when given); null
 * and *pch = 0 for an empty string. */
KILNUTIL_API char* KILNUTIL_UTF8_get_ptr_to_last_char(const char* s, unsigned int* pch);
/* Code point of the last character, 0 for an empty string. */
KILNUTIL_API unsigned int KILNUTIL_UTF8_get_last_char(const char* s);

/* ---- UTF-16 companions. */
/* Position of the next character, its code point into *pch when given. An
 * unpaired surrogate steps back one unit (the result is s - 1): test for it. */
KILNUTIL_API KILN_WCHAR* KILNUTIL_UNICODE_UTF16_adv_str(const KILN_WCHAR* s, unsigned int* pch);
/* Units in cp's UTF-16 form (1, 2, or -1 from 0x110000 up), written into buf
 * (or a scratch buffer) followed by a zero unit at index = the result; for -1
 * that zeroes the unit before buf. */
KILNUTIL_API int KILNUTIL_UNICODE_UTF16_get_char_length(unsigned int cp, KILN_WCHAR* buf);

KILNUTIL_END_C

#include "kilnutil/platform.h"
#include <stdio.h>

KILNUTIL_BEGIN_C

/* ==== Code-page conversion and Unicode text files.
 *
 * Every conversion goes through UTF-16 with invalid input replaced, never
 * rejected. A code-page argument below 0 means the string-process code page
 * (set_code_page_for_string_process), or the system ANSI code page when that
 * is not set; 0 is the system ANSI code page, 65001 is UTF-8. */

/* Growable buffer for KILNUTIL_UNICODE_mbcs_to_UTF8_callback. */
typedef struct MbcsToUTF8CallbackBuffer {
  void* reserved; /* the caller's */
  /* Enlarges buffer to at least `needed` bytes and updates buffer and
   * capacity; non-zero on success. */
  int (*grow)(struct MbcsToUTF8CallbackBuffer* record, unsigned int needed);
  unsigned int byte_limit; /* 0: none; else the most bytes, NUL included */
  char* buffer;            /* MBCS text on entry, UTF-8 text on return */
  unsigned int capacity;   /* bytes in buffer */
} MbcsToUTF8CallbackBuffer;

/* State of one text file opened as UTF-8 (INIT, BEGIN, END). */
typedef struct TextFileToUTF8Context {
  char path[1040];           /* UTF-8 path of the file; set by the caller */
  KILN_WCHAR temp_path[520]; /* the converted copy; empty when none */
  int binary_reopen;         /* reopen the copy with "rb" */
  int write_mark;            /* start the copy with EF BB BF */
  int keep_mark;             /* unconverted: leave the stream at offset 0 */
  int reopen_as_utf8;        /* unconverted: reopen with "rt, ccs=UTF-8" */
  int utf8_text_mode;        /* copy reopened "rt, ccs=UTF-8" (else "rt") unless binary */
  int guess;                 /* detection may guess beyond the mark */
  unsigned char mark_size;   /* set by BEGIN: mark bytes at the stream's start */
  FILE* converted_stream;    /* set by BEGIN: the stream on the copy */
  const char* fallback_mode; /* reopen mode when conversion fails; required */
  int no_conversion;         /* never convert; only skip or keep the mark */
} TextFileToUTF8Context;

/* ---- Buffer conversions (a source length of -1: NUL-terminated). */
/* MBCS to UTF-8; dst_size <= 0 is unbounded. The UTF-8 byte count minus one
 * (the text length for a NUL-terminated source, one less than the bytes
 * written for an explicit length); 0 on any failure, dst emptied. */
KILNUTIL_API int KILNUTIL_UNICODE_MBCS_to_UTF8(const char* src, int src_len, char* dst, int dst_size, int code_page);
/* UTF-8 to MBCS: bytes written (NUL included for a NUL-terminated source, the
 * needed size when dst_size is 0), 0 on failure, 1 for an empty source. */
KILNUTIL_API int KILNUTIL_UNICODE_UTF8_to_MBCS(const char* src, int src_len, char* dst, int dst_size, int code_page);
/* UTF-16 to UTF-8: length without NUL; 0 for an empty source; -1 when it
 * does not fit (dst_size counts the NUL) or fails. */
KILNUTIL_API int KILNUTIL_UNICODE_UTF16_to_UTF8_buffers(char* dst, int dst_size, const KILN_WCHAR* src);
/* UTF-8 to UTF-16: units converted minus one; 0 for an empty source; -1 when
 * it does not fit or fails. With an explicit length a zero unit may be stored
 * at index dst_units: give one spare unit. */
KILNUTIL_API int KILNUTIL_UNICODE_UTF8_to_UTF16_buffers_ex(KILN_WCHAR* dst, int dst_units, const char* src,
                                                           int src_len);
/* Swaps the bytes of every unit up to the zero unit, in place; returns 1. */
KILNUTIL_API int KILNUTIL_UNICODE_UTF16LE_to_UTF16BE(KILN_WCHAR* text);
/* Converts the record's MBCS text to UTF-8 in its buffer, growing it through
 * the record; within the byte limit no character is split. UTF-8 length
 * without NUL; 0 for empty text; -1 on failure. */
KILNUTIL_API int KILNUTIL_UNICODE_mbcs_to_UTF8_callback(MbcsToUTF8CallbackBuffer* record, int code_page);
/* 1 if every character has a form in the code page (taken as given), 0 if
 * not, -1 if the text does not convert. */
KILNUTIL_API int IsUTF8StringConvertibleToCodePage(const char* text, unsigned int code_page);

/* ---- Global-memory conversions. The caller owns the handle in its variable
 * after the call. */
/* direction 0: MBCS to UTF-8; otherwise UTF-8 to MBCS (reporting a default
 * character through the registered flag). Bytes of the new text with its
 * NUL; 1 for empty text; 0 for a null handle or failed lock; -1 on failure. */
KILNUTIL_API int KILNUTIL_UNICODE_mbcs_to_UTF8_or_back_handle(HGLOBAL* handle, int direction, int code_page);
KILNUTIL_API int KILNUTIL_UNICODE_mbcs_to_UTF8_handle(HGLOBAL* handle, int code_page);
KILNUTIL_API int KILNUTIL_UNICODE_UTF8_to_mbcs_handle(HGLOBAL* handle, int code_page);
/* A new handle holding the UTF-16 text (GHND when movable, else GPTR), or
 * null; the source is freed when free_source is set, whatever happens. */
KILNUTIL_API HGLOBAL KILNUTIL_UNICODE_UTF8_to_UTF16_handle(HGLOBAL utf8, int movable, int free_source);
/* Writes a UTF-16 file (taken to start with a 2-byte mark) as ANSI code-page
 * text: 1 when the source was UTF-16 text, else 0 (the destination is
 * created either way when both files open). */
KILNUTIL_API int KILNUTIL_ConvertUNICODEtoMBCS(const char* src_path, const char* dst_path);

/* ---- UTF-8 paths. */
#if !defined(_WIN32) && !defined(INVALID_HANDLE_VALUE)
/* A file handle of KILNUTIL_UTF8_CreateFile: the file descriptor (close it
 * with close()); INVALID_HANDLE_VALUE on failure. */
typedef void* HANDLE;
#  ifdef __cplusplus
#    define INVALID_HANDLE_VALUE (reinterpret_cast<HANDLE>(static_cast<long>(-1)))
#  else
#    define INVALID_HANDLE_VALUE ((HANDLE)(long)-1)
#  endif
#endif
/* fopen of a UTF-8 path; text modes ("rt", "rt, ccs=UTF-8") open as "r". */
KILNUTIL_API FILE* KILNUTIL_UTF8_fopen(const char* path, const char* mode);
/* CreateFileW of a UTF-8 path: access GENERIC_READ/GENERIC_WRITE, share mode
 * and security ignored, disposition CREATE_NEW..TRUNCATE_EXISTING (1..5),
 * FILE_ATTRIBUTE_READONLY honoured at creation, template ignored. */
KILNUTIL_API HANDLE KILNUTIL_UTF8_CreateFile(const char* path, unsigned int access, unsigned int share_mode,
                                             void* security, unsigned int disposition,
                                             unsigned int flags_and_attributes, HANDLE template_file);
/* access() of a UTF-8 path: mode 0 exists, 2 write, 4 read, 6 both; 0 or -1. */
KILNUTIL_API int KILNUTIL_UTF8__access(const char* path, int mode);

/* ---- One character at a time. `stream` is a FILE*, or with flag 4 a
 * KilnByteSource*. Flag 0x1000: one raw little-endian UTF-16 unit; 0x2000:
 * a wide-oriented stdio stream. */
#define KILNUTIL_CHAR_SOURCE 0x4
#define KILNUTIL_CHAR_RAW_UTF16 0x1000
#define KILNUTIL_CHAR_WIDE_STREAM 0x2000
/* One UTF-8 character (continuation bytes unchecked), or -1 at the end. */
KILNUTIL_API int KILNUTIL_UTF8_fgetc(void* stream, unsigned int flags);
/* Pushes c back as UTF-8 bytes so the next reads return it; nothing for
 * c >= 0x110000. */
KILNUTIL_API void KILNUTIL_UTF8_ungetc(unsigned int c, void* stream, unsigned int flags);
/* One UTF-16 unit (big_endian: first byte high), or -1 at the end. */
KILNUTIL_API int KILNUTIL_UTF16_fgetc(void* stream, int big_endian, unsigned int flags);
/* Pushes a unit back for KILNUTIL_UTF16_fgetc with the same big_endian;
 * returns the last push-back's result. */
KILNUTIL_API int KILNUTIL_UTF16_ungetc(unsigned int unit, void* stream, int big_endian, unsigned int flags);

/* ---- Any text file as a UTF-8 stream: INIT, fill path, fallback_mode and
 * flags, open the stream, BEGIN (may close it and return another), read, END
 * with the stream BEGIN returned (deletes the converted copy). */
KILNUTIL_API void KILNUTIL_UNICODE_open_text_file_to_UTF8_INIT(TextFileToUTF8Context* context);
KILNUTIL_API FILE* KILNUTIL_UNICODE_open_text_file_to_UTF8_BEGIN(FILE* stream, TextFileToUTF8Context* context);
KILNUTIL_API void KILNUTIL_UNICODE_open_text_file_to_UTF8_END(FILE* stream, TextFileToUTF8Context* context);

/* ---- Whole-file rewrites: the new content goes to a temporary file in the
 * same folder, which replaces the original only when completely written; on
 * any failure the original is left as it was. Failure codes: */
#define KILNUTIL_REWRITE_SHORT_WRITE (-321)
#define KILNUTIL_REWRITE_CANT_WRITE (-322)
#define KILNUTIL_REWRITE_NOT_UTF16_CONVERTIBLE (-323)
#define KILNUTIL_REWRITE_NO_MARK (-324)
#define KILNUTIL_REWRITE_SHORT_READ (-325)
#define KILNUTIL_REWRITE_NO_MEMORY_FOR_TEXT (-326)
#define KILNUTIL_REWRITE_NO_MEMORY_FOR_FILE (-327)
#define KILNUTIL_REWRITE_EMPTY_FILE (-328)
#define KILNUTIL_REWRITE_CANT_OPEN (-329)
#define KILNUTIL_REWRITE_CODE_PAGE_FAILS (-330)
/* 2 mark added; 1 ASCII only with only_if_non_ascii set, or the file can't be
 * rewritten; 0 mark present; -321 short write; -325 short read; -327 no
 * memory; -328 empty; -329 can't be opened. */
KILNUTIL_API int InsertUTF8BOM(const char* path, int only_if_non_ascii);
/* 1 converted (rewritten without mark); 0 some character has no form in the
 * code page; -321 short write; -322 can't write; -323 not UTF-16 convertible;
 * -324 no mark; -325 short read; -326/-327 no memory; -328 empty; -329
 * can't be opened; -330 code-page conversion fails. */
KILNUTIL_API int ConvertUTF8TextFileToCodePageIfPossible(const char* path, int code_page);
/* 1 when the file was created (with its folders) or emptied as a new UTF-16
 * file holding the mark FF FE; a file without mark is rewritten as UTF-16 from
 * the effective code page (result 0); anything else is left alone (0). */
KILNUTIL_API int KILNUTIL_MakeFileUTF16(const KILN_WCHAR* path);
/* KILNUTIL_MakeFileUTF16 of a UTF-8 path, deleting the file first when asked. */
KILNUTIL_API void make_file_UTF16(const char* path, int delete_first);

/* ==== Encoding detection. Codes: family in the low byte (0 code page, 1
 * UTF-8, 2 UTF-16LE, 3 UTF-16BE, 4 UTF-32LE, 5 UTF-32BE), 0x100 a mark,
 * 0x200 pure ASCII, 255 empty or unopenable. */
#define KILNUTIL_ENCODING_CODE_PAGE 0u
#define KILNUTIL_ENCODING_UTF8 1u
#define KILNUTIL_ENCODING_UTF16LE 2u
#define KILNUTIL_ENCODING_UTF16BE 3u
#define KILNUTIL_ENCODING_UTF32LE 4u
#define KILNUTIL_ENCODING_UTF32BE 5u
#define KILNUTIL_ENCODING_MARK 0x100u
#define KILNUTIL_ENCODING_ASCII 0x200u
#define KILNUTIL_ENCODING_NONE 255u
/* flags bit 0: look at the mark only. */
#define KILNUTIL_DETECT_MARK_ONLY 0x1
KILNUTIL_API unsigned int KILNUTIL_DetectEncodingBuffer(const unsigned char* bytes, unsigned int count, int flags);
/* Examines at most max_bytes (0: all) from the start; the position is restored. */
KILNUTIL_API unsigned int KILNUTIL_DetectEncoding(FILE* stream, unsigned int max_bytes, int flags);
/* 255 when the file can't be opened or is empty. */
KILNUTIL_API unsigned int KILNUTIL_DetectEncodingFile(const char* path, unsigned int max_bytes, int flags);
/* Mark bytes of an encoding code: 0, 2, 3 or 4. */
KILNUTIL_API int KILNUTIL_GetBOMSize(unsigned int code);
/* Bytes examined by kind (0 ".CSV", 1 ".TXT", 2 other; 0 = whole file):
 * set 0 stores the count in *value, otherwise sets it from *value. 0, or -1
 * for a bad kind or a negative value. */
KILNUTIL_API int KILNUTIL_DetectEncoding_GetSet_BufferSize(int set, double* value, int kind);
/* Bytes to examine for a file by its extension. */
KILNUTIL_API unsigned int KILNUTIL_DetectEncoding_GetBufSizeFromFilePath(const char* path);

/* ==== Base64 (RFC 4648 alphabet, "=" padding). No NUL is written and the
 * destination is never allocated: size it with a call without one. */
/* 4 characters per started group of 3 bytes. Large inputs are encoded on
 * several threads. Pass no destination for an empty input. */
KILNUTIL_API int KILNUTIL_encode_base64(const unsigned char* src, int len, char* dst);
KILNUTIL_API int encode_base64(const unsigned char* src, int len, char* dst);
/* Bytes decoded, skipping every character outside the alphabet; with a null
 * source, len + 3. */
KILNUTIL_API int KILNUTIL_decode_base64(const char* src, int len, unsigned char* dst);
KILNUTIL_API int decode_base64(const char* src, int len, unsigned char* dst);

KILNUTIL_END_C

#ifdef __cplusplus
/* What the character readers read from under flag 4: a source of bytes that
 * can give the last ones back. The library's character sources implement it. */
class KilnByteSource {
public:
  virtual int next_byte() = 0;              /* 0..255, or -1 at the end */
  virtual int push_back_byte(int byte) = 0; /* byte, or -1 when refused */

protected:
  ~KilnByteSource() = default;
};
#endif

#endif /* KILNUTIL_UNICODE_H */
