// The character search of narrow text (exposed and plain modes) and its reverse form.
#include "text/strchr.h"

#include "frame/relaxed.h"
#include "frame/settings.h"
#include "text/chars.h"
#include "text/letter_case.h"

#include <kilnutil/text.h>

namespace kiln::text {

namespace {

frame::Relaxed<int> g_strchr_kind{0};
frame::Relaxed<int> g_strchr_depth{0};

// c and its case-converted form (c itself when it has none).
struct Target {
  unsigned c;
  unsigned alt;
  bool operator()(unsigned ch) const { return ch == c || ch == alt; }
};

}  // namespace

PairNesting strchr_nesting() {
  PairNesting nesting;
  nesting.kind = g_strchr_kind.load();
  nesting.depth = g_strchr_depth.load();
  return nesting;
}

void remember_strchr_nesting(const PairNesting& nesting) {
  g_strchr_kind.store(nesting.kind);
  g_strchr_depth.store(nesting.depth);
}

bool walks_bytes() {
  const unsigned cp = frame::effective_code_page(-1);
  return cp >= 1200 && cp <= 1254;
}

char* search_char(const char* text, int c, unsigned mode) {
  if (text == nullptr || c <= 0) return nullptr;
  const auto ch = static_cast<unsigned>(c);
  const Target target{ch, (mode & kStrCharEitherCase) ? other_case(ch) : ch};
  PairNesting nesting = strchr_nesting();
  const char* hit = walks_bytes() ? find_str_char(
                                        text, target, mode, [](const char*& p) { return read_byte(p); }, nesting)
                                  : find_str_char(
                                        text, target, mode, [](const char*& p) { return read_char(p); }, nesting);
  remember_strchr_nesting(nesting);
  return mutable_pos(hit);
}

char* search_char_reverse(const char* text, int c, const char* from) {
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

}  // namespace kiln::text
