// kilnutil version
#include "commands.h"

#include <kilnutil/version.h>

#include <iostream>

namespace kilnutil_cli {

int run_version(Args args) {
  if (!args.empty()) return usage_error("version takes no arguments");
  std::cout << "kilnutil " << KILNUTIL_VERSION_STRING << '\n';
  return kOk;
}

}  // namespace kilnutil_cli
