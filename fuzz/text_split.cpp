// Any bytes through the splitters that cut text in place or copy into
// buffers sized as the host sizes them (the text's length plus its NUL):
// statements, terms, tokens, words, token lists, subscripts, argument
// pointers, enclosing pairs and quoted terms. No access outside the text or
// the buffers, and every position returned is null or inside the text.
#include "fuzz_support.h"

#include <kilnutil/frame.h>
#include <kilnutil/text.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace {

using fuzz_support::check;

// One exactly sized, writable copy of the input for each splitter.
class Copy {
public:
  Copy(const std::uint8_t* data, std::size_t size) : bytes_(new char[size + 1]), size_(size) {
    std::memcpy(bytes_.get(), data, size);
    bytes_[size] = '\0';
  }
  char* text() const { return bytes_.get(); }
  // A position in the buffer (a NUL written by a cut included).
  void inside(const char* p) const { check(p == nullptr || (p >= bytes_.get() && p <= bytes_.get() + size_)); }

private:
  std::unique_ptr<char[]> bytes_;
  std::size_t size_;
};

std::unique_ptr<char[]> destination_for(const char* text) {
  return std::unique_ptr<char[]>(new char[std::strlen(text) + 1]);
}

void statements(const Copy& copy) {
  int guard = 0;
  for (char* p = copy.text(); p != nullptr; ++guard) {
    check(guard < 100000);
    char* first = nullptr;
    int status = 0;
    char* next = KILNUTIL_separate_one_statement(&first, p, &status);
    copy.inside(first);
    copy.inside(next);
    check(next == nullptr || next > p);
    if (next != nullptr && status > 0) *next = static_cast<char>(status);
    p = next;
  }
}

void terms(const Copy& copy) {
  int guard = 0;
  for (char* p = copy.text(); p != nullptr; ++guard) {
    check(guard < 100000);
    char* term = nullptr;
    char* end = nullptr;
    int op = 0;
    char* next = KILNUTIL_separate_one_term(&term, p, (guard & 1) ? &op : nullptr, &end);
    copy.inside(term);
    copy.inside(end);
    copy.inside(next);
    check(next == nullptr || next > p);
    p = next;
  }
}

void tokens(const Copy& copy) {
  const char* text = copy.text();
  std::unique_ptr<char[]> dest = destination_for(text);
  for (const char* p = text; *p != '\0';) {
    const char* next = KILNUTIL_next_token(dest.get(), p);
    copy.inside(next);
    check(next >= p);
    p = next == p ? p + 1 : next;
  }
  for (const char* p = text; *p != '\0';) {
    const char* next = KILNUTIL_next_word(dest.get(), p);
    check(next > p);
    p = next;
  }
  for (const char* p = text; p != nullptr && *p != '\0';) {
    const char* next = KILNUTIL_next_quoted_term_ex_ex(dest.get(), p, ',', '"', static_cast<int>(p - text) & 1, -1);
    copy.inside(next);
    p = next;
  }
  copy.inside(KILNUTIL_get_next_word(dest.get(), text, ":="));
  copy.inside(KILNUTIL_next_token_sep(dest.get(), text, ";,"));
}

void lists(const std::uint8_t* data, std::size_t size) {
  const int exposed_commas = KILNUTIL_get_token_count_ex(Copy(data, size).text(), 0, 0, nullptr);
  check(exposed_commas >= 1 || size == 0 || data[0] == 0);
  {
    Copy copy(data, size);
    const int count = KILNUTIL_separate_str_to_token_list(copy.text(), nullptr, ',', -1);
    std::unique_ptr<char*[]> list(new char*[static_cast<std::size_t>(count) + 1]);
    const int n = KILNUTIL_get_argument_list(copy.text(), list.get(), ',', -1);
    check(n <= count);
    for (int i = 0; i < n; ++i) copy.inside(list[i]);
  }
  {
    Copy copy(data, size);
    const int words = KILNUTIL_separate_str_to_token_list(copy.text(), nullptr, -1, -1);
    std::unique_ptr<char*[]> list(new char*[static_cast<std::size_t>(words) + 1]);
    check(KILNUTIL_separate_str_to_token_list(copy.text(), list.get(), -1, -1) == words);
  }
  {
    Copy copy(data, size);
    char* name = nullptr;
    char* subscripts[4];
    const int n = KILNUTIL_separate_multidimensional_dereference(copy.text(), &name, subscripts, 4);
    check(n >= -2 && n <= 4);
    for (int i = 0; i < n; ++i) copy.inside(subscripts[i]);
  }
  {
    Copy copy(data, size);
    char* name = nullptr;
    char* args = nullptr;
    if (KILNUTIL_extract_arg_pointers(copy.text(), &name, &args, nullptr)) {
      copy.inside(name);
      copy.inside(args);
    }
  }
  {
    Copy copy(data, size);
    int removed = 0;
    copy.inside(KILNUTIL_text_inside_remove_quotes_even_mismatch(copy.text(), &removed));
    Copy again(data, size);
    int kind = 0;
    again.inside(KILNUTIL_str_inside_ex(again.text(), 0xFF001003u, &kind));
  }
  {
    Copy copy(data, size);
    char* term = nullptr;
    unsigned short brackets[2] = {'(', 0};
    copy.inside(KILNUTIL_get_remaining_term(&term, copy.text(), brackets));
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size > 0) {
    KILNUTIL_test_char_NBSP(1, data[0] & 1);
    set_parenth_use_angle_brackets(data[0] & 2);
  }
  statements(Copy(data, size));
  terms(Copy(data, size));
  tokens(Copy(data, size));
  lists(data, size);
  return 0;
}
