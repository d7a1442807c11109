// KILNUTIL_strchr (exposed and plain modes) and KILNUTIL_strchr_reverse.
#include "text/strchr.h"

#include "frame/settings.h"
#include "text/chars.h"

#include <kilnutil/text.h>
#include <kilnutil/unicode.h>

#include <cstdint>

namespace kiln::text {

namespace {

PairNesting g_strchr_nesting;

constexpr unsigned kPlain = 0x1;
constexpr unsigned kBackward = 0x2;
constexpr unsigned kSkipLeadingRun = 0x4;
constexpr unsigned kTrimmed = 0x10;
constexpr unsigned kEitherCase = 0x20;

// c and its case-converted form (c itself when it has none).
struct Target {
  unsigned c;
  unsigned alt;
  bool operator()(unsigned ch) const { return ch == c || ch == alt; }
};

unsigned other_case(unsigned c) {
  if (c < 128) {
    if (c - 'a' < 26u) return c - 32;
    if (c - 'A' < 26u) return c + 32;
    return c;
  }
  if (c >= 0x10000) return c;
  auto convert = [c](int to_lower) {
    char* as_char = reinterpret_cast<char*>(static_cast<std::uintptr_t>(c));
    return static_cast<unsigned>(
        reinterpret_cast<std::uintptr_t>(KILNUTIL_UNICODE_UTF8_to_upper_or_to_lower(as_char, to_lower, 1, 0)) & 0xFFFF);
  };
  const unsigned upper = convert(0);
  return upper != c ? upper : convert(1);
}

template <class Read>
const char* find_exposed(const char* text, Target target, Read read) {
  PairNesting& nesting = g_strchr_nesting;
  nesting.reset();
  for (const char* p = text;;) {
    const char* at = p;
    const unsigned ch = read(p);
    if (ch == 0) return nullptr;
    if (nesting.is_open()) {
      nesting.follow(ch);
    } else if (target(ch)) {
      return at;
    } else if (const int k = begin_quote_class(ch)) {
      nesting.open(k);
    }
  }
}

// The end of the text without its trailing white space.
template <class Read>
const char* trimmed_end(const char* p, Read read) {
  const char* end = p;
  for (;;) {
    const unsigned ch = read(p);
    if (ch == 0) return end;
    if (!is_space(ch)) end = p;
  }
}

template <class Read>
const char* skip_while(const char* p, const char* end, Read read, auto&& predicate) {
  while (end == nullptr || p < end) {
    const char* next = p;
    const unsigned ch = read(next);
    if (ch == 0 || !predicate(ch)) break;
    p = next;
  }
  return p;
}

template <class Read>
const char* find_plain(const char* text, Target target, unsigned mode, Read read) {
  const char* begin = text;
  const char* end = nullptr;  // the terminating NUL
  if (mode & kTrimmed) {
    begin = skip_while(begin, nullptr, read, [](unsigned ch) { return is_space(ch); });
    end = trimmed_end(begin, read);
  }
  if (mode & kSkipLeadingRun) begin = skip_while(begin, end, read, target);
  const char* last = nullptr;
  for (const char* p = begin; end == nullptr || p < end;) {
    const char* at = p;
    const unsigned ch = read(p);
    if (ch == 0) break;
    if (target(ch)) {
      if (!(mode & kBackward)) return at;
      last = at;
    }
  }
  return last;
}

template <class Read>
const char* find(const char* text, Target target, unsigned mode, Read read) {
  if (mode & (kPlain | kSkipLeadingRun | kTrimmed)) return find_plain(text, target, mode, read);
  return find_exposed(text, target, read);
}

}  // namespace

PairNesting& strchr_nesting() { return g_strchr_nesting; }

bool walks_bytes() {
  const unsigned cp = frame::effective_code_page(-1);
  return cp >= 1200 && cp <= 1254;
}

}  // namespace kiln::text

using namespace kiln::text;

char* KILNUTIL_strchr(const char* text, int c, unsigned int mode) {
  if (text == nullptr || c <= 0) return nullptr;
  const auto ch = static_cast<unsigned>(c);
  const Target target{ch, (mode & kEitherCase) ? other_case(ch) : ch};
  const char* hit = walks_bytes() ? find(text, target, mode, [](const char*& p) { return read_byte(p); })
                                  : find(text, target, mode, [](const char*& p) { return read_char(p); });
  return mutable_pos(hit);
}

char* KILNUTIL_strchr_reverse(const char* text, int c, const char* from) {
  if (text == nullptr || c <= 0) return nullptr;
  const auto ch = static_cast<unsigned>(c);
  const bool bytes = walks_bytes();
  const char* last = nullptr;
  for (const char* p = text; from == nullptr || p <= from;) {
    const char* at = p;
    const unsigned read = bytes ? read_byte(p) : read_char(p);
    if (read == 0) break;
    if (read == ch) last = at;
  }
  return mutable_pos(last);
}
