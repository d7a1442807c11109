// The preview's outputs: an aligned table with a summary, one JSON document,
// one JSON object per row, or CSV. Each writer appends to a text buffer that
// the caller flushes, so rows stream out as they are read.
#pragma once

#include "preview.h"
#include "preview_cell.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace kilnutil_cli {

struct PreviewColumn {
  int index;  // 0-based
  std::string name;
};

struct PreviewRow {
  std::uint64_t number = 0;      // 1-based record number in the file
  std::vector<CellValue> cells;  // one per column
};

struct PreviewSummary {
  std::string encoding;
  std::string separator;  // as named to the user
  std::string separator_reason;
  char decimal = '.';
  std::string decimal_reason;
  std::uint64_t header_line = 0;  // 0: none
  std::uint64_t titles = 0;
  std::uint64_t skipped = 0;
  std::uint64_t comments = 0;
  std::uint64_t lines = 0;
  int fields = 1;
  std::uint64_t wanted = 0;
  std::uint64_t shown = 0;
  std::uint64_t ragged = 0;  // data rows with another field count
};

class PreviewWriter {
public:
  virtual ~PreviewWriter() = default;
  virtual void begin(const std::vector<PreviewColumn>& columns) = 0;
  virtual void row(const PreviewRow& row) = 0;
  virtual void end(const PreviewSummary& summary) = 0;
};

std::unique_ptr<PreviewWriter> make_preview_writer(const PreviewOptions& options, std::string& out);

}  // namespace kilnutil_cli
