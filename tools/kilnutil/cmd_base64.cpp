// kilnutil base64 [-d] [-i] [-w COLS] [FILE|-]: Base64 of a file or of
// standard input, or with -d the bytes of Base64 text, streamed in pieces of
// a few MiB, in the output form of the common command-line tools.
#include "base64_stream.h"
#include "commands.h"
#include "file_io.h"
#include "progress.h"

#include <charconv>
#include <string>
#include <string_view>

namespace kilnutil_cli {

namespace {

constexpr std::size_t kPiece = 3 << 20;  // whole groups of 3 bytes

struct Options {
  bool decode = false;
  bool ignore_garbage = false;
  std::size_t wrap = 76;
  std::string path;  // empty: standard input
};

bool parse_wrap(std::string_view text, std::size_t& wrap) {
  const auto result = std::from_chars(text.data(), text.data() + text.size(), wrap);
  return !text.empty() && result.ec == std::errc() && result.ptr == text.data() + text.size();
}

int parse(Args args, Options& options) {
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string_view arg = args[i];
    std::string_view wrap_text;
    bool has_wrap = false;
    if (arg == "-d" || arg == "--decode") {
      options.decode = true;
    } else if (arg == "-i" || arg == "--ignore-garbage") {
      options.ignore_garbage = true;
    } else if (arg == "-w" || arg == "--wrap") {
      if (i + 1 >= args.size()) return usage_error("base64: " + std::string(arg) + " needs a column count");
      wrap_text = args[++i];
      has_wrap = true;
    } else if (arg.starts_with("--wrap=") || (arg.starts_with("-w") && arg.size() > 2)) {
      wrap_text = arg.substr(arg[1] == 'w' ? 2 : 7);
      has_wrap = true;
    } else if (options.path.empty() && (arg == "-" || !arg.starts_with("-"))) {
      options.path = arg;
    } else {
      return usage_error("base64 takes [-d] [-i] [-w COLS] [FILE|-] (got '" + std::string(arg) + "')");
    }
    if (has_wrap && !parse_wrap(wrap_text, options.wrap)) {
      return usage_error("base64: invalid wrap size '" + std::string(wrap_text) + "' (a column count, 0 for none)");
    }
  }
  return kOk;
}

}  // namespace

int run_base64(Args args) {
  Options options;
  if (const int rc = parse(args, options); rc != kOk) return rc;
  const std::string& path = options.path.empty() ? kStandardStream : options.path;
  InputFile input;
  if (!input.open(path)) return file_error(path, input.error());
  OutputFile output;
  output.open(kStandardStream);

  Progress progress(options.decode ? "base64 -d" : "base64", input.size());
  Base64Encoder encoder(options.wrap);
  Base64Decoder decoder(options.ignore_garbage);
  std::string piece(kPiece, '\0');
  std::string out;
  bool decoded = true;
  while (decoded) {
    const std::size_t got = input.read_full(piece.data(), kPiece);
    out.clear();
    const std::string_view bytes(piece.data(), got);
    if (options.decode) decoded = decoder.add(bytes, out);
    else encoder.add(bytes, out);
    if (got < kPiece && decoded) {
      if (options.decode) decoded = decoder.finish(out);
      else encoder.finish(out);
    }
    if (!output.write(out)) break;
    progress.update(input.offset());
    if (got < kPiece) break;
  }
  if (!output.finish()) return file_error(output.name(), output.error());
  if (input.failed()) return file_error(path, input.error());
  if (!decoded) return file_error(path, decoder.error());
  return kOk;
}

}  // namespace kilnutil_cli
