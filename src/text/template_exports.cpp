// The narrow/wide token templates: their exported instances for UTF-8 and
// UTF-16 text, and the A and W exports, each forwarding to its instance.
#include "text/templates.h"

#include <kilnutil/text.h>

template <class Ch>
Ch* KILNUTILT_TrimLeft(Ch* text) {
  return text != nullptr ? kiln::text::trim_left(text) : nullptr;
}

template <class Ch>
Ch* KILNUTILT_TrimRight(Ch* text) {
  return text != nullptr ? kiln::text::trim_right(text) : nullptr;
}

template <class Ch>
Ch* KILNUTILT_TrimBoth(Ch* text) {
  return text != nullptr ? kiln::text::trim_both(text) : nullptr;
}

template <class Ch>
Ch* KILNUTILT_ExposedCharPos(const Ch* text, int target, unsigned int flags, int* status) {
  return kiln::text::exposed_pos(text, target, flags, status);
}

template <class Ch>
Ch* KILNUTILT_StrChar(const Ch* text, int c, int mode) {
  return kiln::text::str_char(text, c, static_cast<unsigned>(mode));
}

template <class Ch>
Ch* KILNUTILT_NextToken(Ch* dest, const Ch* text, const Ch* separators, int size) {
  return kiln::text::next_token(dest, text, separators, size);
}

template <class Ch>
int KILNUTILT_SeparateStrToTokenList(Ch* text, Ch** list, int sep, int max) {
  return kiln::text::separate_str_to_token_list(text, list, sep, max);
}

template <class Ch>
int KILNUTILT_FirstLineTokens(Ch* text, int sep) {
  return kiln::text::first_line_tokens(text, sep);
}

template <class Ch>
int KILNUTILT_LineCount(const Ch* text) {
  return kiln::text::line_count(text);
}

template <class Ch>
int KILNUTILT_WordsInLine(const Ch* text) {
  return kiln::text::words_in_line(text);
}

template <class Ch>
int KILNUTILT_num_words_in_lines(const Ch* text, int lines) {
  return kiln::text::num_words_in_lines(text, lines);
}

template <class Ch>
int KILNUTILT_CountConsistenTokens(Ch* text, int sep, int enough, int lines) {
  return kiln::text::count_consistent_tokens(text, sep, enough, lines);
}

template <class Ch>
int KILNUTILT_FindSeparator(Ch* text, int enough, int lines) {
  return text != nullptr ? kiln::text::find_separator(text, enough, lines) : -1;
}

#define KILNUTILT_INSTANTIATE(Ch)                                                \
  template Ch* KILNUTILT_TrimLeft<Ch>(Ch*);                                      \
  template Ch* KILNUTILT_TrimRight<Ch>(Ch*);                                     \
  template Ch* KILNUTILT_TrimBoth<Ch>(Ch*);                                      \
  template Ch* KILNUTILT_ExposedCharPos<Ch>(const Ch*, int, unsigned int, int*); \
  template Ch* KILNUTILT_StrChar<Ch>(const Ch*, int, int);                       \
  template Ch* KILNUTILT_NextToken<Ch>(Ch*, const Ch*, const Ch*, int);          \
  template int KILNUTILT_SeparateStrToTokenList<Ch>(Ch*, Ch**, int, int);        \
  template int KILNUTILT_FirstLineTokens<Ch>(Ch*, int);                          \
  template int KILNUTILT_LineCount<Ch>(const Ch*);                               \
  template int KILNUTILT_WordsInLine<Ch>(const Ch*);                             \
  template int KILNUTILT_num_words_in_lines<Ch>(const Ch*, int);                 \
  template int KILNUTILT_CountConsistenTokens<Ch>(Ch*, int, int, int);           \
  template int KILNUTILT_FindSeparator<Ch>(Ch*, int, int);

KILNUTILT_INSTANTIATE(char)
KILNUTILT_INSTANTIATE(KILN_WCHAR)

extern "C" {

char* KILNUTIL_TrimLeftA(char* text) { return KILNUTILT_TrimLeft(text); }
KILN_WCHAR* KILNUTIL_TrimLeftW(KILN_WCHAR* text) { return KILNUTILT_TrimLeft(text); }
char* KILNUTIL_TrimRightA(char* text) { return KILNUTILT_TrimRight(text); }
KILN_WCHAR* KILNUTIL_TrimRightW(KILN_WCHAR* text) { return KILNUTILT_TrimRight(text); }
char* KILNUTIL_TrimBothA(char* text) { return KILNUTILT_TrimBoth(text); }
KILN_WCHAR* KILNUTIL_TrimBothW(KILN_WCHAR* text) { return KILNUTILT_TrimBoth(text); }

char* KILNUTIL_ExposedCharPosA(const char* text, int target, unsigned int flags, int* status) {
  return KILNUTILT_ExposedCharPos(text, target, flags, status);
}
KILN_WCHAR* KILNUTIL_ExposedCharPosW(const KILN_WCHAR* text, int target, unsigned int flags, int* status) {
  return KILNUTILT_ExposedCharPos(text, target, flags, status);
}

char* KILNUTIL_StrCharA(const char* text, int c, int mode) { return KILNUTILT_StrChar(text, c, mode); }
KILN_WCHAR* KILNUTIL_StrCharW(const KILN_WCHAR* text, int c, int mode) { return KILNUTILT_StrChar(text, c, mode); }

char* KILNUTIL_NextTokenA(char* dest, const char* text, const char* separators, int size) {
  return KILNUTILT_NextToken(dest, text, separators, size);
}
KILN_WCHAR* KILNUTIL_NextTokenW(KILN_WCHAR* dest, const KILN_WCHAR* text, const KILN_WCHAR* separators, int size) {
  return KILNUTILT_NextToken(dest, text, separators, size);
}

int KILNUTIL_SeparateStrToTokensA(char* text, char** list, int sep, int max) {
  return KILNUTILT_SeparateStrToTokenList(text, list, sep, max);
}
int KILNUTIL_SeparateStrToTokensW(KILN_WCHAR* text, KILN_WCHAR** list, int sep, int max) {
  return KILNUTILT_SeparateStrToTokenList(text, list, sep, max);
}

int KILNUTIL_FirstLineTokensA(char* text, int sep) { return KILNUTILT_FirstLineTokens(text, sep); }
int KILNUTIL_FirstLineTokensW(KILN_WCHAR* text, int sep) { return KILNUTILT_FirstLineTokens(text, sep); }

int KILNUTIL_LineCountA(const char* text) { return KILNUTILT_LineCount(text); }
int KILNUTIL_LineCountW(const KILN_WCHAR* text) { return KILNUTILT_LineCount(text); }

int KILNUTIL_TestWordsInLineA(const char* text, int lines) { return KILNUTILT_num_words_in_lines(text, lines); }
int KILNUTIL_TestWordsInLineW(const KILN_WCHAR* text, int lines) { return KILNUTILT_num_words_in_lines(text, lines); }

}  // extern "C"
