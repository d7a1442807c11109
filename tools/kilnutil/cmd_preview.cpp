// kilnutil preview FILE [--rows REQUEST] [--cols REQUEST] [--limit N] [--json]:
// the host's import path seen from a user. The file's encoding is detected and
// the file opened as UTF-8; the separator, lines and fields are found; the row
// and column requests are parsed by the partial-import parser; each wanted
// cell is read as a number (or the missing value "--") and, where it is an ISO
// date, as a date value.
#include "commands.h"
#include "preview_cell.h"
#include "preview_file.h"

#include <kilnutil/import.h>
#include <kilnutil/numeric.h>
#include <kilnutil/text.h>

#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <string>
#include <vector>

namespace kilnutil_cli {

namespace {

constexpr std::size_t kBlockSize = 1 << 20;
struct Options {
  std::string path;
  std::string rows;
  std::string cols;
  int limit = 10;
  bool json = false;
};

struct PreviewRow {
  int line;  // 0-based
  std::vector<std::pair<int, CellValue>> cells;
};

struct Preview {
  unsigned int encoding = 0;
  int separator = -1;
  char decimal_separator = '.';
  long long lines = 0;
  int fields = 0;
  long long wanted_rows = 0;
  std::vector<PreviewRow> rows;
};

// ---- Arguments.

bool parse_limit(const char* text, int& limit) {
  char* end = nullptr;
  const long value = std::strtol(text, &end, 10);
  if (end == text || *end != '\0' || value < 0 || value > 1000000) return false;
  limit = static_cast<int>(value);
  return true;
}

// "" when the request is usable, else the reason it is not.
std::string request_problem(const std::string& request) {
  if (request.size() >= KILNUTIL_PARTIAL_REQUEST_SIZE) {
    return "longer than " + std::to_string(KILNUTIL_PARTIAL_REQUEST_SIZE - 1) + " characters";
  }
  ImportFilesPartialParts parts;
  if (!parts.Parse(request.c_str())) return "no item such as 3, 2:10, 2:0, ~5 or 1:0|2-3";
  return "";
}

int parse_options(Args args, Options& options) {
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string arg = args[i];
    const bool has_value = i + 1 < args.size();
    if (arg == "--json") {
      options.json = true;
    } else if (arg == "--rows" || arg == "--cols") {
      if (!has_value) return usage_error(arg + " needs a request, such as 2:10");
      (arg == "--rows" ? options.rows : options.cols) = args[++i];
      const std::string& request = arg == "--rows" ? options.rows : options.cols;
      const std::string problem = request_problem(request);
      if (!problem.empty()) {
        return usage_error("invalid " + std::string(arg == "--rows" ? "row" : "column") + " request '" + request +
                           "': " + problem);
      }
    } else if (arg == "--limit") {
      if (!has_value || !parse_limit(args[i + 1], options.limit)) {
        return usage_error("--limit needs a count of rows from 0 to 1000000");
      }
      ++i;
    } else if (arg.size() > 1 && arg[0] == '-') {
      return usage_error("unknown option '" + arg + "' (preview FILE [--rows REQUEST] [--cols REQUEST] [--limit N] [--json])");
    } else if (options.path.empty()) {
      options.path = arg;
    } else {
      return usage_error("preview takes one file");
    }
  }
  if (options.path.empty()) return usage_error("preview needs a file: preview FILE [--rows REQUEST] [--cols REQUEST]");
  return kOk;
}

// ---- Reading.

// Line feeds in a block, counted by the library's line count over each
// NUL-free stretch (a line feed ending a stretch opens no line there).
long long line_feeds(const std::string& block) {
  long long feeds = 0;
  const char* end = block.data() + block.size();
  for (const char* stretch = block.c_str(); stretch < end;) {
    const std::size_t length = std::strlen(stretch);
    if (length > 0) feeds += KILNUTIL_LineCountA(stretch) - 1 + (stretch[length - 1] == '\n');
    stretch += length + 1;
  }
  return feeds;
}

PreviewRow read_row(int line, std::string text, int separator, const ImportFilesPartials& partials) {
  PreviewRow row{line, {}};
  const std::vector<char*> fields = split_fields(text, separator);
  for (std::size_t col = 0; col < fields.size(); ++col) {
    if (partials.CheckCol(static_cast<int>(col))) row.cells.emplace_back(static_cast<int>(col), read_cell(fields[col]));
  }
  return row;
}

// One pass over the text: lines counted, wanted rows read up to the limit.
class RowReader {
public:
  RowReader(const Options& options, const ImportFilesPartials& partials, Preview& preview)
      : options_(options), partials_(partials), preview_(preview) {}

  void feed(std::string block) {
    if (block.empty()) return;
    ends_with_feed_ = block.back() == '\n';
    feeds_ += line_feeds(block);
    for (std::size_t at = 0; at < block.size();) {
      if (!line_started_) start_line();
      const void* found = std::memchr(block.data() + at, '\n', block.size() - at);
      const std::size_t end = found ? static_cast<std::size_t>(static_cast<const char*>(found) - block.data()) : block.size();
      if (keep_line_) pending_.append(block, at, end - at);
      if (found == nullptr) break;
      finish_line();
      at = end + 1;
    }
  }

  void finish() {
    if (line_started_) finish_line();
    preview_.lines = feeds_ + 1 - (ends_with_feed_ ? 1 : 0);
  }

private:
  void start_line() {
    line_started_ = true;
    const bool wanted = partials_.CheckRow(static_cast<int>(line_));
    preview_.wanted_rows += wanted;
    keep_line_ = wanted && static_cast<long long>(preview_.rows.size()) < options_.limit;
  }

  void finish_line() {
    if (keep_line_) preview_.rows.push_back(read_row(static_cast<int>(line_), pending_, preview_.separator, partials_));
    pending_.clear();
    line_started_ = false;
    ++line_;
  }

  const Options& options_;
  const ImportFilesPartials& partials_;
  Preview& preview_;
  long long feeds_ = 0;
  long long line_ = 0;
  bool ends_with_feed_ = false;
  bool line_started_ = false;
  bool keep_line_ = false;
  std::string pending_;
};

// ---- Output.

std::string number_text(double value) {
  char buffer[64];
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
  return std::string(buffer, result.ptr);
}

std::string separator_text(int separator) {
  switch (separator) {
    case '\t': return "tab";
    case ',': return "\",\"";
    case ';': return "\";\"";
    default: return "none";
  }
}

std::string json_string(const std::string& text) {
  std::string out = "\"";
  for (const char c : text) {
    const auto u = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      out += '\\';
      out += c;
    } else if (c == '\t') {
      out += "\\t";
    } else if (u < 0x20) {
      char escape[8];
      std::snprintf(escape, sizeof escape, "\\u%04x", u);
      out += escape;
    } else {
      out += c;
    }
  }
  return out + "\"";
}

void print_text(const Options& options, const Preview& p) {
  char code[16];
  std::snprintf(code, sizeof code, "0x%03X", p.encoding);
  std::cout << "file       " << options.path << '\n'
            << "encoding   " << encoding_name(p.encoding) << " (code " << code << ")\n"
            << "separator  " << separator_text(p.separator) << ", decimal separator \"" << p.decimal_separator
            << "\"\n"
            << "lines      " << p.lines << '\n'
            << "fields     " << p.fields << '\n'
            << "rows       " << (options.rows.empty() ? "all" : options.rows) << " (" << p.wanted_rows << " wanted, "
            << p.rows.size() << " shown)\n"
            << "columns    " << (options.cols.empty() ? "all" : options.cols) << '\n';
  for (const PreviewRow& row : p.rows) {
    std::cout << "\nline " << row.line + 1 << '\n';
    for (const auto& [col, cell] : row.cells) {
      std::cout << "  " << col + 1 << "  \"" << cell.text << "\"  " << (cell.number ? number_text(*cell.number) : "--");
      if (cell.date) std::cout << "  date " << number_text(*cell.date);
      std::cout << '\n';
    }
  }
}

void print_json(const Options& options, const Preview& p) {
  std::cout << "{\"file\":" << json_string(options.path) << ",\"encoding\":{\"code\":" << p.encoding
            << ",\"name\":" << json_string(encoding_name(p.encoding)) << "},\"separator\":"
            << (p.separator > 0 ? json_string(std::string(1, static_cast<char>(p.separator))) : "null")
            << ",\"decimal_separator\":" << json_string(std::string(1, p.decimal_separator)) << ",\"lines\":" << p.lines
            << ",\"fields\":" << p.fields << ",\"rows_request\":" << json_string(options.rows)
            << ",\"cols_request\":" << json_string(options.cols) << ",\"wanted_rows\":" << p.wanted_rows
            << ",\"rows\":[";
  for (std::size_t r = 0; r < p.rows.size(); ++r) {
    std::cout << (r ? "," : "") << "{\"line\":" << p.rows[r].line + 1 << ",\"cells\":[";
    for (std::size_t c = 0; c < p.rows[r].cells.size(); ++c) {
      const auto& [col, cell] = p.rows[r].cells[c];
      std::cout << (c ? "," : "") << "{\"column\":" << col + 1 << ",\"text\":" << json_string(cell.text)
                << ",\"number\":" << (cell.number ? number_text(*cell.number) : "null")
                << ",\"date\":" << (cell.date ? number_text(*cell.date) : "null") << '}';
    }
    std::cout << "]}";
  }
  std::cout << "]}\n";
}

}  // namespace

int run_preview(Args args) {
  Options options;
  if (const int rc = parse_options(args, options); rc != kOk) return rc;

  Utf8TextFile file(options.path);
  if (!file.ok()) return input_error(file.error());

  tagImpFilePartialOpt request{};
  request.enabled = 1;
  std::memcpy(request.rows, options.rows.c_str(), options.rows.size() + 1);
  std::memcpy(request.cols, options.cols.c_str(), options.cols.size() + 1);
  ImportFilesPartials partials;
  parse_partial_range(&partials, &request);

  Preview preview;
  preview.encoding = file.encoding();
  const std::string head = read_head(file);
  const TableLayout layout = find_table_layout(head);
  preview.separator = layout.separator;
  preview.decimal_separator = layout.decimal_separator;
  preview.fields = layout.fields;

  RowReader reader(options, partials, preview);
  reader.feed(head);
  std::string block(kBlockSize, '\0');
  for (std::size_t got; (got = file.read(block.data(), kBlockSize)) > 0;) reader.feed(block.substr(0, got));
  reader.finish();

  if (options.json) {
    print_json(options, preview);
  } else {
    print_text(options, preview);
  }
  return kOk;
}

}  // namespace kilnutil_cli
