// kilnutil to-utf8 FILE [-o OUT] [-c CODEPAGE]: the file's text as UTF-8,
// read through the library's open-as-UTF-8 protocol (UTF-16 big-endian,
// which that protocol hands back unconverted, is converted here). Code-page
// text is read in CODEPAGE, by default the system's ANSI code page.
#include "commands.h"

#include <kilnutil/frame.h>
#include <kilnutil/unicode.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace kilnutil_cli {

namespace {

std::string read_all(FILE* stream) {
  std::string bytes;
  char buffer[65536];
  for (size_t n; (n = std::fread(buffer, 1, sizeof buffer, stream)) > 0;) bytes.append(buffer, n);
  return bytes;
}

// UTF-16 big-endian bytes (after the mark) as UTF-8.
std::string big_endian_to_utf8(const std::string& bytes) {
  std::vector<KILN_WCHAR> units(bytes.size() / 2 + 1, 0);
  std::memcpy(units.data(), bytes.data(), bytes.size() / 2 * 2);
  KILNUTIL_UNICODE_UTF16LE_to_UTF16BE(units.data());  // the swap works both ways
  std::string text(units.size() * 3 + 1, '\0');
  const int length = KILNUTIL_UNICODE_UTF16_to_UTF8_buffers(text.data(), static_cast<int>(text.size()), units.data());
  text.resize(length > 0 ? static_cast<size_t>(length) : 0);
  return text;
}

// Copies a converted copy through a fixed buffer: false on a short write.
bool copy_stream(FILE* stream, FILE* out) {
  char buffer[65536];
  for (size_t n; (n = std::fread(buffer, 1, sizeof buffer, stream)) > 0;) {
    if (std::fwrite(buffer, 1, n, out) != n) return false;
  }
  return true;
}

struct Options {
  const char* input = nullptr;
  const char* output = nullptr;
  const char* code_page = nullptr;
};

bool parse(Args args, Options& options) {
  for (size_t i = 0; i < args.size(); ++i) {
    const std::string arg = args[i];
    if ((arg == "-o" || arg == "-c") && i + 1 < args.size()) {
      (arg == "-o" ? options.output : options.code_page) = args[++i];
    } else if (options.input == nullptr && (arg == "-" || arg[0] != '-')) {
      options.input = args[i];
    } else {
      return false;
    }
  }
  return options.input != nullptr;
}

}  // namespace

int run_to_utf8(Args args) {
  Options options;
  if (!parse(args, options)) return usage_error("to-utf8 takes FILE [-o OUT] [-c CODEPAGE]");
  if (std::strlen(options.input) >= sizeof(TextFileToUTF8Context::path)) return input_error("path too long");
  if (options.code_page != nullptr) set_code_page_for_string_process(static_cast<unsigned>(std::strtoul(options.code_page, nullptr, 10)));

  TextFileToUTF8Context context;
  KILNUTIL_UNICODE_open_text_file_to_UTF8_INIT(&context);
  std::strcpy(context.path, options.input);
  context.fallback_mode = "rb";
  context.binary_reopen = 1;
  context.guess = 1;
  FILE* opened = std::fopen(options.input, "rb");
  if (opened == nullptr) return input_error(std::string("cannot open '") + options.input + "'");
  const unsigned code =
      KILNUTIL_DetectEncoding(opened, KILNUTIL_DetectEncoding_GetBufSizeFromFilePath(options.input), 0);
  const bool big_endian = (code & 0xFF) == 3;
  FILE* stream = KILNUTIL_UNICODE_open_text_file_to_UTF8_BEGIN(opened, &context);
  if (stream == nullptr) return input_error(std::string("cannot convert '") + options.input + "'");
  // A converted copy is streamed out; the file itself (which OUT may name) is
  // read whole before OUT is opened.
  const bool streamed = !big_endian && stream == context.converted_stream;
  std::string text;
  if (!streamed) text = read_all(stream);
  if (big_endian) text = big_endian_to_utf8(text.substr(context.mark_size));

  FILE* out = options.output != nullptr ? std::fopen(options.output, "wb") : stdout;
  bool written = false;
  if (out != nullptr) {
    written = streamed ? copy_stream(stream, out) : std::fwrite(text.data(), 1, text.size(), out) == text.size();
  }
  KILNUTIL_UNICODE_open_text_file_to_UTF8_END(stream, &context);
  if (out == nullptr || (out != stdout && std::fclose(out) != 0)) {
    return input_error(std::string("cannot write '") + options.output + "'");
  }
  return written ? kOk : input_error("write failed");
}

}  // namespace kilnutil_cli
