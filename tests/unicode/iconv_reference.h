// glibc's iconv as the independent converter the library's results are
// compared with.
#pragma once

#include <iconv.h>

#include <optional>
#include <string>

namespace kiln_test {

// `bytes` converted by glibc's iconv, or nothing when iconv refuses them.
inline std::optional<std::string> iconv_convert(const char* from, const char* to, const std::string& bytes) {
  iconv_t converter = iconv_open(to, from);
  if (converter == reinterpret_cast<iconv_t>(-1)) return std::nullopt;
  std::string output(bytes.size() * 4 + 16, '\0');
  char* in = const_cast<char*>(bytes.data());
  size_t in_left = bytes.size();
  char* out = output.data();
  size_t out_left = output.size();
  const size_t result = iconv(converter, &in, &in_left, &out, &out_left);
  iconv_close(converter);
  if (result == static_cast<size_t>(-1)) return std::nullopt;
  output.resize(output.size() - out_left);
  return output;
}

}  // namespace kiln_test
