// UTF-16 case mapping and the locale-aware case-insensitive comparison
// (CharUpperBuffW, CharLowerBuffW, lstrcmpiW), through ICU on POSIX.
#pragma once

#include <kilnutil/export.h>

namespace kiln::platform {

// Converts `count` units in place by the simple (one-to-one) case mapping;
// the length never changes. Returns the number of units processed.
unsigned upper_case_units(KILN_WCHAR* text, unsigned count);
unsigned lower_case_units(KILN_WCHAR* text, unsigned count);

// Compares two zero-terminated UTF-16 strings ignoring case by the collation
// rules of the user's locale (accents still count): -1, 0 or 1.
int compare_ignoring_case(const KILN_WCHAR* a, const KILN_WCHAR* b);

}  // namespace kiln::platform
