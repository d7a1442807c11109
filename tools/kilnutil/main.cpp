// kilnutil: command-line access to the library's subsystems.
#include "commands.h"
#include "help_texts.h"
#include "standard_streams.h"

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
    {"to-utf8", "[FILE|-] [-o OUT] [-c CODEPAGE] [--replace] [--force]", "a text file's contents as UTF-8", run_to_utf8,
     kToUtf8Help},
    {"base64", "[-d] [-i] [-w COLS] [FILE|-]", "Base64 of a file, or with -d the bytes of Base64 text", run_base64,
     kBase64Help},
    {"fn", "NAME [ARG...] [--unit rad|deg|grad] | --list", "evaluate a script math function by name, or list them",
     run_fn,
     "NAME          a catalogue function, in any letter case\n"
     "ARG...        its arguments (as many as 'fn --list' shows)\n"
     "--unit U      angle unit: rad (default), deg or grad\n"
     "--list        list the functions with argument counts and descriptions\n"
     "example: kilnutil fn sin 90 --unit deg"},
    {"random", "[--seed N] [--normal|--poisson MEAN] [COUNT]", "deviates from the library's random generators",
     run_random,
     "--seed N        seed the generators with N (1 or more); the same seed gives the same numbers\n"
     "--normal        standard normal deviates\n"
     "--poisson MEAN  Poisson deviates of the given mean\n"
     "COUNT           how many (default 10)\n"
     "example: kilnutil random --seed 5 --normal 4"},
    {"smith", "[--reflect] R X | --inverse U V", "Smith chart point of an impedance, or the impedance of a point",
     run_smith,
     "R X           normalised resistance and reactance -> chart point u v\n"
     "--reflect     reflect negative resistances through the unit circle\n"
     "--inverse U V chart point -> resistance and reactance\n"
     "example: kilnutil smith 0 1"},
    {"stat", "FUNCTION ARG...|--list", "special functions, distributions and rounding: one value to 17 digits",
     run_stat,
     "FUNCTION ARG...  evaluate one function (integers where the list says DF, N or K)\n"
     "--list           list the functions with their arguments\n"
     "A failed evaluation prints the missing value, and the math error code with a\n"
     "reason on stderr (exit 1).\n\n"
     "examples:\n"
     "  kilnutil stat t-quantile 0.975 10\n"
     "  kilnutil stat chisq-cdf 3.84 1\n"
     "  kilnutil stat normal-quantile 0.95\n"
     "  kilnutil stat round 2.675 2"},
    {"sort", "[--desc] [--column N] [--separator C] [FILE|-]",
     "sort a column of a delimited text file: each value with its line number", run_sort,
     "--desc           descending order\n"
     "--column N       the column to sort, from 1 (default 1)\n"
     "--separator C    the field separator: one character or 'tab' (default: found from the text)\n"
     "Text that is not a number sorts as the missing value \"--\".\n"
     "example: kilnutil sort --desc --column 3 examples/weather_utf8_bom.csv"},
    {"invert", "[FILE|-]", "invert a square matrix: one row per line, numbers separated by blanks, commas or ;",
     run_invert,
     "FILE             the matrix (default: standard input)\n"
     "Prints the inverse with 17 significant digits, or fails with \"singular\" (exit 1).\n"
     "example: printf '4 7\\n2 6\\n' | kilnutil invert"},
    {"color", "TEXT... [--to MODEL] | --list | --ramp START END N [--three]",
     "colour strings in every colour model, the colour list, colour ramps", run_color,
     "TEXT              a list name, #RGB, #RRGGBB, RGB(r,g,b), HSL(h,l,s) (0-240) or a number\n"
     "--to MODEL        rgb, html, hsl, hsv, lab, lch, luv, xyz, yxy, cmy, cmyk, hunterlab or all (default)\n"
     "--list            the colour list: number, name, #RRGGBB (a swatch on true-colour terminals; NO_COLOR honoured)\n"
     "--ramp S E N      N colours from S to E; --three adds the middle point 255 - S - E\n"
     "example: kilnutil color Orange \"#336699\" --to lab\n"
     "example: kilnutil color --ramp Red Blue 5 --three"},
    {"section", "FILE [NAME] | --list FILE", "a section of a sectioned text file as UTF-8, or the list of sections",
     run_section,
     "NAME     the section (case blind); \"\" the text before the first header; none: the whole file\n"
     "--list   each header's line number (from 1) and name\n"
     "example: kilnutil section settings.ini General"},
    {"strip-comments", "[FILE|-]", "script text without its comments; the line count on stderr", run_strip_comments,
     "FILE     the script (UTF-8); - or none: standard input\n"
     "example: kilnutil strip-comments script.qs"},
    {"path", "check|split PATH...", "path syntax codes, or folder, name and extension", run_path,
     "check    code and meaning of each path (exit code 1 when one is invalid)\n"
     "split    folder, name and extension, separated by tabs\n"
     "example: kilnutil path check 'C:\\data\\a.txt'"},
    {"language", "[LETTER|NAME]", "the user-interface languages, or store a new choice", run_language,
     "LETTER|NAME  E, G, J, C or English, German, Japanese, Chinese: stored for the next start\n"
     "example: kilnutil language German"},
};

}  // namespace

std::span<const Command> commands() { return kCommands; }

void print_command_help(const Command& command) {
  std::printf("usage: kilnutil %s%s%s\n\n%s\n", command.name, *command.usage ? " " : "", command.usage,
              command.summary);
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
  std::printf(
      "\n'kilnutil help COMMAND' (or COMMAND --help) shows a command's options and examples;\n"
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
  use_binary_standard_streams();
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
