// kilnutil: command-line access to the library's subsystems.
#include "commands.h"

#include <clocale>
#include <cstdio>
#include <iostream>

namespace kilnutil_cli {

namespace {

constexpr Command kCommands[] = {
    {"help", "", "list the commands", run_help},
    {"version", "", "print the library version", run_version},
    {"chars", "TEXT|-", "list each character of UTF-8 text: byte offset, code point, UTF-16 units", run_chars},
    {"preview", "FILE [--rows REQUEST] [--cols REQUEST] [--limit N] [--json]",
     "import a delimited text file as the host does and show the wanted cells", run_preview},
    {"split", "[--statements|--terms|--tokens] [TEXT|-]", "cut script text into statements, terms or tokens", run_split},
    {"number", "[--lenient] TEXT...", "parse numbers: code, value to 17 digits or the missing value", run_number},
    {"date", "[--system NAME] DATE|--to-date V|...",
     "date values in any date system, --convert V FROM TO, --step N d|m|q|y DATE", run_date},
    {"detect", "FILE...", "encoding of each file: code, name and mark size", run_detect},
    {"to-utf8", "FILE [-o OUT] [-c CODEPAGE]", "a text file's contents as UTF-8", run_to_utf8},
    {"base64", "[-d] [FILE|-]", "Base64 of a file, or with -d the bytes of Base64 text", run_base64},
};

}  // namespace

std::span<const Command> commands() { return kCommands; }

void print_command_help(const Command& command) {
  std::printf("usage: kilnutil %s%s%s\n\n%s\n", command.name, *command.usage ? " " : "", command.usage, command.summary);
  if (*command.help) std::printf("\n%s\n", command.help);
}

static const Command* find_command(std::string_view name) {
  for (const Command& command : commands()) {
    if (name == command.name) return &command;
  }
  return nullptr;
}

static bool asks_for_help(Args args) {
  for (const char* arg : args) {
    if (is_help_option(arg)) return true;
  }
  return false;
}

int run_help(Args args) {
  if (!args.empty()) {
    const Command* command = find_command(args[0]);
    if (command == nullptr) return usage_error("unknown command '" + std::string(args[0]) + "' (see 'kilnutil help')");
    print_command_help(*command);
    return kOk;
  }
  std::cout << "usage: kilnutil COMMAND [ARGUMENTS]\n\ncommands:\n";
  for (const Command& command : commands()) {
    std::string synopsis = std::string(command.name) + (*command.usage ? " " : "") + command.usage;
    std::printf("  %-34s %s\n", synopsis.c_str(), command.summary);
  }
  return kOk;
}

}  // namespace kilnutil_cli

int main(int argc, char** argv) {
  using namespace kilnutil_cli;
  // Code-page text follows the user's locale (its codeset names the ANSI code page).
  // Numbers stay in the C form ("." as decimal point) in every output.
  std::setlocale(LC_ALL, "");
  std::setlocale(LC_NUMERIC, "C");
  if (argc < 2) return usage_error("no command given (see 'kilnutil help')");
  const std::string_view name = argv[1];
  const Command* command = find_command(name);
  if (command != nullptr) {
    const Args args(argv + 2, argv + argc);
    if (asks_for_help(args)) {
      print_command_help(*command);
      return kOk;
    }
    return command->run(args);
  }
  return usage_error("unknown command '" + std::string(name) + "' (see 'kilnutil help')");
}
