// Shared pieces of the code-page conversions: which code page an argument
// means, scratch buffers that stay on the stack for short text, and the
// "count, then convert" steps into UTF-16 and out of it.
#pragma once

#include "platform/codepage.h"

#include <kilnutil/export.h>

#include <cstddef>
#include <memory>
#include <new>

namespace kiln::unicode {

// The code page an argument stands for: below 0 the effective code page (the
// string-process code page, else the system ANSI page); the system aliases 0
// (ANSI), 1 (OEM) and 3 (thread ANSI) are the ANSI code page, 2 the Mac page.
unsigned resolve_code_page(int code_page);

// UTF-16 text (to its zero unit) as UTF-8 in `dst` of `dst_size` bytes: the
// byte count without the NUL, 0 for an empty source, -1 when it does not fit.
int utf16_to_utf8_buffer(char* dst, int dst_size, const KILN_WCHAR* src);

// UTF-8 text (`src_len` bytes, or to its NUL when negative) as UTF-16 in `dst`
// of `dst_units` units: the unit count without the zero, 0 for an empty
// source, -1 when it does not fit. An explicit length is terminated one unit
// past what the size test covers, so callers keep one spare unit.
int utf8_to_utf16_buffer(KILN_WCHAR* dst, int dst_units, const char* src, int src_len);

// Code-page text (`src_len` bytes, or to its NUL when negative) as UTF-8 in
// `dst`: the byte count without the NUL, 0 (destination emptied) for an empty
// source, a failure or a destination too small (dst_size 0: unbounded).
int code_page_to_utf8_buffer(const char* src, int src_len, char* dst, int dst_size, int code_page);

// UTF-8 text as code-page text in `dst`: the byte count as the platform's
// converter gives it (with the NUL for a terminated source), 1 for an empty
// source.
int utf8_to_code_page_buffer(const char* src, int src_len, char* dst, int dst_size, int code_page);

// Swaps the bytes of every unit up to the zero unit (null: nothing).
void swap_utf16_bytes(KILN_WCHAR* text);

// Whether the UTF-8 text converts to the code page (system aliases 0..3
// resolved) without the default character: 1, 0 when it needs it, -1 when it
// can't be converted at all.
int utf8_convertibility(const char* text, unsigned code_page);

// Scratch storage of `T`: inline up to InlineBytes, on the heap above.
template <typename T, size_t InlineBytes = 8192>
class Scratch {
public:
  Scratch() = default;
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;

  // Room for `count` elements; false when the heap could not provide it.
  bool reserve(size_t count) {
    if (count <= kInlineCount) {
      data_ = inline_;
      return true;
    }
    heap_.reset(new (std::nothrow) T[count]);
    data_ = heap_.get();
    return data_ != nullptr;
  }
  T* data() { return data_; }

private:
  static constexpr size_t kInlineCount = InlineBytes / sizeof(T);
  T inline_[kInlineCount];
  std::unique_ptr<T[]> heap_;
  T* data_ = inline_;
};

using WideScratch = Scratch<KILN_WCHAR>;

// Converts `length` bytes (-1: through the NUL) of code-page text into
// `units`: the number of units, or 0 when the text converts to nothing, the
// scratch can't be had or the second pass disagrees with the count.
template <size_t InlineBytes>
int to_wide(unsigned code_page, const char* text, int length, Scratch<KILN_WCHAR, InlineBytes>& units) {
  const int count = platform::multibyte_to_wide(code_page, text, length, nullptr, 0);
  if (count <= 0 || !units.reserve(static_cast<size_t>(count))) return 0;
  const int converted = platform::multibyte_to_wide(code_page, text, length, units.data(), count);
  return converted == count ? count : 0;
}

// Bytes of `units` in the code page (no default-character report), 0 on failure.
inline int multibyte_size(unsigned code_page, const KILN_WCHAR* units, int count) {
  return platform::wide_to_multibyte(code_page, units, count, nullptr, 0);
}

}  // namespace kiln::unicode
