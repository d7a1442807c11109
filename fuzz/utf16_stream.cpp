// Any bytes as a UTF-16LE file converted a chunk at a time: the UTF-8 must be
// exactly the whole text's conversion, whatever the chunk size (taken from
// the first byte) and wherever pairs, lone surrogates and zero units fall.
#include "fuzz_support.h"
#include "support/temporary_stream.h"

#include "unicode/utf16_stream_to_utf8.h"

#include <kilnutil/unicode.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

using fuzz_support::check;

namespace {

// The whole-text conversion: units up to the first zero, a last odd byte a unit of its own.
std::string whole_conversion(const std::uint8_t* bytes, std::size_t size) {
  std::vector<KILN_WCHAR> units;
  for (std::size_t i = 0; i < size; i += 2) {
    units.push_back(static_cast<KILN_WCHAR>(bytes[i] | (i + 1 < size ? bytes[i + 1] << 8 : 0)));
  }
  units.push_back(0);
  std::string utf8(units.size() * 3 + 1, '\0');
  const int length = KILNUTIL_UNICODE_UTF16_to_UTF8_buffers(utf8.data(), static_cast<int>(utf8.size()), units.data());
  utf8.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
  return utf8;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::size_t chunk_units = 2 + data[0] % 16;
  const std::uint8_t* text = data + 1;
  const std::size_t text_size = size - 1;
  FILE* in = kiln_test::temporary_stream();
  FILE* out = kiln_test::temporary_stream();
  check(in != nullptr && out != nullptr);
  std::fwrite(text, 1, text_size, in);
  std::rewind(in);
  check(kiln::unicode::utf16le_stream_to_utf8(in, text_size, out, chunk_units) == kiln::unicode::StreamConversion::kOk);
  std::string streamed(static_cast<std::size_t>(std::ftell(out)), '\0');
  std::rewind(out);
  check(std::fread(streamed.data(), 1, streamed.size(), out) == streamed.size());
  std::fclose(in);
  std::fclose(out);
  check(streamed == whole_conversion(text, text_size));
  return 0;
}
