// Any bytes as colour text, and any value and flags written as colour text:
// no read past the terminator, no write past a buffer of exactly
// KILNUTIL_COLOR_TEXT_SIZE bytes, and every RGB colour read comes back from
// its written "#RRGGBB" and "RGB(r,g,b)" forms.
#include <kilnutil/color.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace {

void check(bool condition) {
  if (!condition) std::abort();
}

std::uint32_t word_at(const std::uint8_t* data) {
  std::uint32_t word = 0;
  std::memcpy(&word, data, sizeof word);
  return word;
}

// Writes into a heap buffer of exactly the documented size; the text must end inside it.
void format_checked(int value, unsigned flags, char* buffer) {
  check(KILNUTIL_vcolor_format(buffer, value, flags) == buffer);
  check(std::memchr(buffer, '\0', KILNUTIL_COLOR_TEXT_SIZE) != nullptr);
}

bool is_rgb(int value) {
  return (static_cast<unsigned>(value) & KILNUTIL_COLOR_RGB_TEST_MASK) == KILNUTIL_COLOR_RGB_MARKER;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 8) return 0;
  const auto value = static_cast<int>(word_at(data));
  const unsigned flags = word_at(data + 4);
  const std::size_t text_size = size - 8;
  std::unique_ptr<char[]> text(new char[text_size + 1]);
  std::memcpy(text.get(), data + 8, text_size);
  text[text_size] = '\0';

  std::unique_ptr<char[]> buffer(new char[KILNUTIL_COLOR_TEXT_SIZE]);
  const int read = KILNUTIL_str2vcolor(text.get(), flags);
  format_checked(read, flags, buffer.get());
  format_checked(value, flags, buffer.get());
  char html[KILNUTIL_COLOR_TEXT_SIZE];
  KILNUTIL_RGB_to_HTML(html, static_cast<unsigned>(value));
  check(std::strlen(html) == 7);

  if (is_rgb(read)) {
    for (unsigned form : {KILNUTIL_COLOR_TEXT_HTML, KILNUTIL_COLOR_TEXT_RGB}) {
      format_checked(read, form, buffer.get());
      check(KILNUTIL_str2vcolor(buffer.get(), form) == read);
    }
  }
  return 0;
}
