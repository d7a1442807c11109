// Table, JSON, NDJSON and CSV writers of the preview.
#include "preview_output.h"

#include "json.h"
#include "utf8_check.h"

#include <kilnutil/numeric.h>

#include <algorithm>
#include <cmath>

namespace kilnutil_cli {

namespace {

constexpr std::size_t kRowsForWidths = 200;

std::string missing_text() { return KILNUTIL_get_missing_as_text(nullptr); }

std::size_t code_points(std::string_view text) {
  return static_cast<std::size_t>(
      std::count_if(text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0u) != 0x80u; }));
}

// The text cut to width code points, the last one "…" when cut.
std::string cut(const std::string& text, std::size_t width) {
  if (code_points(text) <= width) return text;
  std::size_t kept = 0, at = 0;
  for (; at < text.size(); ++at) {
    if ((static_cast<unsigned char>(text[at]) & 0xC0u) != 0x80u && kept++ == width - 1) break;
  }
  return text.substr(0, at) + "\xE2\x80\xA6";
}

// What the table shows: the number as read, the date text (with its value on
// request), the text, or the missing value for an empty cell.
std::string shown_text(const CellValue& cell, bool date_values) {
  if (cell.date) return date_values ? cell.text + " (" + number_text(*cell.date) + ")" : cell.text;
  if (cell.number) return number_text(*cell.number);
  return cell.text.empty() ? missing_text() : cell.text;
}

void pad(std::string& out, std::size_t count) { out.append(count, ' '); }

// A cell on one table line: line ends shown as "↵", tabs as blanks.
std::string one_line(std::string text) {
  if (text.find_first_of("\r\n\t") == std::string::npos) return text;
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
    if (text[i] == '\r' || text[i] == '\n') out += "\xE2\x86\xB5";
    else out += text[i] == '\t' ? ' ' : text[i];
  }
  return out;
}

class TableWriter : public PreviewWriter {
public:
  TableWriter(const PreviewOptions& options, std::string& out) : options_(options), out_(out) {}

  void begin(const std::vector<PreviewColumn>& columns) override {
    columns_ = columns;
    header_.push_back("row");
    for (const PreviewColumn& column : columns) header_.push_back(cut(one_line(column.name), options_.width));
    widths_.assign(header_.size(), 0);
    for (std::size_t i = 0; i < header_.size(); ++i) widths_[i] = code_points(header_[i]);
  }

  void row(const PreviewRow& row) override {
    std::vector<std::string> texts{std::to_string(row.number)};
    std::vector<bool> right{true};
    for (const CellValue& cell : row.cells) {
      texts.push_back(cut(one_line(shown_text(cell, options_.date_values)), options_.width));
      right.push_back(cell.number.has_value() && !cell.date);
    }
    if (!widths_fixed_) {
      for (std::size_t i = 0; i < texts.size(); ++i) widths_[i] = std::max(widths_[i], code_points(texts[i]));
      waiting_.push_back({std::move(texts), std::move(right)});
      if (waiting_.size() >= kRowsForWidths) flush_waiting();
      return;
    }
    write_line(texts, right);
  }

  void end(const PreviewSummary& s) override {
    flush_waiting();
    std::string file;
    append_replacing_invalid(display_name(options_.path), file);
    out_ += "\nfile       " + file + "\nencoding   " + s.encoding + "\nseparator  " + s.separator + " (" +
            s.separator_reason + ")\ndecimal    \"" + s.decimal + "\" (" + s.decimal_reason + ")\nheader     " +
            (s.header_line ? "line " + std::to_string(s.header_line) : std::string("none")) + "\nlines      " +
            std::to_string(s.lines) + "\nfields     " + std::to_string(s.fields) + "\nrows       " +
            (options_.rows.empty() ? "all" : options_.rows) + " (" + std::to_string(s.wanted) + " wanted, " +
            std::to_string(s.shown) + " shown)\ncolumns    " + (options_.cols.empty() ? "all" : options_.cols) + "\n";
    if (s.titles + s.skipped + s.comments > 0) {
      out_ += "skipped    " + std::to_string(s.skipped) + " by --skip, " + std::to_string(s.titles) + " title lines, " +
              std::to_string(s.comments) + " comment or blank lines\n";
    }
    if (s.ragged > 0) out_ += "ragged     " + std::to_string(s.ragged) + " rows with another field count\n";
  }

private:
  struct Waiting {
    std::vector<std::string> texts;
    std::vector<bool> right;
  };

  void flush_waiting() {
    if (widths_fixed_) return;
    widths_fixed_ = true;
    write_line(header_, std::vector<bool>(header_.size(), false));
    for (const Waiting& w : waiting_) write_line(w.texts, w.right);
    waiting_.clear();
  }

  void write_line(const std::vector<std::string>& texts, const std::vector<bool>& right) {
    for (std::size_t i = 0; i < texts.size() && i < widths_.size(); ++i) {
      // Row numbers are never cut: a longer one only shifts its line.
      const bool too_wide = code_points(texts[i]) > widths_[i];
      const std::string text = too_wide && i > 0 ? cut(texts[i], widths_[i]) : texts[i];
      const std::size_t fill = too_wide ? 0 : widths_[i] - code_points(text);
      if (i > 0) out_ += "  ";
      if (right[i]) pad(out_, fill);
      out_ += text;
      if (!right[i] && i + 1 < texts.size()) pad(out_, fill);
    }
    out_ += '\n';
  }

  const PreviewOptions& options_;
  std::string& out_;
  std::vector<PreviewColumn> columns_;
  std::vector<std::string> header_;
  std::vector<std::size_t> widths_;
  std::vector<Waiting> waiting_;
  bool widths_fixed_ = false;
};

// JSON has no infinity or NaN: those numbers are written as null.
void append_json_number(double value, std::string& out) {
  if (std::isfinite(value)) append_number(value, out);
  else out += "null";
}

void append_number_or_null(const std::optional<double>& value, std::string& out) {
  if (value) append_json_number(*value, out);
  else out += "null";
}

class JsonWriter : public PreviewWriter {
public:
  JsonWriter(const PreviewOptions& options, std::string& out) : options_(options), out_(out) {}

  void begin(const std::vector<PreviewColumn>& columns) override {
    columns_ = columns;
    out_ += "{\"file\":" + json_string(options_.path) + ",\"columns\":[";
    for (std::size_t i = 0; i < columns.size(); ++i) {
      out_ += (i ? ",{\"column\":" : "{\"column\":") + std::to_string(columns[i].index + 1) + ",\"name\":";
      append_json_string(columns[i].name, out_);
      out_ += '}';
    }
    out_ += "],\"rows\":[";
  }

  void row(const PreviewRow& row) override {
    out_ += (first_ ? "{\"row\":" : ",{\"row\":") + std::to_string(row.number) + ",\"cells\":[";
    first_ = false;
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
      const CellValue& cell = row.cells[i];
      out_ += (i ? ",{\"column\":" : "{\"column\":") + std::to_string(columns_[i].index + 1) + ",\"text\":";
      append_json_string(cell.text, out_);
      out_ += ",\"number\":";
      append_number_or_null(cell.number, out_);
      out_ += ",\"date\":";
      append_number_or_null(cell.date, out_);
      out_ += '}';
    }
    out_ += "]}";
  }

  void end(const PreviewSummary& s) override {
    out_ += "],\"encoding\":" + json_string(s.encoding) + ",\"separator\":" + json_string(s.separator) +
            ",\"separator_reason\":" + json_string(s.separator_reason) +
            ",\"decimal_separator\":" + json_string(std::string(1, s.decimal)) +
            ",\"header_line\":" + (s.header_line ? std::to_string(s.header_line) : "null") +
            ",\"lines\":" + std::to_string(s.lines) + ",\"fields\":" + std::to_string(s.fields) +
            ",\"rows_request\":" + json_string(options_.rows) + ",\"cols_request\":" + json_string(options_.cols) +
            ",\"wanted_rows\":" + std::to_string(s.wanted) + ",\"shown_rows\":" + std::to_string(s.shown) + "}\n";
  }

private:
  const PreviewOptions& options_;
  std::string& out_;
  std::vector<PreviewColumn> columns_;
  bool first_ = true;
};

// Column names made unique (a repeated name gets its column number).
std::vector<std::string> unique_names(const std::vector<PreviewColumn>& columns) {
  std::vector<std::string> names;
  for (const PreviewColumn& column : columns) {
    std::string name = column.name;
    if (std::find(names.begin(), names.end(), name) != names.end())
      name += " (" + std::to_string(column.index + 1) + ")";
    names.push_back(name);
  }
  return names;
}

class NdjsonWriter : public PreviewWriter {
public:
  NdjsonWriter(const PreviewOptions& options, std::string& out) : options_(options), out_(out) {}

  void begin(const std::vector<PreviewColumn>& columns) override {
    for (const std::string& name : unique_names(columns)) {
      std::string key(1, ',');
      append_json_string(name, key);
      keys_.push_back(key + ':');
    }
  }

  void row(const PreviewRow& row) override {
    out_ += "{\"row\":" + std::to_string(row.number);
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
      const CellValue& cell = row.cells[i];
      out_ += keys_[i];
      if (cell.date && options_.date_values) append_json_number(*cell.date, out_);
      else if (cell.number && !cell.date) append_json_number(*cell.number, out_);
      else if (cell.text.empty()) out_ += "null";
      else append_json_string(cell.text, out_);
    }
    out_ += "}\n";
  }

  void end(const PreviewSummary&) override {}

private:
  const PreviewOptions& options_;
  std::string& out_;
  std::vector<std::string> keys_;
};

bool needs_csv_quotes(std::string_view text) {
  for (const char c : text) {
    if (c == ',' || c == '"' || c == '\r' || c == '\n') return true;
  }
  return false;
}

void append_csv_text(std::string_view text, std::string& out) {
  if (!needs_csv_quotes(text)) {
    out += text;
    return;
  }
  out += '"';
  for (const char c : text) {
    if (c == '"') out += '"';
    out += c;
  }
  out += '"';
}

class CsvWriter : public PreviewWriter {
public:
  CsvWriter(const PreviewOptions& options, std::string& out) : options_(options), out_(out) {}

  void begin(const std::vector<PreviewColumn>& columns) override {
    const std::vector<std::string> names = unique_names(columns);
    for (std::size_t i = 0; i < names.size(); ++i) {
      if (i) out_ += ',';
      append_csv_text(names[i], out_);
    }
    out_ += '\n';
  }

  void row(const PreviewRow& row) override {
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
      const CellValue& cell = row.cells[i];
      if (i) out_ += ',';
      if (cell.date && options_.date_values) append_number(*cell.date, out_);
      else if (cell.number && !cell.date) append_number(*cell.number, out_);
      else append_csv_text(cell.text, out_);
    }
    out_ += '\n';
  }

  void end(const PreviewSummary&) override {}

private:
  const PreviewOptions& options_;
  std::string& out_;
};

}  // namespace

std::unique_ptr<PreviewWriter> make_preview_writer(const PreviewOptions& options, std::string& out) {
  switch (options.format) {
    case PreviewFormat::kJson: return std::make_unique<JsonWriter>(options, out);
    case PreviewFormat::kNdjson: return std::make_unique<NdjsonWriter>(options, out);
    case PreviewFormat::kCsv: return std::make_unique<CsvWriter>(options, out);
    case PreviewFormat::kTable: break;
  }
  return std::make_unique<TableWriter>(options, out);
}

}  // namespace kilnutil_cli
