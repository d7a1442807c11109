// Record and field cutting for the preview.
#include "csv_records.h"

#include <algorithm>
#include <cstring>

namespace kilnutil_cli {

namespace {

// Quoted text longer than this is taken for an unbalanced quote.
constexpr std::size_t kMaxRecord = 256u << 20;

bool is_blank(char c) { return c == ' ' || c == '\t'; }

// A double quote opens a quoted field only where a field starts: at the start
// of a record or after the separator (any of the usual ones while it is not
// known yet). Elsewhere (as in 5" or O"Neil) it is an ordinary character.
bool may_precede_field(char c, char separator) {
  if (separator == 0) return c == ',' || c == ';' || c == '\t' || c == '|';
  return c == separator || (separator == kBlankSeparator && is_blank(c));
}

}  // namespace

bool RecordReader::pull() {
  if (ended_) return false;
  quote_at_ = return_at_ = kUnknown;
  if (at_ > 0) {
    text_.erase(0, at_);
    at_ = 0;
  }
  const std::size_t before = text_.size();
  if (!decoder_.next(text_)) {
    ended_ = true;
    error_ = decoder_.error();
  }
  return text_.size() > before;
}

// The common record: a line without double quotes or carriage returns (other
// than one ending it), found with two fast searches.
bool RecordReader::take_plain_line(std::string_view& record) {
  const std::size_t feed = text_.find('\n', at_);
  if (feed == std::string::npos) return false;
  // The next quote and carriage return are searched once for many lines.
  if (quote_at_ == kUnknown || quote_at_ < at_) quote_at_ = std::min(text_.find('"', at_), text_.size());
  if (return_at_ == kUnknown || return_at_ < at_) return_at_ = std::min(text_.find('\r', at_), text_.size());
  if (quote_at_ < feed || (return_at_ + 1 < feed)) return false;
  std::string_view line(text_.data() + at_, feed - at_);
  if (return_at_ + 1 == feed) line.remove_suffix(1);
  record = line;
  at_ = feed + 1;
  ++count_;
  return true;
}

bool RecordReader::next(std::string_view& record) {
  if (take_plain_line(record)) return true;
  bool quoted = false;
  std::size_t scan = at_;
  while (true) {
    const char* data = text_.data();
    const std::size_t size = text_.size();
    std::size_t i = scan;
    for (; i < size; ++i) {
      const char c = data[i];
      if (c == '"') {
        if (!quoted) {
          quoted = i == at_ || may_precede_field(data[i - 1], separator_);
        } else if (i + 1 == size && !ended_) {
          break;  // a doubled quote may continue in the next piece
        } else if (i + 1 < size && data[i + 1] == '"') {
          ++i;
        } else {
          quoted = false;
        }
      } else if ((c == '\n' || c == '\r') && !quoted) {
        break;
      }
    }
    if (i < size && data[i] != '"' && !(data[i] == '\r' && i + 1 == size && !ended_)) {
      const std::size_t end = i + (data[i] == '\r' && i + 1 < size && data[i + 1] == '\n' ? 2 : 1);
      record = std::string_view(data + at_, i - at_);
      at_ = end;
      ++count_;
      return true;
    }
    if (!error_.empty()) return false;
    if (i - at_ > kMaxRecord) {
      error_ = "a double quote opened near record " + std::to_string(count_ + 1) + " is never closed";
      return false;
    }
    const std::size_t consumed = at_;
    scan = (i < size ? i : size) - consumed;  // keep the quote state: rescan nothing already seen
    if (!pull()) {
      if (!error_.empty()) return false;
      if (at_ >= text_.size()) return false;
      if (quoted) {
        error_ = "the double quote opened in record " + std::to_string(count_ + 1) + " is never closed";
        return false;
      }
      record = std::string_view(text_.data() + at_, text_.size() - at_);
      if (!record.empty() && record.back() == '\r') record.remove_suffix(1);
      at_ = text_.size();
      ++count_;
      return true;
    }
  }
}

namespace {

// Where the quoted field starting at record[at] (a double quote) ends: just
// after its closing quote, or at the end of the record.
std::size_t quoted_field_end(std::string_view record, std::size_t at) {
  for (++at; at < record.size(); ++at) {
    if (record[at] != '"') continue;
    if (at + 1 < record.size() && record[at + 1] == '"') ++at;
    else return at + 1;
  }
  return record.size();
}

void split_blank_fields(std::string_view record, std::vector<std::string_view>& fields) {
  std::size_t at = 0;
  while (at < record.size() && is_blank(record[at])) ++at;
  while (at < record.size()) {
    const std::size_t start = at;
    if (record[at] == '"') at = quoted_field_end(record, at);
    while (at < record.size() && !is_blank(record[at])) ++at;
    fields.push_back(record.substr(start, at - start));
    while (at < record.size() && is_blank(record[at])) ++at;
  }
  if (fields.empty()) fields.push_back(record.substr(0, 0));
}

}  // namespace

void split_fields(std::string_view record, char separator, std::vector<std::string_view>& fields) {
  fields.clear();
  if (separator == 0) {
    fields.push_back(record);
    return;
  }
  if (separator == kBlankSeparator) {
    split_blank_fields(record, fields);
    return;
  }
  for (std::size_t start = 0;;) {
    // A double quote opens a quoted field only at the field's start.
    const std::size_t after_quotes =
        start < record.size() && record[start] == '"' ? quoted_field_end(record, start) : start;
    const std::size_t end = record.find(separator, after_quotes);
    if (end == std::string_view::npos) {
      fields.push_back(record.substr(start));
      return;
    }
    fields.push_back(record.substr(start, end - start));
    start = end + 1;
  }
}

void assign_field_text(std::string_view field, std::string& text) {
  while (!field.empty() && is_blank(field.front())) field.remove_prefix(1);
  while (!field.empty() && is_blank(field.back())) field.remove_suffix(1);
  if (field.size() < 2 || field.front() != '"' || field.back() != '"') {
    text.assign(field);
    return;
  }
  field = field.substr(1, field.size() - 2);
  text.clear();
  for (std::size_t i = 0; i < field.size(); ++i) {
    text += field[i];
    if (field[i] == '"' && i + 1 < field.size() && field[i + 1] == '"') ++i;
  }
}

std::string field_text(std::string_view field) {
  std::string text;
  assign_field_text(field, text);
  return text;
}

}  // namespace kilnutil_cli
