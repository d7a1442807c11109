// Parsing of the text-reading options.
#include "text_options.h"

#include <string_view>

namespace kilnutil_cli {

OptionMatch take_text_option(Args args, std::size_t& at, DecodeOptions& options, std::string& problem) {
  const std::string_view arg = args[at];
  if (arg == "--force") {
    options.force = true;
  } else if (arg == "--replace") {
    options.replace = true;
  } else if (arg == "-c" || arg == "--codepage") {
    if (at + 1 >= args.size()) {
      problem = std::string(arg) + " needs an encoding name or code page number, such as 1252 or shift_jis";
      return OptionMatch::kWrong;
    }
    const std::string_view name = args[++at];
    options.forced = encoding_from_name(name);
    if (!options.forced) {
      problem = "unknown code page '" + std::string(name) + "' (a number such as 1252, or a name such as cp1252, " +
                "windows-1252, shift_jis, gbk, big5, euc-kr, utf-8, utf-16le)";
      return OptionMatch::kWrong;
    }
  } else {
    return OptionMatch::kNotMine;
  }
  return OptionMatch::kTaken;
}

}  // namespace kilnutil_cli
