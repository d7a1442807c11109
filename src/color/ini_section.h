// One section of an initialisation file held as UTF-8 text: reading its
// "key=value" lines and replacing its lines while keeping the rest of the
// file. Section names compare ignoring ASCII case; blanks around names, keys
// and values are dropped; lines starting with ';' are comments.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kiln::color {

struct IniEntry {
  std::string key;
  std::string value;
};

// The entries of the first section called `section`, in file order.
std::vector<IniEntry> section_entries(std::string_view text, std::string_view section);

// The text with the first section called `section` holding exactly
// `entries` (the section is appended when absent). Line ends follow the
// text's own ("\r\n" when it has any, else "\n").
std::string with_section_replaced(std::string_view text, std::string_view section,
                                  const std::vector<IniEntry>& entries);

}  // namespace kiln::color
