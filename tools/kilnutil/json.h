// JSON text for the tool's scriptable outputs.
#pragma once

#include <string>
#include <string_view>

namespace kilnutil_cli {

// A JSON string literal; ill-formed UTF-8 (such as a file name from the
// command line) becomes U+FFFD, so the output is always valid UTF-8.
std::string json_string(std::string_view text);
void append_json_string(std::string_view text, std::string& out);

}  // namespace kilnutil_cli
