// The exponent test and the number that ends a name ("Book12" is "Book" and
// 12), as the host numbers books, sheets and columns.
#include "numeric/trailing_number.h"

#include "numeric/text_scan.h"
#include "text/char_class.h"

#include <climits>
#include <cstring>

namespace kiln::numeric {

namespace {

constexpr int kAnyLength = KILNUTIL_END_NUMBER_ANY_LENGTH;
constexpr std::size_t kMaxRunDigits = 8;

// The runtime's atoi on a run of digits, saturating like the Windows runtime.
int digits_value(const char* digits) {
  long long value = 0;
  for (; is_ascii_digit(*digits); ++digits) {
    value = value * 10 + (*digits - '0');
    if (value > INT_MAX) return INT_MAX;
  }
  return static_cast<int>(value);
}

// Copies [text, end) into prefix; mode n >= 1 bounds it to n - 1 bytes.
void copy_prefix(char* prefix, const char* text, const char* end, int mode) {
  std::size_t length = static_cast<std::size_t>(end - text);
  if (mode >= 1 && length > static_cast<std::size_t>(mode - 1)) length = static_cast<std::size_t>(mode - 1);
  std::memmove(prefix, text, length);
  prefix[length] = '\0';
}

}  // namespace

bool has_signed_exponent(const char* text) {
  if (text == nullptr) return false;
  const char* mark = std::strpbrk(text, "EeD");
  if (mark == nullptr || (mark[1] != '+' && mark[1] != '-') || mark[2] == '\0') return false;
  return text::char_class(static_cast<unsigned char>(mark[2])) == text::kDigit;
}

int split_trailing_number(char* prefix, char* text, char** number_start, int mode) {
  if (text == nullptr) return 0;
  char* const end = text + std::strlen(text);
  char* run = end;
  while (run > text && is_ascii_digit(run[-1])) --run;
  if (mode != kAnyLength && static_cast<std::size_t>(end - run) > kMaxRunDigits) run = end - kMaxRunDigits;
  if (mode == kTrailingNumberSkipZeros) {
    while (run + 1 < end && *run == '0') ++run;
  }
  if (prefix) copy_prefix(prefix, text, run, mode);
  if (number_start) *number_start = run;
  return digits_value(run);
}

}  // namespace kiln::numeric
