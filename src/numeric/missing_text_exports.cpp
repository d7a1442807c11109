// The text that stands for the missing value, and the decimal and grouping
// characters of the numeric separator styles.
#include "frame/settings.h"

#include <kilnutil/frame.h>
#include <kilnutil/numeric.h>

#include <cstring>

namespace {

constexpr std::size_t kMissingTextSize = 25;
constexpr unsigned kMissingAsBlankOption = 2;

char g_missing_text[kMissingTextSize] = "--";

struct SeparatorStyle {
  char decimal;
  char grouping;
};

constexpr SeparatorStyle kSeparatorStyles[] = {{'.', ','}, {',', '.'}, {',', ' '}, {'.', '\''}, {'.', ' '}};

}  // namespace

char* KILNUTIL_get_missing_as_text(const char* text) {
  if (text != nullptr) {
    const std::size_t length = strnlen(text, kMissingTextSize - 1);
    std::memmove(g_missing_text, text, length);
    g_missing_text[length] = '\0';
  }
  return g_missing_text;
}

int KILNUTIL_get_missing_as_str(char* out, int mode) {
  const unsigned selector =
      mode >= 0 ? static_cast<unsigned>(mode) : kiln::frame::real2str_internal_options() & kMissingAsBlankOption;
  if (selector == 0) {
    if (out) std::memcpy(out, g_missing_text, std::strlen(g_missing_text) + 1);
    return 0;
  }
  if (out) *out = '\0';
  return 1;
}

int get_numeric_separators(int style, char* decimal, char* grouping) {
  if (decimal == nullptr || grouping == nullptr || style < 1 || style > 5) return 0;
  *decimal = kSeparatorStyles[style - 1].decimal;
  *grouping = kSeparatorStyles[style - 1].grouping;
  return 1;
}
