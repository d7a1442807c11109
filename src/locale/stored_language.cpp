// The stored language choice in settings.ini, and the process locale's
// language.
#include "locale/stored_language.h"

#include "files/section_header.h"
#include "locale/language_table.h"
#include "platform/file_bytes.h"
#include "platform/file_replacement.h"
#include "platform/user_settings.h"

#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <utility>
#include <vector>

namespace kiln::locale {

namespace {

constexpr std::string_view kSection = "General";
constexpr std::string_view kKey = "Language";

std::string environment(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr ? value : "";
}

std::string_view trim_blanks(std::string_view text) {
  const size_t first = text.find_first_not_of(" \t\r");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

bool equal_ignoring_case(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i) {
    auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
    if (lower(a[i]) != lower(b[i])) return false;
  }
  return true;
}

std::vector<std::string> split_lines(const std::string& text) {
  std::vector<std::string> lines;
  size_t start = 0;
  while (start < text.size()) {
    size_t end = text.find('\n', start);
    if (end == std::string::npos) end = text.size();
    lines.emplace_back(text, start, end - start);
    start = end + 1;
  }
  return lines;
}

// The section name of a header line; false when the line is no header.
bool header_name(const std::string& line, std::string& name) {
  std::vector<char> copy(line.begin(), line.end());
  copy.push_back('\0');
  const char* found = files::section_name_in_line(copy.data());
  if (found == nullptr) return false;
  name = found;
  return true;
}

// The value of the key in a line "key = value", when the key is Language.
bool language_value(const std::string& line, std::string_view& value) {
  const size_t equals = line.find('=');
  if (equals == std::string::npos) return false;
  if (!equal_ignoring_case(trim_blanks(std::string_view(line).substr(0, equals)), kKey)) return false;
  value = trim_blanks(std::string_view(line).substr(equals + 1));
  return true;
}

// The index of a stored value's first character, upper-cased.
unsigned char index_of_value(std::string_view value) {
  if (value.empty()) return kNotDetermined;
  const char first = value[0];
  return index_of_letter(static_cast<unsigned char>(first >= 'a' && first <= 'z' ? first - 32 : first));
}

// The language of a Windows language identifier's primary language.
unsigned char index_of_language_identifier(unsigned short identifier) {
  switch (identifier & 0x3FF) {
    case 0x07: return index_of_letter('G');
    case 0x11: return index_of_letter('J');
    case 0x04: return index_of_letter('C');
    case 0x09: return index_of_letter('E');
    default: return kUndetermined;
  }
}

std::string read_settings() {
  const std::string path = settings_file_path();
  platform::FileBytes bytes;
  if (path.empty() || platform::read_whole_file(path.c_str(), bytes) != platform::ReadStatus::kOk) return {};
  return std::string(reinterpret_cast<const char*>(bytes.data.get()), bytes.size);
}

// The settings text with the key set to letter in its section (added where
// missing).
std::string with_language(const std::string& text, char letter) {
  const std::string entry = std::string(kKey) + "=" + letter;
  std::vector<std::string> lines = split_lines(text);
  auto joined = [&lines] {
    std::string result;
    for (const std::string& line : lines) result += line + "\n";
    return result;
  };
  constexpr size_t kNone = static_cast<size_t>(-1);
  size_t section_line = kNone;
  bool in_section = false;
  for (size_t i = 0; i < lines.size(); ++i) {
    std::string name;
    std::string_view value;
    if (header_name(lines[i], name)) {
      in_section = equal_ignoring_case(name, kSection);
      if (in_section && section_line == kNone) section_line = i;
    } else if (in_section && language_value(lines[i], value)) {
      lines[i] = entry;
      return joined();
    }
  }
  if (section_line == kNone) {
    std::string header(1, '[');
    header.append(kSection).push_back(']');
    lines.push_back(std::move(header));
    lines.push_back(entry);
  } else {
    lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(section_line) + 1, entry);
  }
  return joined();
}

}  // namespace

std::string settings_file_path() {
  std::string folder = environment("KILNUTIL_CONFIG_DIR");
  if (folder.empty()) {
    folder = environment("XDG_CONFIG_HOME");
    if (folder.empty()) {
      const std::string home = environment("HOME");
      if (home.empty()) return {};
      folder = home + "/.config";
    }
    folder += "/kilnutil";
  }
  return folder + "/settings.ini";
}

unsigned char stored_language_index() {
  if (platform::has_settings_store()) {
    std::string value;
    return platform::read_setting(std::string(kKey).c_str(), value) ? index_of_value(value) : kNotDetermined;
  }
  bool in_section = false;
  for (const std::string& line : split_lines(read_settings())) {
    std::string name;
    std::string_view value;
    if (header_name(line, name)) {
      in_section = equal_ignoring_case(name, kSection);
    } else if (in_section && language_value(line, value) && !value.empty()) {
      return index_of_value(value);
    }
  }
  return kNotDetermined;
}

bool store_language_letter(char letter) {
  if (platform::has_settings_store()) return platform::write_setting(std::string(kKey).c_str(), std::string(1, letter));
  const std::string path = settings_file_path();
  if (path.empty()) return false;
  std::error_code error;
  std::filesystem::create_directories(std::filesystem::path(path).parent_path(), error);
  const std::string text = with_language(read_settings(), letter);
  return platform::replace_file(path.c_str(), {{text.data(), text.size()}}) == platform::ReplaceStatus::kDone;
}

unsigned char process_locale_language_index() {
  if (const unsigned short identifier = platform::user_ui_language(); identifier != 0) {
    return index_of_language_identifier(identifier);
  }
  std::string name;
  for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    name = environment(variable);
    if (!name.empty()) break;
  }
  if (name.size() < 2 || (name.size() > 2 && std::isalpha(static_cast<unsigned char>(name[2])))) return kUndetermined;
  const std::string_view code = std::string_view(name).substr(0, 2);
  if (code == "de") return index_of_letter('G');
  if (code == "ja") return index_of_letter('J');
  if (code == "zh") return index_of_letter('C');
  if (code == "en") return index_of_letter('E');
  return kUndetermined;
}

}  // namespace kiln::locale
