// POSIX streams have no text mode: nothing to do.
#include "../standard_streams.h"

namespace kilnutil_cli {

void use_binary_standard_streams() {}

}  // namespace kilnutil_cli
