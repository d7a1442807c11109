// JSON string literals.
#include "json.h"

#include "utf8_check.h"

#include <cstdio>

namespace kilnutil_cli {

void append_json_string(std::string_view text, std::string& out) {
  std::string clean;
  if (valid_utf8_prefix(text) != text.size()) {
    append_replacing_invalid(text, clean);
    text = clean;
  }
  out += '"';
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      out += '\\';
      out += c;
    } else if (c == '\n') {
      out += "\\n";
    } else if (c == '\t') {
      out += "\\t";
    } else if (c == '\r') {
      out += "\\r";
    } else if (byte < 0x20 || byte == 0x7F) {
      char escape[8];
      std::snprintf(escape, sizeof escape, "\\u%04x", byte);
      out += escape;
    } else {
      out += c;
    }
  }
  out += '"';
}

std::string json_string(std::string_view text) {
  std::string out;
  append_json_string(text, out);
  return out;
}

}  // namespace kilnutil_cli
