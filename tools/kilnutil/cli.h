// Shared pieces of the kilnutil command-line tool: the command table entry,
// exit codes and one-line error reporting.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace kilnutil_cli {

using Args = std::span<char* const>;  // the command's arguments, without its name

enum ExitCode : int {
  kOk = 0,
  kInputFailed = 1,  // a file could not be read or a conversion failed
  kUsage = 2,        // wrong arguments
};

struct Command {
  const char* name;
  const char* usage;    // argument synopsis, e.g. "TEXT|-"
  const char* summary;  // one line for `kilnutil help`
  int (*run)(Args args);
  // Options, one per line, and at least one example; printed by
  // `kilnutil COMMAND --help`, `-h` and `kilnutil help COMMAND`.
  const char* help = "";
};

std::span<const Command> commands();

// Prints the usage, summary and help text of a command on stdout.
void print_command_help(const Command& command);

// Prints "kilnutil: <message>" on stderr and returns kUsage.
int usage_error(std::string_view message);
// Prints "kilnutil: <message>" on stderr and returns kInputFailed.
int input_error(std::string_view message);
// Prints "kilnutil: <file>: <reason>" on stderr and returns kInputFailed;
// standard input ("-") is named "standard input".
int file_error(std::string_view file, std::string_view reason);

// The system's text for an error number, such as "Permission denied".
std::string system_reason(int error_number);

// The name that stands for standard input (or output).
inline const std::string kStandardStream = "-";

// How a file argument is named in messages.
std::string display_name(std::string_view file);

// The text of an argument, or all of standard input for "-".
std::string text_argument(const char* arg);

// Whether the argument is one of the help options (--help, -h).
bool is_help_option(std::string_view arg);

}  // namespace kilnutil_cli
