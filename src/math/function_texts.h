// The built-in English texts of the math function catalogue, keyed by the
// entries' help-text numbers (30001 upward): a call synopsis and a one-line
// description for each function.
#pragma once

#include <cstdint>
#include <string>

namespace kiln::math {

struct FunctionText {
  std::uint16_t id;
  const char* synopsis;     // e.g. "sin(x)"
  const char* description;  // one sentence
};

// The texts numbered `id`, or null for 0 and unknown numbers.
const FunctionText* find_function_text(std::uint16_t id);

// The help text of an entry: synopsis, description and the argument rules
// its category flags impose; empty for text number 0.
std::string function_help_text(std::uint16_t id, unsigned flags);

}  // namespace kiln::math
