// kilnutil detect [--json] [-c NAME] [--force] FILE...: the encoding of each
// file as the library's detection sees its leading bytes (code, name, mark
// size), and what the tool reads it as after checking the whole file.
#include "commands.h"
#include "file_io.h"
#include "json.h"
#include "text_decoder.h"
#include "text_options.h"

#include <kilnutil/unicode.h>

#include <cstdio>
#include <string>
#include <vector>

namespace kilnutil_cli {

namespace {

const char* encoding_name(unsigned code) {
  switch (code) {
    case 0: return "code page";
    case 1: return "UTF-8";
    case 2: return "UTF-16LE";
    case 3: return "UTF-16BE";
    case 0x101: return "UTF-8 with mark";
    case 0x102: return "UTF-16LE with mark";
    case 0x103: return "UTF-16BE with mark";
    case 0x104: return "UTF-32LE with mark";
    case 0x105: return "UTF-32BE with mark";
    case 0x200: return "ASCII";
    case 255: return "empty";
    default: return "unknown";
  }
}

struct FileAnswer {
  unsigned code = KILNUTIL_ENCODING_NONE;
  std::string read_as;
  std::string error;
};

// Reads the whole file through the decoder, so that the answer holds for all of it.
FileAnswer detect_file(const std::string& path, const DecodeOptions& options) {
  FileAnswer answer;
  InputFile input;
  if (!input.open(path)) {
    answer.error = input.error();
    return answer;
  }
  TextDecoder decoder(input, options);
  const bool started = decoder.start();
  answer.code = decoder.detected_code();
  std::string text;
  while (started && decoder.next(text)) text.clear();
  answer.error = decoder.error();
  answer.read_as = decoder.description();
  return answer;
}

void print_text(const std::string& path, const FileAnswer& answer) {
  std::printf("%s: %u %s, mark %d bytes, read as %s\n", path.c_str(), answer.code, encoding_name(answer.code),
              KILNUTIL_GetBOMSize(answer.code), answer.read_as.c_str());
}

std::string json_object(const std::string& path, const FileAnswer& answer) {
  std::string out = "{\"file\":" + json_string(path) + ",\"code\":" + std::to_string(answer.code) +
                    ",\"name\":" + json_string(encoding_name(answer.code)) +
                    ",\"mark_bytes\":" + std::to_string(KILNUTIL_GetBOMSize(answer.code));
  if (answer.error.empty()) out += ",\"read_as\":" + json_string(answer.read_as);
  else out += ",\"error\":" + json_string(answer.error);
  return out + "}";
}

}  // namespace

int run_detect(Args args) {
  DecodeOptions options;
  bool json = false;
  std::vector<std::string> paths;
  const int parsed = parse_with_text_options(args, options, [&](const std::string& arg, std::size_t&) -> int {
    if (arg == "--json") json = true;
    else if (arg == "-" || arg[0] != '-') paths.push_back(arg);
    else return usage_error("detect: unknown option '" + arg + "'");
    return kOk;
  });
  if (parsed != kOk) return parsed;
  if (paths.empty()) return usage_error("detect takes one or more files (- for standard input)");
  int status = kOk;
  std::string listing = "[";
  for (const std::string& path : paths) {
    const FileAnswer answer = detect_file(path, options);
    if (!answer.error.empty()) status = file_error(path, answer.error);
    if (json && listing.size() > 1) listing += ',';
    if (json) listing += json_object(path, answer);
    else if (answer.error.empty()) print_text(path, answer);
  }
  if (json) std::printf("%s]\n", listing.c_str());
  return status;
}

}  // namespace kilnutil_cli
