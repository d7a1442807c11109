// kilnutil base64 [-d] [FILE|-]: Base64 of a file or of standard input, or
// with -d the bytes of Base64 text (characters outside the alphabet skipped).
#include "commands.h"

#include <kilnutil/unicode.h>

#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <limits>
#include <string>

namespace kilnutil_cli {

namespace {

bool read_input(const char* path, std::string& bytes) {
  if (std::strcmp(path, "-") == 0) {
    bytes = text_argument("-");
    return true;
  }
  std::ifstream in(path, std::ios::binary);
  if (!in) return false;
  bytes.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  return !in.bad();
}

}  // namespace

int run_base64(Args args) {
  bool decode = false;
  const char* path = nullptr;
  for (const char* arg : args) {
    if (std::strcmp(arg, "-d") == 0 && !decode) {
      decode = true;
    } else if (path == nullptr && (std::strcmp(arg, "-") == 0 || arg[0] != '-')) {
      path = arg;
    } else {
      return usage_error("base64 takes [-d] [FILE|-]");
    }
  }
  if (path == nullptr) path = "-";
  std::string input;
  if (!read_input(path, input)) return input_error(std::string("cannot read '") + path + "'");
  if (input.size() > static_cast<size_t>(std::numeric_limits<int>::max() / 4 * 3 - 3)) {
    return input_error(std::string("'") + path + "' is too large");
  }
  const int n = static_cast<int>(input.size());
  std::string output;
  if (decode) {
    output.resize(static_cast<size_t>(KILNUTIL_decode_base64(input.data(), n, nullptr)));
    KILNUTIL_decode_base64(input.data(), n, reinterpret_cast<unsigned char*>(output.data()));
  } else if (n > 0) {
    const auto* bytes = reinterpret_cast<const unsigned char*>(input.data());
    output.resize(static_cast<size_t>(KILNUTIL_encode_base64(bytes, n, nullptr)));
    KILNUTIL_encode_base64(bytes, n, output.data());
    output += '\n';
  }
  return std::fwrite(output.data(), 1, output.size(), stdout) == output.size() ? kOk : input_error("write failed");
}

}  // namespace kilnutil_cli
