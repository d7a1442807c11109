// kilnutil number [--lenient] TEXT...: each text through the real parser, one
// line each: the text, the parse code (0 not a number, 1 integer, 2 with a
// decimal separator, 4 with an exponent) and the value to 17 significant
// digits, or the missing-value text.
#include "commands.h"

#include <kilnutil/numeric.h>

#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

namespace kilnutil_cli {

int run_number(Args args) {
  unsigned flags = 1;
  std::size_t first = 0;
  if (!args.empty() && std::strcmp(args[0], "--lenient") == 0) {
    flags = 0;
    first = 1;
  }
  if (first >= args.size()) return usage_error("number takes one or more texts: number [--lenient] TEXT...");

  bool all_numbers = true;
  for (std::size_t i = first; i < args.size(); ++i) {
    const std::string original = args[i];
    std::vector<char> text(original.begin(), original.end());
    text.push_back('\0');
    double value = 0;
    const unsigned code = KILNUTIL_cvtstr2real_ex(text.data(), &value, flags, nullptr);
    if (code == 0) {
      all_numbers = false;
      std::printf("%s\t0\t%s\n", original.c_str(), KILNUTIL_get_missing_as_text(nullptr));
    } else {
      std::printf("%s\t%u\t%.17g\n", original.c_str(), code, value);
    }
  }
  return all_numbers ? kOk : kInputFailed;
}

}  // namespace kilnutil_cli
