// kilnutil section FILE [NAME] | --list FILE: one section of a sectioned text
// file as UTF-8 (NAME "" the preamble, no NAME the whole file), or the list
// of its section headers with their line numbers.
#include "commands.h"

#include <kilnutil/files.h>
#include <kilnutil/platform.h>

#include <cstdio>
#include <string>
#include <vector>

namespace kilnutil_cli {

namespace {

// The text of a block (freed here); empty for null.
std::string take_text(HGLOBAL block) {
  if (block == nullptr) return {};
  std::string text(static_cast<const char*>(GlobalLock(block)));
  GlobalUnlock(block);
  GlobalFree(block);
  return text;
}

int list_sections(const char* path) {
  unsigned status = 0;
  HGLOBAL whole = KILNUTIL_GetFileSectionEx(path, nullptr, &status, nullptr, 0);
  if (whole == nullptr) return input_error(std::string(path) + ": cannot read the file");
  const std::string text = take_text(whole);
  size_t start = 0;
  for (unsigned line = 1; start < text.size(); ++line) {
    size_t end = text.find('\n', start);
    if (end == std::string::npos) end = text.size();
    std::vector<char> copy(text.begin() + static_cast<std::ptrdiff_t>(start),
                           text.begin() + static_cast<std::ptrdiff_t>(end));
    copy.push_back('\0');
    if (const char* name = KILNUTIL_get_file_section_name(copy.data())) std::printf("%u\t%s\n", line, name);
    start = end + 1;
  }
  return kOk;
}

int print_section(const char* path, const char* name) {
  unsigned status = KILNUTIL_SECTION_OK;
  HGLOBAL block = KILNUTIL_GetFileSectionEx(path, name, &status, nullptr, 0);
  if (status == KILNUTIL_SECTION_CANT_OPEN || (block == nullptr && name == nullptr))
    return input_error(std::string(path) + ": cannot read the file");
  if (status == KILNUTIL_SECTION_NOT_FOUND) return input_error(std::string(path) + ": no section " + name);
  const std::string text = take_text(block);
  std::fwrite(text.data(), 1, text.size(), stdout);
  return kOk;
}

}  // namespace

int run_section(Args args) {
  if (!args.empty() && std::string(args[0]) == "--list") {
    if (args.size() != 2) return usage_error("section --list takes one file");
    return list_sections(args[1]);
  }
  if (args.empty() || args.size() > 2) return usage_error("section takes a file and at most one section name");
  return print_section(args[0], args.size() == 2 ? args[1] : nullptr);
}

}  // namespace kilnutil_cli
