// Replacing a whole file in one call, on either backend of FileReplacement.
#include "platform/file_replacement.h"

namespace kiln::platform {

ReplaceStatus replace_file(const char* path, std::initializer_list<ByteRange> contents) {
  FileReplacement replacement(path);
  if (!replacement.create()) return ReplaceStatus::kCantCreate;
  for (const ByteRange& range : contents) {
    if (!replacement.write(range.data, range.size)) break;
  }
  return replacement.commit();
}

}  // namespace kiln::platform
