// The preview command's arguments.
#include "preview.h"

#include "csv_records.h"
#include "text_options.h"

#include <kilnutil/import.h>

#include <charconv>
#include <cstdint>
#include <string_view>

namespace kilnutil_cli {

namespace {

// "" when the request is usable, else the reason it is not.
std::string request_problem(const std::string& request) {
  if (request.size() >= KILNUTIL_PARTIAL_REQUEST_SIZE) {
    return "longer than " + std::to_string(KILNUTIL_PARTIAL_REQUEST_SIZE - 1) + " characters";
  }
  ImportFilesPartialParts parts;
  if (!parts.Parse(request.c_str()))
    return "no item such as 3, 2:10, 2:0, ~5 or 1:0|2-3 (see 'kilnutil help requests')";
  return "";
}

template <class Number>
bool parse_count(std::string_view text, Number& value, Number low, Number high) {
  Number parsed{};
  const auto result = std::from_chars(text.data(), text.data() + text.size(), parsed);
  if (text.empty() || result.ec != std::errc() || result.ptr != text.data() + text.size()) return false;
  if (parsed < low || parsed > high) return false;
  value = parsed;
  return true;
}

std::optional<char> separator_of(std::string_view name) {
  if (name == "tab" || name == "\\t" || name == "\t") return '\t';
  if (name == "blank" || name == "space" || name == " ") return kBlankSeparator;
  if (name == "none") return '\0';
  if (name.size() == 1 && name[0] != '"' && static_cast<unsigned char>(name[0]) < 0x80) return name[0];
  return std::nullopt;
}

}  // namespace

int parse_preview_options(Args args, PreviewOptions& options) {
  const int parsed = parse_with_text_options(args, options.decode, [&](const std::string& arg, std::size_t& i) -> int {
    const bool takes_value = arg == "--rows" || arg == "--cols" || arg == "--limit" || arg == "--sep" ||
                             arg == "--decimal" || arg == "--skip" || arg == "--comment" || arg == "--width";
    if (takes_value && i + 1 >= args.size()) return usage_error(arg + " needs a value (see 'kilnutil help preview')");
    const std::string value = takes_value ? args[++i] : "";
    if (arg == "--json") options.format = PreviewFormat::kJson;
    else if (arg == "--ndjson") options.format = PreviewFormat::kNdjson;
    else if (arg == "--csv") options.format = PreviewFormat::kCsv;
    else if (arg == "--header") options.header = true;
    else if (arg == "--no-header") options.header = false;
    else if (arg == "--date-values") options.date_values = true;
    else if (arg == "--rows" || arg == "--cols") {
      (arg == "--rows" ? options.rows : options.cols) = value;
      if (const std::string reason = request_problem(value); !reason.empty()) {
        return usage_error("invalid " + std::string(arg == "--rows" ? "row" : "column") + " request '" + value +
                           "': " + reason);
      }
    } else if (arg == "--limit") {
      if (!parse_count<std::int64_t>(value, options.limit, 0, INT64_MAX)) {
        return usage_error("--limit needs a count of rows (0 for all)");
      }
    } else if (arg == "--skip") {
      if (!parse_count<std::uint64_t>(value, options.skip, 0, UINT64_MAX))
        return usage_error("--skip needs a count of lines");
    } else if (arg == "--width") {
      if (!parse_count<std::size_t>(value, options.width, 2, 100000))
        return usage_error("--width needs a count of 2 or more");
    } else if (arg == "--sep") {
      options.separator = separator_of(value);
      if (!options.separator)
        return usage_error("--sep takes one ASCII character, tab, blank or none (got '" + value + "')");
    } else if (arg == "--decimal") {
      if (value != "." && value != ",") return usage_error("--decimal takes . or , (got '" + value + "')");
      options.decimal = value[0];
    } else if (arg == "--comment") {
      if (value.size() > 1) return usage_error("--comment takes one character, or '' for none");
      options.comment = value.empty() ? '\0' : value[0];
    } else if (arg.size() > 1 && arg[0] == '-') {
      return usage_error("preview: unknown option '" + arg + "' (see 'kilnutil help preview')");
    } else if (options.path.empty()) {
      options.path = arg;
    } else {
      return usage_error("preview takes one file (got '" + options.path + "' and '" + arg + "')");
    }
    return kOk;
  });
  if (parsed != kOk) return parsed;
  if (options.path.empty())
    return usage_error("preview needs a file, or - for standard input (see 'kilnutil help preview')");
  return kOk;
}

}  // namespace kilnutil_cli
