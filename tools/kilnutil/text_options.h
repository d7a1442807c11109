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

// Their help lines.
#define KILNUTIL_CLI_TEXT_OPTIONS_HELP                                                              \
  "  -c, --codepage NAME  read the text in this encoding: 1252, cp1252, windows-1252, shift_jis,\n" \
  "                       gbk, big5, euc-kr, utf-8, utf-16le, utf-32be, ... (default: detected)\n"  \
  "  --force              read input that looks binary (NUL or control bytes) as text\n"            \
  "  --replace            write U+FFFD for invalid input instead of stopping with an error\n"

}  // namespace kilnutil_cli
