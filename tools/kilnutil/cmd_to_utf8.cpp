// kilnutil to-utf8 [FILE|-] [-o OUT] [-c NAME] [--force] [--replace]: a text
// file's contents as UTF-8, streamed piece by piece whatever its size. The
// encoding is decided on the whole file (see text_decoder.h); invalid input
// stops the conversion with the position of the first invalid byte, as
// converters do, unless --replace asks for U+FFFD.
#include "commands.h"
#include "file_io.h"
#include "progress.h"
#include "text_decoder.h"
#include "text_options.h"

#include <filesystem>
#include <string>
#include <system_error>

namespace kilnutil_cli {

namespace {

struct Options {
  std::string input;
  std::string output;
  DecodeOptions decode;
};

int parse(Args args, Options& options) {
  const int status = parse_with_text_options(args, options.decode, [&](const std::string& arg, std::size_t& i) -> int {
    if (arg == "-o" && i + 1 < args.size()) {
      options.output = args[++i];
    } else if (options.input.empty() && (arg == "-" || arg[0] != '-')) {
      options.input = arg;
    } else {
      return usage_error("to-utf8 takes [FILE|-] [-o OUT] [-c CODEPAGE] [--force] [--replace] (got '" + arg + "')");
    }
    return kOk;
  });
  if (options.input.empty()) options.input = kStandardStream;
  return status;
}

bool same_file(const std::string& a, const std::string& b) {
  std::error_code ignored;
  return a != "-" && b != "-" && !b.empty() && std::filesystem::equivalent(a, b, ignored);
}

}  // namespace

int run_to_utf8(Args args) {
  Options options;
  if (const int rc = parse(args, options); rc != kOk) return rc;
  if (same_file(options.input, options.output)) return usage_error("to-utf8: OUT must not be the input file");

  InputFile input;
  if (!input.open(options.input)) return file_error(options.input, input.error());
  TextDecoder decoder(input, options.decode);
  if (!decoder.start()) return file_error(options.input, decoder.error());
  OutputFile output;
  if (!output.open(options.output)) return file_error(output.name(), output.error());

  Progress progress("to-utf8", input.size());
  std::string text;
  bool more = true;
  while (more) {
    text.clear();
    more = decoder.next(text);
    if (!output.write(text)) break;
    progress.update(input.offset());
  }
  if (!output.finish()) return file_error(output.name(), output.error());
  if (!decoder.error().empty()) return file_error(options.input, decoder.error());
  return kOk;
}

}  // namespace kilnutil_cli
