// Any bytes as range reference text: no read past the terminator, no write
// past outputs sized for the longest part, the text restored on success, and
// both names of the parser agreeing.
#include "fuzz_support.h"

#include <kilnutil/import.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

namespace {

using fuzz_support::check;

struct Outputs {
  explicit Outputs(std::size_t size) {
    for (auto& out : parts) out.reset(new char[size]);
  }
  std::unique_ptr<char[]> parts[6];
};

int parse(char* text, Outputs& out, bool second_name) {
  return second_name ? parse_data_range_str(text, out.parts[0].get(), out.parts[1].get(), out.parts[2].get(),
                                            out.parts[3].get(), out.parts[4].get(), out.parts[5].get())
                     : KILNUTIL_parse_one_range_string(text, out.parts[0].get(), out.parts[1].get(), out.parts[2].get(),
                                                       out.parts[3].get(), out.parts[4].get(), out.parts[5].get());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::unique_ptr<char[]> text(new char[size + 1]);
  std::memcpy(text.get(), data, size);
  text[size] = '\0';
  const std::string original(text.get());

  // No part can be longer than the text: outputs of that size are what a
  // host holding such a text would pass.
  Outputs first(original.size() + 1), second(original.size() + 1);
  const int result = parse(text.get(), first, false);
  check(result == 0 || result == 1);
  if (result == 1) check(original == text.get());

  std::memcpy(text.get(), original.c_str(), original.size() + 1);
  check(parse(text.get(), second, true) == result);
  if (result == 1) {
    for (int i = 0; i < 6; ++i) check(std::strcmp(first.parts[i].get(), second.parts[i].get()) == 0);
  }

  std::memcpy(text.get(), original.c_str(), original.size() + 1);
  KILNUTIL_parse_one_range_string(text.get(), nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
  return 0;
}
