// One-line error reporting and argument helpers shared by every command.
#include "cli.h"

#include <cstring>
#include <iostream>
#include <iterator>

namespace kilnutil_cli {

int usage_error(std::string_view message) {
  std::cerr << "kilnutil: " << message << '\n';
  return kUsage;
}

int input_error(std::string_view message) {
  std::cerr << "kilnutil: " << message << '\n';
  return kInputFailed;
}

std::string display_name(std::string_view file) { return file == "-" ? "standard input" : std::string(file); }

int file_error(std::string_view file, std::string_view reason) {
  std::cerr << "kilnutil: " << display_name(file) << ": " << reason << '\n';
  return kInputFailed;
}

std::string system_reason(int error_number) { return std::strerror(error_number); }

std::string text_argument(const char* arg) {
  if (std::strcmp(arg, "-") != 0) return arg;
  return std::string(std::istreambuf_iterator<char>(std::cin), std::istreambuf_iterator<char>());
}

bool is_help_option(std::string_view arg) { return arg == "--help" || arg == "-h"; }

}  // namespace kilnutil_cli
