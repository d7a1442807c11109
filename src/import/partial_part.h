// One part of a partial-import request: what a new part holds, which indices
// it matches, how a selection clause fills it, and its skip values.
#pragma once

#include <kilnutil/import.h>

#include <string_view>

namespace kiln::import {

// All zeros with a count of 1.
ImportFilesPartialPart new_part();

// Whether index i lies in the part's periodic selection (the include flag is
// not consulted).
bool part_contains(const ImportFilesPartialPart& part, int i);

// The integer value of a request number, as the number parser reads it.
int request_int(std::string_view text);
// Whether the text is an integer for the number parser.
bool request_is_int(std::string_view text);

// Applies "|selection-skip" to the part; whether either text was non-empty.
bool apply_selection_clause(std::string_view skip, ImportFilesPartialPart& part, std::string_view selection);

// Outputs of the skip query for one part (each may be null).
struct SpecialSkipOut {
  int* skip_at_least_one;
  int* begin;
  int* end;
  int* count;
  int* skip;
  char* name;
  int* special_count;
  char* special_unit;
};

// Fills the outputs from the part (an open end becomes total - 1) and returns
// its skip unit letter.
char special_skip_of(const ImportFilesPartialPart& part, int total, const SpecialSkipOut& out);

// Clears the name output of a query that has no single part to report.
void clear_special_skip_name(const SpecialSkipOut& out);

}  // namespace kiln::import
