// Test helpers: bytes as the tool's input, read through its decoder.
#pragma once

#include "file_io.h"
#include "support/temporary_stream.h"
#include "text_decoder.h"

#include <cstdio>
#include <filesystem>
#include <memory>
#include <random>
#include <string>

namespace kilnutil_cli_test {

// The bytes as an input that can't seek back, as a pipe is.
// A fresh path in the temporary folder: test programs of several builds may
// run at once, so each name carries a random part.
inline std::filesystem::path temporary_path(const std::string& stem) {
  return std::filesystem::temp_directory_path() / (stem + "_" + std::to_string(std::random_device{}()));
}

inline std::unique_ptr<kilnutil_cli::InputFile> piped(const std::string& bytes) {
  auto input = std::make_unique<kilnutil_cli::InputFile>();
  std::FILE* stream = kiln_test::temporary_stream();
  std::fwrite(bytes.data(), 1, bytes.size(), stream);
  std::rewind(stream);
  input->adopt(stream, 0);
  return input;
}

struct Decoded {
  std::string text;
  std::string error;
  std::string description;
};

inline Decoded decode_all(kilnutil_cli::InputFile& input, const kilnutil_cli::DecodeOptions& options) {
  kilnutil_cli::TextDecoder decoder(input, options);
  Decoded result;
  if (decoder.start()) {
    while (decoder.next(result.text)) {
    }
  }
  result.error = decoder.error();
  result.description = decoder.description();
  return result;
}

inline Decoded decode_piped(const std::string& bytes, const kilnutil_cli::DecodeOptions& options = {}) {
  return decode_all(*piped(bytes), options);
}

}  // namespace kilnutil_cli_test
