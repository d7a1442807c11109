// Any bytes through the narrow and wide token templates: no read past the
// terminator, no write outside the token list or the destination, the text
// restored where it must be, and the narrow and wide line counts agreeing.
#include "fuzz_support.h"

#include <kilnutil/text.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace {

using fuzz_support::check;

template <class Ch>
void exercise(const Ch* original, std::size_t length, int sep) {
  std::unique_ptr<Ch[]> text(new Ch[length + 1]);
  auto reset = [&] { std::memcpy(text.get(), original, (length + 1) * sizeof(Ch)); };

  reset();
  const int count = KILNUTILT_SeparateStrToTokenList(text.get(), static_cast<Ch**>(nullptr), sep, -1);
  check(std::memcmp(text.get(), original, (length + 1) * sizeof(Ch)) == 0);
  // A list sized by the counting call, as hosts do.
  std::vector<Ch*> list(static_cast<std::size_t>(count > 0 ? count : 0));
  check(KILNUTILT_SeparateStrToTokenList(text.get(), list.data(), sep, -1) == count);
  reset();
  std::vector<Ch*> limited(3);
  check(KILNUTILT_SeparateStrToTokenList(text.get(), limited.data(), sep, 3) <= 3);

  reset();
  KILNUTILT_FirstLineTokens(text.get(), sep);
  check(std::memcmp(text.get(), original, (length + 1) * sizeof(Ch)) == 0);
  KILNUTILT_CountConsistenTokens(text.get(), sep, 0, 4);
  KILNUTILT_FindSeparator(text.get(), 0, 3);
  check(std::memcmp(text.get(), original, (length + 1) * sizeof(Ch)) == 0);
  KILNUTILT_num_words_in_lines(text.get(), 5);

  Ch dest[8];
  const Ch separators[] = {static_cast<Ch>(','), static_cast<Ch>(sep > 0 ? sep : ';'), 0};
  const Ch* next = KILNUTILT_NextToken(dest, text.get(), separators, static_cast<int>(sizeof dest / sizeof(Ch)));
  check(next >= text.get() && next <= text.get() + length);

  int status = 0;
  const Ch* hit = KILNUTILT_ExposedCharPos(text.get(), sep > 0 ? sep : 0, 0, &status);
  check(hit == nullptr || (hit >= text.get() && hit < text.get() + length));
  KILNUTILT_StrChar(text.get(), ',', KILNUTIL_STRCHR_EXPOSED);
  KILNUTILT_StrChar(text.get(), ',', KILNUTIL_STRCHR_PLAIN | KILNUTIL_STRCHR_BACKWARD);
  KILNUTILT_TrimBoth(text.get());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  static const int kSeparators[] = {0, -1, '\t', ',', ';'};
  const int sep = kSeparators[data[0] % 5];
  std::unique_ptr<char[]> narrow(new char[size]);
  std::memcpy(narrow.get(), data + 1, size - 1);
  narrow[size - 1] = '\0';
  const std::size_t narrow_length = std::strlen(narrow.get());
  exercise(narrow.get(), narrow_length, sep);

  // The same bytes as UTF-16 units.
  const std::size_t units = (size - 1) / 2;
  std::unique_ptr<KILN_WCHAR[]> wide(new KILN_WCHAR[units + 1]);
  std::memcpy(wide.get(), data + 1, units * 2);
  wide[units] = 0;
  std::size_t wide_length = 0;
  while (wide[wide_length] != 0) ++wide_length;
  exercise(wide.get(), wide_length, sep);

  // ASCII text reads the same in both widths.
  std::basic_string<KILN_WCHAR> widened;
  for (std::size_t i = 0; i < narrow_length && static_cast<unsigned char>(narrow[i]) < 0x80; ++i) widened += narrow[i];
  const std::string ascii(narrow.get(), widened.size());
  check(KILNUTIL_LineCountA(ascii.c_str()) == KILNUTIL_LineCountW(widened.c_str()));
  check(KILNUTIL_TestWordsInLineA(ascii.c_str(), 4) == KILNUTIL_TestWordsInLineW(widened.c_str(), 4));
  return 0;
}
