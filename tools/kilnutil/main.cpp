// kilnutil: command-line access to the library's subsystems.
#include "commands.h"
#include "help_texts.h"

#include <clocale>
#include <cstdio>
#include <iostream>

namespace kilnutil_cli {

namespace {

constexpr Command kCommands[] = {
    {"help", "[COMMAND|requests]", "list the commands, or explain one", run_help, kHelpHelp},
    {"version", "", "print the library version", run_version, kVersionHelp},
    {"chars", "TEXT|-", "list each character of UTF-8 text: byte offset, code point, UTF-16 units", run_chars,
     kCharsHelp},
    {"preview", "FILE|- [--rows REQUEST] [--cols REQUEST] [--limit N] [--json|--ndjson|--csv] [OPTIONS]",
     "import a delimited text file as the host does and show the wanted cells", run_preview, kPreviewHelp},
    {"split", "[--statements|--terms|--tokens] [TEXT|-]", "cut script text into statements, terms or tokens", run_split,
     kSplitHelp},
    {"number", "[--lenient] TEXT...", "parse numbers: code, value to 17 digits or the missing value", run_number,
     kNumberHelp},
    {"date", "[--system NAME] DATE|--to-date V|...",
     "date values in any date system, --convert V FROM TO, --step N d|m|q|y DATE", run_date, kDateHelp},
    {"detect", "[--json] FILE...", "encoding of each file: the library's code, and what the whole file reads as",
     run_detect, kDetectHelp},
    {"to-utf8", "[FILE|-] [-o OUT] [-c CODEPAGE] [--replace] [--force]", "a text file's contents as UTF-8",
     run_to_utf8, kToUtf8Help},
    {"base64", "[-d] [-i] [-w COLS] [FILE|-]", "Base64 of a file, or with -d the bytes of Base64 text", run_base64,
     kBase64Help},
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
  if (!args.empty() && std::string_view(args[0]) == "requests") {
    std::printf("%s\n", kRequestsGuide);
    return kOk;
  }
  if (!args.empty()) {
    const Command* command = find_command(args[0]);
    if (command == nullptr) return usage_error("unknown command '" + std::string(args[0]) + "' (see 'kilnutil help')");
    print_command_help(*command);
    return kOk;
  }
  std::cout << "usage: kilnutil COMMAND [ARGUMENTS]\n\ncommands:\n";
  for (const Command& command : commands()) std::printf("  %-10s %s\n", command.name, command.summary);
  std::printf("\n'kilnutil help COMMAND' (or COMMAND --help) shows a command's options and examples;\n"
              "'kilnutil help requests' the row and column requests of preview.\n");
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
