// The next separated term, where a term may be quoted (and a doubled quote
// character stands for itself).
#include "text/quoted_term.h"

#include "text/trim.h"
#include "text/strchr.h"

#include <cstring>

namespace kiln::text {

namespace {

// Copies whole characters while they fit into size - 1 bytes.
class BoundedCopy {
public:
  BoundedCopy(char* dest, long size) : out_(dest), room_(size - 1) {}
  bool put(const char* from, const char* to) {
    if (to - from > room_) return false;
    for (; from < to; ++from, --room_) *out_++ = *from;
    return true;
  }
  void finish() {
    if (room_ >= 0) *out_ = '\0';
  }

private:
  char* out_;
  long room_;
};

long count_leading(const char* p, unsigned quote) {
  long n = 0;
  while (read_char(p) == quote) ++n;
  return n;
}

}  // namespace

char* next_quoted_term(char* dest, const char* text, int sep, int quote, int drop_quotes, int size) {
  if (dest == nullptr || text == nullptr) return nullptr;
  const long room = size == -1 ? static_cast<long>(std::strlen(text)) + 1 : size;
  BoundedCopy copy(dest, room);
  const auto q = static_cast<unsigned>(quote);
  const auto s = static_cast<unsigned>(sep);
  const char* p = skip_spaces(text);
  const long n = quote > 0 ? count_leading(p, q) : 0;
  const bool quoted = n % 2 == 1;
  const char* stop = p;
  if (n > 0) {
    const char* behind = after_char(p);
    if (drop_quotes == 0) copy.put(p, behind);
    p = behind;
  }
  for (;;) {
    stop = p;
    const char* at = p;
    const unsigned c = read_char(p);
    if (c == 0) break;
    if (c == q) {
      const unsigned next = char_at(p);
      if (next == q) {  // a doubled quote stands for itself
        const char* behind = after_char(p);
        if (!copy.put(at, behind)) break;
        p = behind;
        continue;
      }
      if (quoted || next == s) {
        if (drop_quotes == 0) copy.put(at, p);
        break;
      }
    } else if (!quoted && c == s) {
      break;
    }
    if (!copy.put(at, p)) break;
  }
  copy.finish();
  char* next_sep = search_char(stop, sep, 1);
  return next_sep != nullptr ? next_sep + 1 : nullptr;
}

}  // namespace kiln::text
