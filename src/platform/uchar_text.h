// The library's UTF-16 text as ICU's code-unit type. Both are char16_t on
// POSIX, so the view is the same pointer; another unit type of the same size
// (wchar_t on Windows) is reinterpreted.
#pragma once

#include <kilnutil/export.h>

#include <unicode/umachine.h>

#include <type_traits>

namespace kiln::platform {

template <class Unit>
const UChar* as_uchars(const Unit* text) {
  static_assert(sizeof(Unit) == sizeof(UChar));
  if constexpr (std::is_same_v<Unit, UChar>) {
    return text;
  } else {
    return reinterpret_cast<const UChar*>(text);
  }
}

}  // namespace kiln::platform
