// Encoding detection: the byte-order mark first, then (when guessing is
// allowed) a UTF-8 check and two heuristics for UTF-16 without a mark. The
// exported detectors (kilnutil/unicode.h) are thin wrappers around these.
#pragma once

#include <kilnutil/unicode.h>

#include <cstddef>
#include <cstdio>

namespace kiln::unicode {

// Encoding codes as the detectors return them.
inline constexpr unsigned kEncodingCodePage = KILNUTIL_ENCODING_CODE_PAGE;
inline constexpr unsigned kEncodingUtf8 = KILNUTIL_ENCODING_UTF8;
inline constexpr unsigned kEncodingUtf16Le = KILNUTIL_ENCODING_UTF16LE;
inline constexpr unsigned kEncodingUtf16Be = KILNUTIL_ENCODING_UTF16BE;
inline constexpr unsigned kEncodingUtf32Le = KILNUTIL_ENCODING_UTF32LE;
inline constexpr unsigned kEncodingUtf32Be = KILNUTIL_ENCODING_UTF32BE;
inline constexpr unsigned kEncodingMarkBit = KILNUTIL_ENCODING_MARK;
inline constexpr unsigned kEncodingAsciiBit = KILNUTIL_ENCODING_ASCII;
inline constexpr unsigned kEncodingNone = KILNUTIL_ENCODING_NONE;

inline constexpr unsigned encoding_family(unsigned code) { return code & 0xFF; }

// Bits of the process-wide guess setting.
inline constexpr unsigned kGuessAllowed = 1;
inline constexpr unsigned kGuessZeroPairRulesOutUtf16 = 4;
// Bit of a detector's flags argument: look at the mark only.
inline constexpr int kDetectMarkOnly = KILNUTIL_DETECT_MARK_ONLY;

// Whether a detector call with these flags may look beyond the mark.
bool guessing_allowed(int flags);

// The encoding code of a mark at the start of the bytes, 0 when there is none.
// FF FE is tested before FF FE 00 00, so a UTF-32LE mark reads as UTF-16LE.
unsigned mark_encoding(const unsigned char* bytes, size_t count);

enum class Utf8Verdict { kInvalid, kAscii, kUtf8 };

// Valid UTF-8 without zero bytes (a sequence cut off by the end still
// passes); kUtf8 once any continuation byte was examined.
Utf8Verdict utf8_verdict(const unsigned char* bytes, size_t count);

// UTF-16 without a mark, judged by line ends: kEncodingUtf16Le, ...Be, or 0.
unsigned utf16_by_line_ends(const unsigned char* bytes, size_t count, unsigned guess_setting);
// UTF-16 without a mark, judged by the share of zero bytes at even and odd
// offsets (percent thresholds): kEncodingUtf16Le, ...Be, or 0.
unsigned utf16_by_zero_ratio(const unsigned char* bytes, size_t count, int high_percent, int low_percent);

// The stand-in for the system's "is this UTF-16 text" test: a UTF-16LE mark,
// or an even size judged UTF-16LE by the two heuristics (a pair of zero bytes
// rules the line-end test out).
bool looks_like_utf16_text(const unsigned char* bytes, size_t size);

// The full buffer detector with the process-wide guess setting.
unsigned detect_encoding(const unsigned char* bytes, size_t count, int flags);

// Detection over the first bytes of a stream (max_bytes 0: all of it, 4 when
// only the mark counts); the stream's position is restored.
unsigned detect_stream_encoding(FILE* stream, unsigned max_bytes, int flags);
// The same over the first bytes of a file; kEncodingNone when it can't be opened.
unsigned detect_file_encoding(const char* path, unsigned max_bytes, int flags);

// The length of the byte-order mark an encoding code reports (0 without one).
int byte_order_mark_size(unsigned code);

// How many leading bytes the detector examines in the file at `path` (by its
// extension: .csv, .txt or any other).
unsigned detect_buffer_size_for_path(const char* path);

}  // namespace kiln::unicode
