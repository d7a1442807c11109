// The POSIX build runs on the system it was built for.
#include "platform/host_system.h"

namespace kiln::platform {

bool runs_under_wine() { return false; }

}  // namespace kiln::platform
