// Code-page text straight to UTF-8 for the code pages whose characters
// convert independently of each other: the Windows single-byte pages and the
// double-byte pages 932, 936, 949 and 950. Each distinct character goes
// through the platform converter once per call, on its own (exactly as the
// converter would meet it inside the text), and its UTF-8 form is reused for
// every further occurrence. The results are those of the two-step conversion
// through UTF-16.
#pragma once

#include "unicode/code_page_text.h"

namespace kiln::unicode {

// Below this many bytes the per-call tables cost more than they save.
inline constexpr int kDirectConversionMinimum = 256;

// Converts `length` bytes (-1: through the NUL, which is converted too) into
// `utf8`. The UTF-8 byte count (the NUL included when converted); 0 when the
// text converts to nothing or memory can't be had; -1 when this code page or
// text has no direct path (the caller then converts through UTF-16).
int code_page_to_utf8_direct(unsigned code_page, const char* text, int length, Scratch<char>& utf8);

}  // namespace kiln::unicode
