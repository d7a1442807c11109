// The rows and columns of a partial import, the import options that describe
// them, and the free functions on single parts.
#include "import/partial_part.h"

#include <cstring>
#include <string>
#include <string_view>

namespace {

// A request buffer of the options, read no further than its size.
std::string_view request_text(const char (&buffer)[KILNUTIL_PARTIAL_REQUEST_SIZE]) {
  return {buffer, strnlen(buffer, sizeof buffer)};
}

// Parses a non-empty request into parts and keeps its leading shift indices;
// an empty request wants everything.
void apply_request(ImportFilesPartialParts& parts, std::string_view request, int shift) {
  if (request.empty()) {
    parts.RemoveAll();
    return;
  }
  const std::string text(request);
  parts.Parse(text.c_str());
  parts.Shift(shift, true);
}

}  // namespace

ImportFilesPartials::ImportFilesPartials() = default;
ImportFilesPartials::ImportFilesPartials(const ImportFilesPartials& other) = default;
ImportFilesPartials& ImportFilesPartials::operator=(const ImportFilesPartials& other) = default;
ImportFilesPartials::~ImportFilesPartials() = default;

bool ImportFilesPartials::CheckRow(int row) const { return rows.Check(row); }

bool ImportFilesPartials::CheckCol(int col) const { return cols.Check(col); }

bool ImportFilesPartials::Check(int row, int col) const { return CheckRow(row) && CheckCol(col); }

extern "C" {

bool parse_partial_range(ImportFilesPartials* partials, const tagImpFilePartialOpt* opt) {
  if (partials == nullptr || opt == nullptr) return false;
  try {
    if (opt->enabled == 0) {
      partials->rows.RemoveAll();
      partials->cols.RemoveAll();
      return false;
    }
    apply_request(partials->rows, request_text(opt->rows), opt->row_shift);
    apply_request(partials->cols, request_text(opt->cols), opt->col_shift);
    return true;
  } catch (...) {
    return false;  // out of memory
  }
}

bool parse_one_partial(const char* request, ImportFilesPartialPart* part, bool one_based) {
  if (request == nullptr || part == nullptr) return false;
  try {
    ImportFilesPartialParts parts;
    parts.Parse(request);
    return parts.GetSingleRange(*part, one_based);
  } catch (...) {
    return false;  // out of memory
  }
}

bool skip_str_to_partial(const char* skip, ImportFilesPartialPart* part, const char* selection) {
  if (part == nullptr) return false;
  try {
    return kiln::import::apply_selection_clause(skip != nullptr ? skip : "", *part,
                                                selection != nullptr ? selection : "");
  } catch (...) {
    return false;  // out of memory
  }
}

char GetSpecialSkip(const ImportFilesPartialPart* part, int* skip_at_least_one, int* begin, int* end, int* count,
                    int total, int* skip, char* name, int* special_count, char* special_unit) {
  const kiln::import::SpecialSkipOut out{skip_at_least_one, begin, end, count, skip, name, special_count, special_unit};
  if (part == nullptr) {
    kiln::import::clear_special_skip_name(out);
    return 0;
  }
  return kiln::import::special_skip_of(*part, total, out);
}

}  // extern "C"
