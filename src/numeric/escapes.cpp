#include "numeric/escapes.h"

namespace kiln::numeric {
namespace {

int simple_escape(char c) {
  switch (c) {
    case 'n': return '\n';
    case 't': return '\t';
    case 'r': return '\r';
    case 'a': return '\a';
    case 'b': return '\b';
    case 'f': return '\f';
    case 'v': return '\v';
    case '\\': return '\\';
    case '\'': return '\'';
    case '"': return '"';
    case '?': return '?';
    default: return -1;
  }
}

int hex_digit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

bool is_octal_digit(char c) { return c >= '0' && c <= '7'; }

// Up to max_digits digits of the base after the escape letter (or the first
// digit itself for octal); the value kept to one byte.
int numeric_escape(const char* digits, const char* end, int base, int max_digits, int* count) {
  int value = 0;
  *count = 0;
  for (const char* p = digits; p < end && *count < max_digits; ++p, ++*count) {
    const int d = base == 8 ? (is_octal_digit(*p) ? *p - '0' : -1) : hex_digit(*p);
    if (d < 0) break;
    value = value * base + d;
  }
  return value & 0xFF;
}

}  // namespace

int decode_escape(const char* p, const char* end, int* length) {
  if (p + 1 >= end) return -1;
  const char letter = p[1];
  if (const int simple = simple_escape(letter); simple >= 0) {
    *length = 2;
    return simple;
  }
  int count = 0;
  int value = -1;
  if (is_octal_digit(letter)) {
    value = numeric_escape(p + 1, end, 8, 3, &count);
    *length = 1 + count;
  } else if (letter == 'x') {
    value = numeric_escape(p + 2, end, 16, 2, &count);
    if (count == 0) return -1;
    *length = 2 + count;
  }
  return value > 0 ? value : -1;
}

}  // namespace kiln::numeric
