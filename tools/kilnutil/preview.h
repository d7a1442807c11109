// kilnutil preview: a delimited text file imported as the host imports it,
// with the tool's own checks around the library (encoding on the whole file,
// separator, titles, header and decimal mark from the data), shown as a
// table, JSON, one JSON object per row, or CSV. Streams: memory stays
// bounded by the pieces read and the longest record.
#pragma once

#include "cli.h"
#include "file_io.h"
#include "text_decoder.h"

#include <cstdint>
#include <optional>
#include <string>

namespace kilnutil_cli {

enum class PreviewFormat { kTable, kJson, kNdjson, kCsv };

struct PreviewOptions {
  std::string path;
  std::string rows;  // partial-import requests; empty: everything
  std::string cols;
  std::int64_t limit = -1;  // rows shown; 0 all, -1 the format's default
  PreviewFormat format = PreviewFormat::kTable;
  std::optional<char> separator;  // 0: none
  std::optional<char> decimal;
  std::uint64_t skip = 0;  // lines before the header
  char comment = '#';      // 0: no comment lines
  std::optional<bool> header;
  std::size_t width = 24;  // table cells are cut to this many characters
  bool date_values = false;
  DecodeOptions decode;
};

// Parses the command's arguments; kOk, or kUsage after the message.
int parse_preview_options(Args args, PreviewOptions& options);

// Previews the opened input; output goes to `output` (nothing is written
// when it is null). Returns the exit code, after the message on failure.
int preview_input(InputFile& input, const PreviewOptions& options, OutputFile* output);

}  // namespace kilnutil_cli
