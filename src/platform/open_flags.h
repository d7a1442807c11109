// The runtime's open() flags for a file-system open: access and creation
// rule, shared by both backends (each adds its own flags for inheritance and
// binary mode).
#pragma once

#include "platform/file_system.h"

#include <fcntl.h>

namespace kiln::platform {

inline int creation_flags(OpenRule rule) {
  switch (rule) {
    case OpenRule::kCreateNew: return O_CREAT | O_EXCL;
    case OpenRule::kCreateAlways: return O_CREAT | O_TRUNC;
    case OpenRule::kOpenExisting: return 0;
    case OpenRule::kOpenAlways: return O_CREAT;
    case OpenRule::kTruncateExisting: return O_TRUNC;
  }
  return 0;
}

inline int access_and_creation_flags(bool reads, bool writes, OpenRule rule) {
  const int access_flags = reads && writes ? O_RDWR : writes ? O_WRONLY : O_RDONLY;
  return access_flags | creation_flags(rule);
}

}  // namespace kiln::platform
