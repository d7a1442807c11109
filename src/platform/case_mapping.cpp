// UTF-16 case mapping and the case-insensitive comparison on ICU.
#include "platform/case_mapping.h"
#include "platform/uchar_text.h"

#include <unicode/uchar.h>
#include <unicode/ucol.h>
#include <unicode/uloc.h>
#include <unicode/utf16.h>

#include <clocale>
#include <cstring>
#include <memory>
#include <string>

namespace kiln::platform {
namespace {

// Maps each code point by `map`; a pair is rewritten only when the mapped
// character needs the same number of units, so the length never changes.
unsigned map_units(KILN_WCHAR* text, unsigned count, UChar32 (*map)(UChar32)) {
  for (unsigned i = 0; i < count;) {
    UChar32 c = text[i];
    unsigned units = 1;
    if (U16_IS_LEAD(c) && i + 1 < count && U16_IS_TRAIL(text[i + 1])) {
      c = U16_GET_SUPPLEMENTARY(c, text[i + 1]);
      units = 2;
    }
    const UChar32 mapped = map(c);
    if (static_cast<unsigned>(U16_LENGTH(mapped)) == units) {
      if (units == 1) {
        text[i] = static_cast<KILN_WCHAR>(mapped);
      } else {
        text[i] = U16_LEAD(mapped);
        text[i + 1] = U16_TRAIL(mapped);
      }
    }
    i += units;
  }
  return count;
}

// The collation locale: the language of the process locale (LC_COLLATE, else
// the environment); the C/POSIX locale falls back to the root rules, whose
// case-insensitive order is the one a Windows user locale gives.
std::string collation_locale() {
  const char* name = std::setlocale(LC_COLLATE, nullptr);
  if (name == nullptr || std::strcmp(name, "C") == 0 || std::strcmp(name, "POSIX") == 0) {
    for (const char* variable : {"LC_ALL", "LC_COLLATE", "LANG"}) {
      const char* value = std::getenv(variable);
      if (value != nullptr && *value != '\0') {
        name = value;
        break;
      }
    }
  }
  std::string locale = name != nullptr ? name : "";
  locale = locale.substr(0, locale.find_first_of(".@"));
  if (locale == "C" || locale == "POSIX") locale.clear();
  return locale;
}

struct CollatorCloser {
  void operator()(UCollator* collator) const { ucol_close(collator); }
};

UCollator* case_insensitive_collator() {
  thread_local std::unique_ptr<UCollator, CollatorCloser> collator = [] {
    UErrorCode status = U_ZERO_ERROR;
    UCollator* opened = ucol_open(collation_locale().c_str(), &status);
    if (U_FAILURE(status)) {
      status = U_ZERO_ERROR;
      opened = ucol_open("", &status);
    }
    if (opened != nullptr) ucol_setStrength(opened, UCOL_SECONDARY);
    return std::unique_ptr<UCollator, CollatorCloser>(opened);
  }();
  return collator.get();
}

}  // namespace

unsigned upper_case_units(KILN_WCHAR* text, unsigned count) { return map_units(text, count, u_toupper); }

unsigned lower_case_units(KILN_WCHAR* text, unsigned count) { return map_units(text, count, u_tolower); }

int compare_ignoring_case(const KILN_WCHAR* a, const KILN_WCHAR* b) {
  UCollator* collator = case_insensitive_collator();
  if (collator == nullptr) return 0;
  switch (ucol_strcoll(collator, as_uchars(a), -1, as_uchars(b), -1)) {
    case UCOL_LESS: return -1;
    case UCOL_GREATER: return 1;
    default: return 0;
  }
}

}  // namespace kiln::platform
