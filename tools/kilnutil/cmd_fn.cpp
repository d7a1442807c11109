// kilnutil fn NAME [ARG...] [--unit rad|deg|grad]: one catalogue function
// evaluated by the library's dispatcher, the value to 17 significant digits;
// kilnutil fn --list: the catalogue with argument counts and descriptions.
#include "commands.h"
#include "math_arguments.h"

#include <kilnutil/frame.h>
#include <kilnutil/math.h>

#include <cctype>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

namespace kilnutil_cli {

namespace {

unsigned call(unsigned command, void* arguments, void* result, unsigned short unit = KILNUTIL_MATHFN_UNIT_RADIANS) {
  return KilnMath_function(nullptr, command, arguments, result, unit);
}

int list_catalogue() {
  for (unsigned index = 0; index < KILNUTIL_MATHFN_COUNT; ++index) {
    char name[KILNUTIL_MATHFN_TEXT_SIZE];
    char description[KILNUTIL_MATHFN_TEXT_SIZE];
    call(KILNUTIL_MATHFN_COMMAND(KILNUTIL_MATHFN_NAME, index), nullptr, name);
    call(KILNUTIL_MATHFN_COMMAND(KILNUTIL_MATHFN_DESCRIPTION, index), nullptr, description);
    const unsigned count = call(KILNUTIL_MATHFN_COMMAND(KILNUTIL_MATHFN_ARG_COUNT, index), nullptr, nullptr);
    std::printf("%-9s %u  %s\n", name, count, description);
  }
  return kOk;
}

bool parse_unit(const std::string& word, unsigned short& unit) {
  if (word == "rad") unit = KILNUTIL_MATHFN_UNIT_RADIANS;
  else if (word == "deg") unit = KILNUTIL_MATHFN_UNIT_DEGREES;
  else if (word == "grad") unit = KILNUTIL_MATHFN_UNIT_GRADIANS;
  else return false;
  return true;
}

std::string upper_case(const char* text) {
  std::string name = text;
  for (char& c : name) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return name;
}

const char* error_reason(unsigned code) {
  switch (code) {
    case KILNUTIL_MATH_ERR_INVERF_PLUS_ONE: return "inverse error function of +1";
    case KILNUTIL_MATH_ERR_INVERF_MINUS_ONE: return "inverse error function of -1";
    default: return "argument outside the domain or no convergence";
  }
}

}  // namespace

int run_fn(Args args) {
  if (args.size() == 1 && std::strcmp(args[0], "--list") == 0) return list_catalogue();
  unsigned short unit = KILNUTIL_MATHFN_UNIT_RADIANS;
  std::vector<const char*> words;
  for (std::size_t i = 0; i < args.size(); ++i) {
    if (std::strcmp(args[i], "--unit") != 0) {
      words.push_back(args[i]);
      continue;
    }
    if (i + 1 >= args.size() || !parse_unit(args[i + 1], unit)) return usage_error("fn: --unit takes rad, deg or grad");
    ++i;
  }
  if (words.empty()) return usage_error("fn takes a function name and its arguments (see 'kilnutil fn --list')");

  std::string name = upper_case(words[0]);
  std::uint16_t index = 0;
  const unsigned expected = call(KILNUTIL_MATHFN_FIND, name.data(), &index);
  if (expected == 0)
    return usage_error("fn: unknown function '" + std::string(words[0]) + "' (see 'kilnutil fn --list')");
  if (words.size() - 1 != expected)
    return usage_error("fn: " + name + " takes " + std::to_string(expected) + " argument" + (expected == 1 ? "" : "s"));

  std::vector<double> values;
  for (std::size_t i = 1; i < words.size(); ++i) {
    const std::optional<double> value = parse_real(words[i]);
    if (!value) return input_error(std::string(words[i]) + ": not a number");
    values.push_back(*value);
  }
  double result = 0;
  const unsigned code = call(KILNUTIL_MATHFN_COMMAND(KILNUTIL_MATHFN_EVALUATE, index), values.data(), &result, unit);
  if (code != KILNUTIL_MATH_ERR_NONE)
    return input_error(name + ": math error code " + std::to_string(code) + ": " + error_reason(code));
  print_value(result);
  if (is_missing_value(result) != 0) return input_error(name + ": no value for these arguments");
  return kOk;
}

}  // namespace kilnutil_cli
