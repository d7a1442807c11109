// The options every text-reading command takes: -c/--codepage NAME,
// --force and --replace.
#pragma once

#include "cli.h"
#include "text_decoder.h"

#include <string>

namespace kilnutil_cli {

enum class OptionMatch { kNotMine, kTaken, kWrong };

// Takes the option at args[at] (and its value, advancing at) when it is one of
// the text options; kWrong with `problem` set for an unknown encoding name
// or a missing value.
OptionMatch take_text_option(Args args, std::size_t& at, DecodeOptions& options, std::string& problem);

// Walks the arguments: the text options go into `decode` (a wrong one is a
// usage error), every other argument to `other(arg, at)`, which may take a
// value by advancing `at` and returns kOk to go on or the exit code to stop with.
template <class Other>
int parse_with_text_options(Args args, DecodeOptions& decode, Other&& other) {
  for (std::size_t at = 0; at < args.size(); ++at) {
    std::string problem;
    const OptionMatch match = take_text_option(args, at, decode, problem);
    if (match == OptionMatch::kWrong) return usage_error(problem);
    if (match == OptionMatch::kTaken) continue;
    if (const int status = other(std::string(args[at]), at); status != kOk) return status;
  }
  return kOk;
}

// Their help lines.
#define KILNUTIL_CLI_TEXT_OPTIONS_HELP                                                              \
  "  -c, --codepage NAME  read the text in this encoding: 1252, cp1252, windows-1252, shift_jis,\n" \
  "                       gbk, big5, euc-kr, utf-8, utf-16le, utf-32be, ... (default: detected)\n"  \
  "  --force              read input that looks binary (NUL or control bytes) as text\n"            \
  "  --replace            write U+FFFD for invalid input instead of stopping with an error\n"

}  // namespace kilnutil_cli
