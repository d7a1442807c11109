// The Windows C runtime opens the standard streams in text mode, which turns
// LF into CR LF on output and stops input at a 0x1A byte: binary mode keeps
// the bytes as they are.
#include "../standard_streams.h"

#include <fcntl.h>
#include <io.h>

#include <cstdio>

namespace kilnutil_cli {

void use_binary_standard_streams() {
  _setmode(_fileno(stdin), _O_BINARY);
  _setmode(_fileno(stdout), _O_BINARY);
}

}  // namespace kilnutil_cli
