// kilnutil preview FILE|- [options]: the host's import path seen from a user.
// The text is read through the tool's decoder (the library's detection,
// checked on the whole file); the first data lines decide the separator (the
// library's guess first), title lines, header and decimal mark, unless the
// options say; the row and column requests are parsed by the partial-import
// parser; each wanted cell is read as a number (or the missing value) and,
// where it is an ISO date, as a date value.
#include "commands.h"
#include "csv_records.h"
#include "preview.h"
#include "preview_output.h"
#include "progress.h"
#include "separator_guess.h"

#include <kilnutil/import.h>

#include <cstring>

namespace kilnutil_cli {

namespace {

constexpr std::size_t kHeadLines = 50;
constexpr std::size_t kFlushBytes = 1 << 20;

struct Layout {
  SeparatorChoice separator;
  DecimalChoice decimal;
  std::size_t titles = 0;
  bool header = false;
};

Layout decide_layout(const std::vector<std::string>& head, const PreviewOptions& options) {
  Layout layout;
  if (options.separator) {
    std::vector<std::string_view> fields;
    layout.separator.separator = *options.separator;
    layout.separator.reason = "as asked";
    if (!head.empty()) split_fields(head.back(), *options.separator, fields);
    layout.separator.fields = head.empty() ? 1 : static_cast<int>(fields.size());
  } else {
    layout.separator = choose_separator(head);
  }
  layout.titles = options.skip > 0 || options.header ? 0 : title_lines(head, layout.separator);
  const std::vector<std::string> table(head.begin() + static_cast<std::ptrdiff_t>(layout.titles), head.end());
  layout.header = options.header ? *options.header : looks_like_header(table, layout.separator.separator);
  if (options.decimal) {
    layout.decimal = {*options.decimal, "as asked"};
  } else {
    layout.decimal = choose_decimal(table, layout.separator.separator);
  }
  return layout;
}

bool is_comment(std::string_view record, char comment) {
  std::size_t at = 0;
  while (at < record.size() && (record[at] == ' ' || record[at] == '\t')) ++at;
  return at == record.size() || (comment != 0 && record[at] == comment);
}

class PreviewRun {
public:
  PreviewRun(InputFile& input, const PreviewOptions& options, OutputFile* output)
      : input_(input),
        options_(options),
        output_(output),
        decoder_(input, options.decode),
        reader_(decoder_),
        progress_("preview", input.size()) {}

  int run();

private:
  bool read_head();
  void start_table();
  void take_record(std::uint64_t number, std::string_view record);
  bool flush();
  int fail(const std::string& reason) { return file_error(options_.path, reason); }

  InputFile& input_;
  const PreviewOptions& options_;
  OutputFile* output_;
  TextDecoder decoder_;
  RecordReader reader_;
  Progress progress_;
  ImportFilesPartials partials_;
  Layout layout_;
  std::vector<std::string> head_;
  std::vector<std::uint64_t> head_numbers_;
  std::vector<PreviewColumn> columns_;
  std::unique_ptr<PreviewWriter> writer_;
  PreviewSummary summary_;
  std::int64_t limit_ = 10;
  std::string out_;
  std::vector<std::string_view> fields_;
  PreviewRow row_;
};

bool PreviewRun::read_head() {
  std::string_view record;
  while (summary_.skipped < options_.skip && reader_.next(record)) ++summary_.skipped;
  while (head_.size() < kHeadLines && reader_.next(record)) {
    if (is_comment(record, options_.comment)) {
      ++summary_.comments;
      continue;
    }
    head_.emplace_back(record);
    head_numbers_.push_back(reader_.count());
  }
  return reader_.error().empty();
}

void PreviewRun::start_table() {
  layout_ = decide_layout(head_, options_);
  reader_.set_separator(layout_.separator.separator == 0 ? '\n' : layout_.separator.separator);
  set_decimal_mark(layout_.decimal.mark);
  summary_.separator = separator_name(layout_.separator.separator);
  summary_.separator_reason = layout_.separator.reason;
  summary_.decimal = layout_.decimal.mark;
  summary_.decimal_reason = layout_.decimal.reason;
  summary_.fields = layout_.separator.fields;
  summary_.titles = layout_.titles;
  std::vector<std::string_view> names;
  if (layout_.header && layout_.titles < head_.size()) {
    summary_.header_line = head_numbers_[layout_.titles];
    split_fields(head_[layout_.titles], layout_.separator.separator, names);
  }
  // A header one field short names the last columns (the first holds row names).
  const std::size_t shift = names.size() + 1 == static_cast<std::size_t>(summary_.fields) ? 1 : 0;
  for (int col = 0; col < summary_.fields; ++col) {
    if (!partials_.CheckCol(col)) continue;
    const std::size_t name_at = static_cast<std::size_t>(col) - shift;
    const bool named = col >= static_cast<int>(shift) && name_at < names.size();
    std::string name = named ? field_text(names[name_at]) : "";
    columns_.push_back({col, name.empty() ? std::to_string(col + 1) : name});
  }
  writer_->begin(columns_);
}

void PreviewRun::take_record(std::uint64_t number, std::string_view record) {
  if (is_comment(record, options_.comment)) {
    ++summary_.comments;
    return;
  }
  if (!partials_.CheckRow(static_cast<int>(number - 1))) return;
  ++summary_.wanted;
  if (limit_ > 0 && summary_.shown >= static_cast<std::uint64_t>(limit_)) return;
  ++summary_.shown;
  split_fields(record, layout_.separator.separator, fields_);
  summary_.ragged += static_cast<int>(fields_.size()) != summary_.fields;
  row_.number = number;
  row_.cells.resize(columns_.size());
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    const auto index = static_cast<std::size_t>(columns_[i].index);
    read_cell(index < fields_.size() ? fields_[index] : std::string_view(), row_.cells[i]);
  }
  writer_->row(row_);
}

bool PreviewRun::flush() {
  if (output_ != nullptr && !output_->write(out_)) return false;
  out_.clear();
  progress_.update(input_.offset());
  return true;
}

int PreviewRun::run() {
  if (!decoder_.start()) return fail(decoder_.error());
  tagImpFilePartialOpt request{};
  request.enabled = 1;
  std::memcpy(request.rows, options_.rows.c_str(), options_.rows.size() + 1);
  std::memcpy(request.cols, options_.cols.c_str(), options_.cols.size() + 1);
  parse_partial_range(&partials_, &request);
  const bool scripted = options_.format == PreviewFormat::kCsv || options_.format == PreviewFormat::kNdjson;
  limit_ = options_.limit >= 0 ? options_.limit : (scripted ? 0 : 10);
  writer_ = make_preview_writer(options_, out_);

  if (!read_head()) return fail(reader_.error());
  start_table();
  const std::size_t first_data = layout_.titles + (layout_.header ? 1 : 0);
  for (std::size_t i = first_data; i < head_.size(); ++i) take_record(head_numbers_[i], head_[i]);
  // Scripted output with a limit stops once the limit is reached; the
  // other outputs read on to count lines and wanted rows.
  const bool stop_early = scripted && limit_ > 0;
  std::string_view record;
  while (!(stop_early && summary_.shown >= static_cast<std::uint64_t>(limit_)) && reader_.next(record)) {
    take_record(reader_.count(), record);
    if (out_.size() >= kFlushBytes && !flush()) break;
  }
  summary_.lines = reader_.count();
  summary_.encoding = decoder_.description();
  if (reader_.error().empty()) writer_->end(summary_);
  const bool written = flush() && (output_ == nullptr || output_->finish());
  if (!reader_.error().empty()) return fail(reader_.error());
  if (!written) return file_error(output_->name(), output_->error());
  return kOk;
}

}  // namespace

int preview_input(InputFile& input, const PreviewOptions& options, OutputFile* output) {
  PreviewRun run(input, options, output);
  return run.run();
}

int run_preview(Args args) {
  PreviewOptions options;
  if (const int rc = parse_preview_options(args, options); rc != kOk) return rc;
  InputFile input;
  if (!input.open(options.path)) return file_error(options.path, input.error());
  OutputFile output;
  output.open("-");
  return preview_input(input, options, &output);
}

}  // namespace kilnutil_cli
