// The tool's own argument parsing and preview on arbitrary bytes, through its
// functions (not a subprocess). The input is up to eight arguments separated
// by NUL bytes, a 0xFF byte, then the file's bytes. Checks: parsing gives an
// exit code of 0 or 2, the preview 0 or 1, nothing crashes or reads out of
// bounds; the Base64 decoder round-trips what the encoder made of the bytes.
#include "../tools/kilnutil/base64_stream.h"
#include "support/temporary_stream.h"
#include "../tools/kilnutil/preview.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

namespace {

void check(bool condition) {
  if (!condition) std::abort();
}

void check_base64_round_trip(const std::string& bytes) {
  std::string text, back;
  kilnutil_cli::Base64Encoder encoder(7);
  encoder.add(bytes, text);
  encoder.finish(text);
  kilnutil_cli::Base64Decoder decoder(false);
  check(decoder.add(text, back) && decoder.finish(back));
  check(back == bytes);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string input(reinterpret_cast<const char*>(data), size);
  const std::size_t split = input.find('\xFF');
  const std::string arguments = split == std::string::npos ? "" : input.substr(0, split);
  const std::string file = split == std::string::npos ? input : input.substr(split + 1);

  std::vector<std::string> words;
  for (std::size_t at = 0; at <= arguments.size() && words.size() < 8 && !arguments.empty();) {
    const std::size_t end = std::min(arguments.find('\0', at), arguments.size());
    words.push_back(arguments.substr(at, end - at));
    at = end + 1;
  }
  std::vector<char*> argv;
  for (std::string& word : words) argv.push_back(word.data());

  std::cerr.rdbuf(nullptr);  // the tool's one-line messages are not wanted here
  kilnutil_cli::PreviewOptions options;
  const int parsed = kilnutil_cli::parse_preview_options(kilnutil_cli::Args(argv.data(), argv.size()), options);
  check(parsed == kilnutil_cli::kOk || parsed == kilnutil_cli::kUsage);
  if (parsed != kilnutil_cli::kOk) options = kilnutil_cli::PreviewOptions{};

  std::FILE* stream = kiln_test::temporary_stream();
  if (stream == nullptr) return 0;
  std::fwrite(file.data(), 1, file.size(), stream);
  std::rewind(stream);
  kilnutil_cli::InputFile in;
  in.adopt(stream, 0);
  const int previewed = kilnutil_cli::preview_input(in, options, nullptr);
  check(previewed == kilnutil_cli::kOk || previewed == kilnutil_cli::kInputFailed);

  check_base64_round_trip(file.substr(0, 4096));
  return 0;
}
