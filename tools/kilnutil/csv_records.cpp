// Record and field cutting for the preview.
#include "csv_records.h"

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

bool RecordReader::next(std::string_view& record) {
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

void split_fields(std::string_view record, char separator, std::vector<std::string_view>& fields) {
  fields.clear();
  if (separator == 0) {
    fields.push_back(record);
    return;
  }
  const bool blanks = separator == kBlankSeparator;
  std::size_t at = 0;
  if (blanks) {
    while (at < record.size() && is_blank(record[at])) ++at;
  }
  std::size_t start = at;
  bool quoted = false;
  for (; at < record.size(); ++at) {
    const char c = record[at];
    if (c == '"') {
      if (!quoted) quoted = at == start || (blanks && is_blank(record[at - 1]));
      else if (at + 1 < record.size() && record[at + 1] == '"') ++at;
      else quoted = false;
    } else if (!quoted && (blanks ? is_blank(c) : c == separator)) {
      fields.push_back(record.substr(start, at - start));
      if (blanks) {
        while (at + 1 < record.size() && is_blank(record[at + 1])) ++at;
        if (at + 1 == record.size()) return;  // trailing blanks open no field
      }
      start = at + 1;
    }
  }
  fields.push_back(record.substr(start));
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
