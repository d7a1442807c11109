// Reading and replacing one section of initialisation-file text.
#include "color/ini_section.h"

#include "color/color_list.h"

namespace kiln::color {

namespace {

std::string_view trimmed(std::string_view s) {
  const auto blank = [](char c) { return c == ' ' || c == '\t' || c == '\r'; };
  while (!s.empty() && blank(s.front())) s.remove_prefix(1);
  while (!s.empty() && blank(s.back())) s.remove_suffix(1);
  return s;
}

// The lines of the text, each without its '\n'.
std::vector<std::string_view> lines_of(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    lines.push_back(text.substr(0, end));
    if (end == std::string_view::npos) break;
    text.remove_prefix(end + 1);
  }
  return lines;
}

// True for a "[name]" line; the name goes to `name`.
bool is_header(std::string_view line, std::string_view& name) {
  line = trimmed(line);
  if (line.size() < 2 || line.front() != '[') return false;
  const std::size_t close = line.find(']');
  if (close == std::string_view::npos) return false;
  name = trimmed(line.substr(1, close - 1));
  return true;
}

// The section's header line and the line after its last (the next header or
// the end); header == npos when the section is absent.
struct SectionSpan {
  std::size_t header = std::string_view::npos;
  std::size_t end = 0;
};

SectionSpan find_section(const std::vector<std::string_view>& lines, std::string_view section) {
  SectionSpan span;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    std::string_view name;
    if (!is_header(lines[i], name)) continue;
    if (span.header != std::string_view::npos) {
      span.end = i;
      return span;
    }
    if (same_ignoring_ascii_case(name, section)) span.header = i;
  }
  span.end = lines.size();
  return span;
}

}  // namespace

std::vector<IniEntry> section_entries(std::string_view text, std::string_view section) {
  const std::vector<std::string_view> lines = lines_of(text);
  const SectionSpan span = find_section(lines, section);
  std::vector<IniEntry> entries;
  if (span.header == std::string_view::npos) return entries;
  for (std::size_t i = span.header + 1; i < span.end; ++i) {
    const std::string_view line = trimmed(lines[i]);
    const std::size_t equals = line.find('=');
    if (line.empty() || line.front() == ';' || equals == std::string_view::npos) continue;
    const std::string_view key = trimmed(line.substr(0, equals));
    if (!key.empty()) entries.push_back({std::string(key), std::string(trimmed(line.substr(equals + 1)))});
  }
  return entries;
}

std::string with_section_replaced(std::string_view text, std::string_view section,
                                  const std::vector<IniEntry>& entries) {
  const std::string_view eol = text.find("\r\n") != std::string_view::npos ? "\r\n" : "\n";
  const std::vector<std::string_view> lines = lines_of(text);
  const SectionSpan span = find_section(lines, section);
  const bool present = span.header != std::string_view::npos;
  const std::size_t before = present ? span.header : lines.size();
  std::string out;
  for (std::size_t i = 0; i < before; ++i) out.append(lines[i]).append(lines[i].ends_with('\r') ? "\n" : eol);
  out.append("[").append(section).append("]").append(eol);
  for (const IniEntry& entry : entries) out.append(entry.key).append("=").append(entry.value).append(eol);
  for (std::size_t i = present ? span.end : lines.size(); i < lines.size(); ++i) {
    out.append(lines[i]).append(lines[i].ends_with('\r') ? "\n" : eol);
  }
  return out;
}

}  // namespace kiln::color
