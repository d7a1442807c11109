// Any bytes as a line through header recognition: the "[" and the closing
// character lie inside the line, and the name taken in place lies inside it
// too and is no longer than the text between them.
#include <kilnutil/files.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

void check(bool condition) {
  if (!condition) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::string line(reinterpret_cast<const char*>(data), size);
  const size_t length = std::strlen(line.c_str());
  char* end = nullptr;
  const char* open = KILNUTIL_find_section_name(line.c_str(), &end);
  if (open == nullptr) {
    check(KILNUTIL_get_file_section_name(line.data()) == nullptr);
    return 0;
  }
  check(open >= line.c_str() && open < line.c_str() + length && *open == '[');
  check(end > open && end < line.c_str() + length);
  const auto inside = static_cast<size_t>(end - open - 1);
  const char* name = KILNUTIL_get_file_section_name(line.data());
  check(name != nullptr && name == line.c_str() + (open - line.c_str()) + 1);
  check(std::strlen(name) <= inside);
  return 0;
}
