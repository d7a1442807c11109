// The script language's math function catalogue: 65 functions in alphabetical
// order of their upper-case names, each with its argument count, category
// flags, evaluation routine and help-text number, ended by an entry named "0".
// Evaluation applies the caller's angle unit and the flags' domain rules.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace kiln::math {

using UnaryRoutine = double (*)(double);
using ArrayRoutine = double (*)(const double* arguments);

struct CatalogueEntry {
  const char* name;
  std::uint8_t argument_count;  // 1, 2 or 3; 0 for the end entry
  std::uint8_t flags;           // KILNUTIL_MATHFN_FLAG_*
  UnaryRoutine unary;           // for one argument
  ArrayRoutine array;           // for two or three
  std::uint16_t help_id;        // text number from 30001; 0 for none
};

// The 65 functions followed by the end entry.
std::span<const CatalogueEntry> catalogue_with_end();

// The 65 functions.
std::span<const CatalogueEntry> catalogue_functions();

// The index of the function named exactly `name` (upper case), trying the
// last one found first, then a binary search; nothing for an unknown name
// or the end entry.
std::optional<std::size_t> find_catalogue_function(const char* name);

// Evaluates function `index` on `arguments` (as many doubles as it takes) in
// the angle unit `unit` (KILNUTIL_MATHFN_UNIT_*), writes the value to
// *result and returns the math error code. A domain failure of the flags
// writes 0 and returns 1; an index outside the functions writes the missing
// value and returns 1.
unsigned evaluate_catalogue_function(std::size_t index, const double* arguments, double& result, unsigned unit);

}  // namespace kiln::math
