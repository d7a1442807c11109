// Parsing a partial-import request into parts: the flip-shift suffix of the
// whole request, then each item matched by the request pattern in turn.
#include "import/partial_part.h"

// GCC 12 reports a false "may be used uninitialized" inside the standard
// library's regular-expression automaton when optimising with sanitizers.
#if defined(__GNUC__) && !defined(__clang__)
#  pragma GCC diagnostic push
#  pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#endif
#include <regex>
#if defined(__GNUC__) && !defined(__clang__)
#  pragma GCC diagnostic pop
#endif

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

using kiln::import::apply_selection_clause;
using kiln::import::new_part;
using kiln::import::request_int;
using kiln::import::request_is_int;

namespace {

// One item: optional "~", a first number, optionally ":" and a last number
// followed by up to two clauses "|count-skip" (or "|ave-..", "|yave-..",
// "|max-..").
const std::regex& item_pattern() {
  static const std::regex pattern(
      R"((~)?(\d+)(?::(\d+)(?:\|(\d+|(ave)|(yave)|(max))-(\d*[dymq]?))?(?:\|(\d+|(ave)|(yave)|(max))-(\d*[dymq]?))?)?\s*)",
      std::regex::ECMAScript);
  return pattern;
}

enum Group : std::size_t {
  kExclude = 1,
  kFirst = 2,
  kLast = 3,
  kSelection1 = 4,
  kSkip1 = 8,
  kSelection2 = 9,
  kSkip2 = 13,
};

constexpr std::size_t kMaxSuffix = 6;

// The suffix of a whole request: "#", or "/" (else "*") followed by an
// integer. It is cut off the request when something stands before it.
std::string take_suffix(std::string& request) {
  if (request.size() <= 1) return {};
  std::size_t at = std::string::npos;
  if (request.back() == '#') {
    at = request.size() - 1;
  } else {
    at = request.rfind('/');
    if (at == std::string::npos) at = request.rfind('*');
    if (at == std::string::npos || !request_is_int(std::string_view(request).substr(at + 1))) return {};
  }
  std::string suffix = request.substr(at, kMaxSuffix);
  if (at > 0) request.resize(at);
  return suffix;
}

// Number texts of 40 characters or more all read as 0, and runs of white space
// only separate items: shortening such runs changes no result, and keeps the
// backtracking matcher's recursion shallow on long input.
std::string shorten_long_runs(const std::string& request) {
  constexpr std::size_t kLongNumber = 40;
  std::string out;
  out.reserve(request.size());
  std::size_t digits = 0;
  bool in_space = false;
  for (const char c : request) {
    const bool digit = c >= '0' && c <= '9';
    const bool space = c == ' ' || (c >= '\t' && c <= '\r');
    digits = digit ? digits + 1 : 0;
    if ((digit && digits > kLongNumber) || (space && in_space)) continue;
    in_space = space;
    out.push_back(c);
  }
  return out;
}

ImportFilesPartialPart part_of_item(const std::smatch& item, const std::string& flip_shift) {
  ImportFilesPartialPart part = new_part();
  part.include = item[kExclude].matched ? 0 : 1;
  part.begin = static_cast<int>(static_cast<unsigned>(request_int(item[kFirst].str())) - 1u);
  part.end =
      item[kLast].matched ? static_cast<int>(static_cast<unsigned>(request_int(item[kLast].str())) - 1u) : part.begin;
  apply_selection_clause(item[kSkip1].str(), part, item[kSelection1].str());
  apply_selection_clause(item[kSkip2].str(), part, item[kSelection2].str());
  std::memcpy(part.flip_shift, flip_shift.c_str(), flip_shift.size() + 1);
  return part;
}

std::vector<ImportFilesPartialPart> parse_items(const char* request) {
  std::string text(request);
  const std::string flip_shift = take_suffix(text);
  text = shorten_long_runs(text);
  std::vector<ImportFilesPartialPart> parts;
  parts.reserve(20);
  for (auto it = std::sregex_iterator(text.begin(), text.end(), item_pattern()); it != std::sregex_iterator(); ++it) {
    parts.push_back(part_of_item(*it, flip_shift));
  }
  return parts;
}

}  // namespace

bool ImportFilesPartialParts::Parse(const char* request) {
  if (request == nullptr) return false;
  try {
    const std::vector<ImportFilesPartialPart> parts = parse_items(request);
    if (parts.empty()) return false;
    parts_.RemoveAll();
    parts_.Reserve(20);
    for (const ImportFilesPartialPart& part : parts) parts_.Add(part);
    return true;
  } catch (...) {
    // Out of memory or a matcher limit: the parts stay as they were.
    return false;
  }
}
