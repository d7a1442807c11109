// Reading colour text into a packed value.
#include "color/color_list.h"
#include "color/color_text.h"
#include "color/packed_models.h"

#include <cstring>
#include <string_view>

namespace kiln::color {

namespace {

enum class Pattern { kRgb, kHsl, kHtml };

// One field of a pattern: a decimal number of any length, or one or two
// hexadecimal digits.
enum class Field { kDecimal, kHex2 };

bool is_blank(char c) { return c == ' ' || c == '\t'; }
bool is_digit(char c) { return c >= '0' && c <= '9'; }
char ascii_upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

int hex_value(char c) {
  if (is_digit(c)) return c - '0';
  const char upper = ascii_upper(c);
  return upper >= 'A' && upper <= 'F' ? upper - 'A' + 10 : -1;
}

void skip_blanks(const char*& p) {
  while (is_blank(*p)) ++p;
}

// Reads one field; false when there is no digit. Decimal numbers wrap modulo 2^32.
bool read_field(const char*& p, Field field, unsigned& value) {
  skip_blanks(p);
  value = 0;
  int digits = 0;
  if (field == Field::kHex2) {
    for (int v; digits < 2 && (v = hex_value(*p)) >= 0; ++p, ++digits) value = value * 16 + static_cast<unsigned>(v);
  } else {
    for (; is_digit(*p); ++p, ++digits) value = value * 10 + static_cast<unsigned>(*p - '0');
  }
  return digits > 0;
}

// Reads a literal part of a pattern; letters match ignoring ASCII case and
// blanks may stand before each literal character.
bool read_literal(const char*& p, std::string_view literal) {
  for (char expected : literal) {
    skip_blanks(p);
    if (ascii_upper(*p) != expected) return false;
    ++p;
  }
  return true;
}

// The three numbers of a pattern ("PREFIX n SEP n SEP n SUFFIX"); how many
// were read before the text stopped matching.
int match_pattern(const char* text, Pattern pattern, unsigned (&numbers)[3]) {
  const bool html = pattern == Pattern::kHtml;
  const std::string_view prefix = html ? "#" : pattern == Pattern::kRgb ? "RGB(" : "HSL(";
  const std::string_view separator = html ? "" : ",";
  const Field field = html ? Field::kHex2 : Field::kDecimal;
  const char* p = text;
  if (!read_literal(p, prefix)) return 0;
  for (int i = 0; i < 3; ++i) {
    if (i > 0 && !read_literal(p, separator)) return i;
    if (!read_field(p, field, numbers[i])) return i;
  }
  if (!html && !read_literal(p, ")")) return 3;  // a missing ")" is still three numbers read
  return 3;
}

Pattern choose_pattern(const char* text, unsigned flags) {
  const unsigned form = flags & KILNUTIL_COLOR_TEXT_FORM_MASK;
  if (form == KILNUTIL_COLOR_TEXT_RGB) return Pattern::kRgb;
  if (form == KILNUTIL_COLOR_TEXT_HSL || text[0] == 'H') return Pattern::kHsl;
  if (text[0] == 'R') return Pattern::kRgb;
  return Pattern::kHtml;
}

bool all_hex_after_mark(const char* text) {
  for (const char* p = text + 1; *p != '\0'; ++p) {
    if (hex_value(*p) < 0) return false;
  }
  return true;
}

// "#RGB" widened to "#RRGGBB".
void widen_short_html(const char* text, char (&wide)[8]) {
  wide[0] = '#';
  for (int i = 0; i < 3; ++i) wide[1 + 2 * i] = wide[2 + 2 * i] = text[1 + i];
  wide[7] = '\0';
}

int packed(std::uint32_t rgb) { return static_cast<int>((rgb & kRgbMask) | kRgbMarker); }

// A bare number: optional blanks and sign, decimal digits, wrapping modulo 2^32.
bool read_integer(const char* p, std::uint32_t& value) {
  skip_blanks(p);
  const bool negative = *p == '-';
  if (*p == '-' || *p == '+') ++p;
  unsigned magnitude = 0;
  if (!read_field(p, Field::kDecimal, magnitude)) return false;
  value = negative ? 0u - magnitude : magnitude;
  return true;
}

int color_from_number(const char* text) {
  std::uint32_t v = 0;
  if (!read_integer(text, v) || v == 0) return 0;
  if (v - 1 > kRgbMask) return packed(v);
  const unsigned low = (v - 1) & 0xFF;
  if (low < 100 || low == 255) return static_cast<int>(v);
  return packed(v);
}

}  // namespace

int color_from_text(const char* text, unsigned flags) {
  if (text == nullptr || *text == '\0') return 0;
  const std::string_view whole = text;
  if (same_ignoring_ascii_case(whole, "None")) return KILNUTIL_COLOR_NONE;
  if (const int number = find_name(whole); number > 0) return number;

  const Pattern pattern = choose_pattern(text, flags);
  char wide[8];
  const char* subject = text;
  if (text[0] == '#') {
    if (!all_hex_after_mark(text)) return 0;
    if (whole.size() == 4) {
      widen_short_html(text, wide);
      subject = wide;
    }
  }
  unsigned numbers[3] = {0, 0, 0};
  if (match_pattern(subject, pattern, numbers) == 3) {
    if (pattern != Pattern::kHsl) return packed(rgb_of(numbers[0], numbers[1], numbers[2]));
    // Read as hue, lightness, saturation (the writer puts saturation second).
    return packed(rgb_from_hls240(static_cast<std::uint16_t>(numbers[0]), static_cast<std::uint16_t>(numbers[1]),
                                  static_cast<std::uint16_t>(numbers[2])));
  }
  return color_from_number(text);
}

}  // namespace kiln::color
