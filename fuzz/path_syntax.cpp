// Any bytes as a path through the syntax check and the splitting, with the
// outputs sized to the input: the code is one of the seven, and the split
// parts fit and put the path back together.
#include <kilnutil/files.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

namespace {

void check(bool condition) {
  if (!condition) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string path(reinterpret_cast<const char*>(data), size);
  int code = 0;
  const int valid = KILNUTIL_IsPathValidSyntax(path.c_str(), &code);
  check(code >= -5 && code <= 2 && code != 0 && valid == (code > 0 ? 1 : 0));

  const size_t length = std::strlen(path.c_str());
  // Exactly the path's length plus 1 each, so that a sanitizer sees any overrun.
  auto folder = std::make_unique<char[]>(length + 1);
  auto name = std::make_unique<char[]>(length + 1);
  auto extension = std::make_unique<char[]>(length + 1);
  extension[0] = '\0';
  const char* result = KILNUTIL_SeparatePath(path.c_str(), folder.get(), name.get(), extension.get());
  check(result == folder.get() || result == name.get());
  check(std::string(folder.get()) + name.get() == path.substr(0, length));
  return 0;
}
