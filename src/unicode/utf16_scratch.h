// A UTF-16 copy of a UTF-8 text in a scratch buffer that lives on the stack
// for short text and on the heap for long text.
#pragma once

#include "platform/codepage.h"

#include <kilnutil/export.h>

#include <memory>
#include <new>

namespace kiln::unicode {

template <int InlineUnits>
class Utf16Scratch {
public:
  // Converts `byte_count` bytes of text (-1: through its NUL) as the platform
  // converter does, replacing invalid input. ok() is false when the heap
  // buffer could not be had.
  Utf16Scratch(const char* text, int byte_count) {
    const int needed = platform::multibyte_to_wide(platform::kCodePageUtf8, text, byte_count, nullptr, 0);
    units_ = inline_;
    if (needed > InlineUnits) {
      heap_.reset(new (std::nothrow) KILN_WCHAR[needed]);
      units_ = heap_.get();
    }
    if (units_ != nullptr && needed > 0) {
      size_ = platform::multibyte_to_wide(platform::kCodePageUtf8, text, byte_count, units_, needed);
    }
  }

  bool ok() const { return units_ != nullptr; }
  KILN_WCHAR* data() { return units_; }
  int size() const { return size_; }

private:
  KILN_WCHAR inline_[InlineUnits];
  std::unique_ptr<KILN_WCHAR[]> heap_;
  KILN_WCHAR* units_ = nullptr;
  int size_ = 0;
};

}  // namespace kiln::unicode
